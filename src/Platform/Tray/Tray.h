#pragma once

#include "Timers/TrayIconState.h"

#include <QDBusConnection>
#include <QObject>
#include <QPoint>

#include <memory>

class StatusNotifierItem;
class TrayMenu;

/// The program's StatusNotifierItem on the session bus. It registers itself with each new owner of the
/// watcher's name, and is quiet while there is none. Nothing here waits for the bus.
class Tray : public QObject
{
    Q_OBJECT

public:
    static const QString itemPath;
    static const QString menuPath;

    explicit Tray(QObject *parent = nullptr);

    /// Whether a host shows the item.
    bool isPresent() const { return m_isPresent; }

    /// Offers the item on `bus`, which need not be connected.
    void connectTo(const QDBusConnection &bus);
    void show(const TrayIconState &state);

Q_SIGNALS:
    void isPresentChanged();
    /// The item was clicked. `place` is the position on the desktop in device-independent pixels.
    void activated(const QPoint &place);
    /// The item was clicked with the middle button.
    void secondaryActivated();
    void chosen(TrayMenuRow::Command command);

private Q_SLOTS:
    void askForHost();
    /// Called when the watcher or the bus has gone.
    void withdraw();

private:
    void registerWithWatcher();
    void askWhetherLabelsAreDrawn();
    void setPresent(bool present);

    QDBusConnection m_bus;
    StatusNotifierItem *m_item;
    QObject *m_menuObject;
    TrayMenu *m_menu;
    std::unique_ptr<QObject>
        m_registration; // owns the calls to the current watcher; null while there is none
    bool m_isRegistered = false;
    QString m_serviceName;
    bool m_isPresent = false;
};
