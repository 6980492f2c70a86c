#pragma once

#include "Services/FileChooser.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

class QDBusMessage;

/// One request to the desktop's file chooser, from the question to the answer. Destroying it closes the
/// chooser.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    PortalRequest(QDBusConnection bus, FileChooser::Wanted wanted, FileChooser::Completion completion,
                  FileChooser &otherwise);
    ~PortalRequest() override;

    void send(const QString &parentWindow);

private Q_SLOTS:
    /// The signal of the bus that ends the request.
    void answered(uint response, const QVariantMap &results);

private:
    enum Response : uint { chosen = 0, cancelled = 1 };

    void accepted(const QString &handle);
    void refused();
    void listenTo(const QString &path);
    void finish(const FileChooser::Choice &choice);

    QDBusConnection m_bus;
    const FileChooser::Wanted m_wanted;
    FileChooser::Completion m_completion;
    FileChooser &m_otherwise;
    QString m_path; // of the request on the bus, empty when nothing is under way there
    ScheduledCall m_otherChooser;
};
