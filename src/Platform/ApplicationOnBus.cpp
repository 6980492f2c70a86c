#include "Platform/ApplicationOnBus.h"

using namespace Qt::StringLiterals;

ApplicationOnBus::ApplicationOnBus(QObject *parent) : QObject(parent)
{
    new FreedesktopApplication(*this);
}

void ApplicationOnBus::connectTo(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    bus.registerObject(u"/app/pelko/Pelko"_s, this, QDBusConnection::ExportAdaptors);
    bus.registerService(u"app.pelko.Pelko"_s);
}

FreedesktopApplication::FreedesktopApplication(ApplicationOnBus &application)
    : QDBusAbstractAdaptor(&application)
    , m_application(application)
{
}

void FreedesktopApplication::Activate(const QVariantMap &platformData)
{
    const QByteArray token = platformData.value(u"activation-token"_s).toString().toUtf8();
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    Q_EMIT m_application.openRequested();
}

void FreedesktopApplication::Open(const QStringList &, const QVariantMap &platformData)
{
    Activate(platformData);
}

void FreedesktopApplication::ActivateAction(const QString &, const QVariantList &,
                                            const QVariantMap &platformData)
{
    Activate(platformData);
}
