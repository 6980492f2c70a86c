#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QVariantMap>

/// The program under its name on the session bus, as desktops expect it: `Activate` brings its window to the
/// front. Only the first process owns the name; a second one, with another data folder, has none.
class ApplicationOnBus : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationOnBus(QObject *parent = nullptr);

    void connectTo(QDBusConnection bus);

Q_SIGNALS:
    void openRequested();
};

/// The names are those of the bus. Documents are not files, so to open some is to open the window.
class FreedesktopApplication : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit FreedesktopApplication(ApplicationOnBus &application);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &locations, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

private:
    ApplicationOnBus &m_application;
};
