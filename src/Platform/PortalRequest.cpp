#include "Platform/PortalRequest.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace
{
const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString chooserInterface = u"org.freedesktop.portal.FileChooser"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
constexpr uint successResponse = 0; // 1: cancelled; 2: ended in some other way, with GTK also by Escape

/// A filter pattern in the portal's format (us); type 1 is a media type.
struct Pattern {
    uint kind = 1;
    QString value;
};

struct Filter {
    QString name;
    QList<Pattern> patterns;
};

// NOLINTBEGIN(bugprone-return-const-ref-from-parameter): the bus wants its operators in this form

QDBusArgument &operator<<(QDBusArgument &argument, const Pattern &pattern)
{
    argument.beginStructure();
    argument << pattern.kind << pattern.value;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Pattern &pattern)
{
    argument.beginStructure();
    argument >> pattern.kind >> pattern.value;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const Filter &filter)
{
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Filter &filter)
{
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}

// NOLINTEND(bugprone-return-const-ref-from-parameter)

QString titleFor(FileChooser::Target target)
{
    return target == FileChooser::Target::folder
               ? QCoreApplication::translate("FileChooser", "Export to a folder")
               : QCoreApplication::translate("FileChooser", "Add image");
}

QVariantMap optionsFor(FileChooser::Target target, const QString &token)
{
    QVariantMap options{{u"handle_token"_s, token}, {u"modal"_s, true}, {u"multiple"_s, false}};
    if (target == FileChooser::Target::folder) {
        options.insert(u"directory"_s, true);
        options.insert(u"accept_label"_s, QCoreApplication::translate("FileChooser", "Export here"));
        return options;
    }
    qDBusRegisterMetaType<Pattern>();
    qDBusRegisterMetaType<QList<Pattern>>();
    qDBusRegisterMetaType<Filter>();
    qDBusRegisterMetaType<QList<Filter>>();
    const QList<Filter> filters{{.name = QCoreApplication::translate("FileChooser", "Images"),
                                 .patterns = {{.value = u"image/*"_s}}}};
    options.insert(u"filters"_s, QVariant::fromValue(filters));
    return options;
}

/// A file name is bytes, which may not be valid text; the percent-encoded URI keeps them.
QList<std::filesystem::path> filesOf(const QStringList &addresses)
{
    QList<std::filesystem::path> files;
    for (const QString &address : addresses) {
        if (address.startsWith("file:///"_L1))
            files << QByteArray::fromPercentEncoding(address.sliced(7).toUtf8()).toStdString();
    }
    return files;
}

QString nextToken()
{
    static int count = 0;
    return u"pelko%1"_s.arg(++count);
}

QString requestPath(const QDBusConnection &bus, const QString &token)
{
    const QString sender = bus.baseService().sliced(1).replace(u'.', u'_');
    return portalPath + u"/request/"_s + sender + u'/' + token;
}
} // namespace

PortalRequest::PortalRequest(QDBusConnection bus, FileChooser::Target target,
                             FileChooser::Completion completion, FileChooser &otherwise)
    : m_bus(std::move(bus))
    , m_target(target)
    , m_completion(std::move(completion))
    , m_otherwise(otherwise)
{
}

PortalRequest::~PortalRequest()
{
    close();
}

void PortalRequest::send(const QString &parentWindow, std::chrono::milliseconds replyTimeout)
{
    if (!m_bus.isConnected()) {
        QMetaObject::invokeMethod(this, &PortalRequest::refused, Qt::QueuedConnection);
        return;
    }
    const QString token = nextToken();
    listenTo(requestPath(m_bus, token));
    const auto *portal =
        new QDBusServiceWatcher(portalService, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(portal, &QDBusServiceWatcher::serviceUnregistered, this, &PortalRequest::portalEnded);
    auto question =
        QDBusMessage::createMethodCall(portalService, portalPath, chooserInterface, u"OpenFile"_s);
    question << parentWindow << titleFor(m_target) << optionsFor(m_target, token);
    auto *reply = new QDBusPendingCallWatcher(m_bus.asyncCall(question, int(replyTimeout.count())), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        const QDBusPendingReply<QDBusObjectPath> handle = *reply;
        reply->deleteLater();
        handle.isError() ? refused() : accepted(handle.value().path());
    });
}

void PortalRequest::accepted(const QString &handle)
{
    m_isAccepted = true;
    if (!m_path.isEmpty() && handle != m_path) // early versions of the service choose the handle themselves
        listenTo(handle);
}

void PortalRequest::refused()
{
    close(); // The request may have been accepted although the reply is late.
    m_otherChooser =
        m_otherwise.choose(m_target, [this](const FileChooser::Choice &choice) { finish(choice); });
}

void PortalRequest::listenTo(const QString &path)
{
    m_path = path;
    m_bus.connect(portalService, path, requestInterface, u"Response"_s, this,
                  SLOT(answered(uint, QVariantMap)));
}

void PortalRequest::answered(uint response, const QVariantMap &results)
{
    if (m_path.isEmpty()) // cancelled before the reply
        return;
    m_path.clear();
    finish(response == successResponse ? filesOf(results.value(u"uris"_s).toStringList())
                                       : QList<std::filesystem::path>());
}

void PortalRequest::portalEnded()
{
    // Before it has accepted the request, the call itself fails.
    if (!m_isAccepted || m_path.isEmpty())
        return;
    m_path.clear();
    finish(FileError(FileError::Problem::chooserEnded));
}

void PortalRequest::close()
{
    const QString path = std::exchange(m_path, {});
    if (path.isEmpty())
        return;
    auto message = QDBusMessage::createMethodCall(portalService, path, requestInterface, u"Close"_s);
    message.setAutoStartService(false);
    m_bus.send(message);
}

void PortalRequest::finish(const FileChooser::Choice &choice)
{
    // The completion may delete this request; keep a copy of it on the stack.
    const FileChooser::Completion completion = m_completion;
    completion(choice);
}
