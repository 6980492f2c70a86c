#include "Platform/Calendar/EvolutionSources.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>

using namespace Qt::StringLiterals;

namespace
{
using Properties = QVariantMap;
using Interfaces = QMap<QString, Properties>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

constexpr int deepestAccount = 8; // a source may name itself as its parent

struct Source {
    bool isCalendar = false;
    bool isEnabled = true;
    QString parent = {};
};

Source parse(const QString &text)
{
    Source source;
    bool isGeneral = false;
    for (const QStringView whole : QStringView(text).split(u'\n')) {
        const QStringView line = whole.trimmed();
        if (line.startsWith(u'[')) {
            isGeneral = line == "[Data Source]"_L1;
            source.isCalendar = source.isCalendar || line == "[Calendar]"_L1;
        } else if (isGeneral && line.startsWith("Enabled="_L1)) {
            source.isEnabled = line.mid(8) == "true"_L1;
        } else if (isGeneral && line.startsWith("Parent="_L1)) {
            source.parent = line.mid(7).toString();
        }
    }
    return source;
}
} // namespace

EvolutionSources evolutionSources(const QDBusMessage &answer)
{
    EvolutionSources sources;
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{oa{sa{sv}}}"_L1)
        return sources;
    const auto objects = qdbus_cast<Objects>(answer.arguments().first());
    for (const Interfaces &interfaces : objects) {
        const Properties source = interfaces.value(u"org.gnome.evolution.dataserver.Source"_s);
        sources.insert(source.value(u"UID"_s).toString(), source.value(u"Data"_s).toString());
    }
    return sources;
}

QStringList enabledCalendars(const EvolutionSources &sources)
{
    QStringList calendars;
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        Source known = parse(source.value());
        bool isEnabled = known.isCalendar;
        for (int depth = 0; isEnabled && depth < deepestAccount; ++depth) {
            isEnabled = known.isEnabled;
            if (!sources.contains(known.parent))
                break;
            known = parse(sources.value(known.parent));
        }
        if (isEnabled)
            calendars << source.key();
    }
    return calendars;
}
