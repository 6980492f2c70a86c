#pragma once

#include "Services/FileChooser.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

class QDBusMessage;

/// One request to the file chooser of the desktop's portal. A dialog that is closed in any way without a
/// choice counts as cancelled. A portal that does not accept the request in time is replaced by another
/// chooser, one that ends while its dialog is open is a FileError. Destroying the request closes the dialog.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    PortalRequest(QDBusConnection bus, FileChooser::Target target, FileChooser::Completion completion,
                  FileChooser &otherwise);
    ~PortalRequest() override;

    void send(const QString &parentWindow, std::chrono::milliseconds replyTimeout);

private Q_SLOTS:
    /// The signal of the bus that ends the request.
    void answered(uint response, const QVariantMap &results);

private:
    void accepted(const QString &handle);
    void refused();
    void portalEnded();
    void close();
    void listenTo(const QString &path);
    void finish(const FileChooser::Choice &choice);

    QDBusConnection m_bus;
    const FileChooser::Target m_target;
    FileChooser::Completion m_completion;
    FileChooser &m_otherwise;
    QString m_path; // of the request on the bus; empty if there is none
    bool m_isAccepted = false;
    ScheduledCall m_otherChooser;
};
