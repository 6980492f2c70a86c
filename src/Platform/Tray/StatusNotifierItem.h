#pragma once

#include "Platform/Tray/TrayIcon.h"
#include "Platform/Tray/TrayTypes.h"
#include "Timers/TrayIconState.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>

class Tray;

/// The tray item on the session bus: properties that hosts read, methods they call and signals that tell them
/// to read again. Icons are painted when a host asks for them. The names are those of the bus.
class StatusNotifierItem : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(TrayPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(TrayPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(TrayPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide CONSTANT)

public:
    explicit StatusNotifierItem(Tray &tray);

    void show(const TrayIconState &state);
    void setLabels(TrayLabels labels);

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return QStringLiteral("pelko"); }
    QString title() const { return QStringLiteral("Pelko"); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString noName() const { return {}; }
    TrayPixmaps noPixmap() const { return {}; }
    TrayPixmaps iconPixmap() const;
    TrayToolTip toolTip() const;
    bool isMenu() const { return false; }
    QDBusObjectPath menu() const;
    QString label() const { return m_state.label; }
    QString labelGuide() const { return QStringLiteral("00:00"); }

public Q_SLOTS:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void XAyatanaSecondaryActivate(uint timestamp);
    /// Called by hosts without menus; opens the panel instead.
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString &orientation);
    /// The activation token for the next window.
    void ProvideXdgActivationToken(const QString &token);

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString &status);
    void XAyatanaNewLabel(const QString &label, const QString &guide);

private:
    Tray &m_tray;
    TrayIconState m_state;
    TrayLabels m_labels = TrayLabels::ignored;
};
