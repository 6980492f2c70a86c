#include "Theme/PelkoVoice.h"

#include <QHash>
#include <QRandomGenerator>

#include <random>

using namespace Qt::StringLiterals;

QString PelkoVoice::pick(const QStringList &pool, const QString &key)
{
    static QHash<QString, qsizetype> lastIndices;
    if (pool.isEmpty())
        qFatal("PelkoVoice: the pool \"%s\" is empty.", qUtf8Printable(key));

    // Not QRandomGenerator::bounded: it scales a raw value, which favours some lines a little.
    std::uniform_int_distribution<qsizetype> anyIndex(0, pool.size() - 1);
    const qsizetype last = lastIndices.value(key, -1);
    qsizetype index = anyIndex(*QRandomGenerator::system());
    while (pool.size() > 1 && index == last)
        index = anyIndex(*QRandomGenerator::system());
    lastIndices.insert(key, index);
    return pool[index];
}

const QStringList &PelkoVoice::errorPool()
{
    static const QStringList pool{
        u"Something broke. Not your fault. Probably."_s,
        u"That didn't work. Give it a second and try again before we both panic."_s,
        u"Nope. Something went wrong. Try again."_s,
    };
    return pool;
}

const QStringList &PelkoVoice::emptyNotesPool()
{
    static const QStringList pool{
        u"Nothing here. That's either zen or procrastination. You know which one."_s,
        u"This page is emptier than a gym on January 15th."_s,
        u"You opened the app. That's the hard part. Now type something."_s,
        u"Blank page. Infinite potential. Or you could just stare at it. Your call."_s,
        u"Even my crackhead brain had ideas at 3 AM. You got nothing?"_s,
        u"The page is waiting. Don't make it weird."_s,
        u"Write something or don't. But you opened the app for a reason."_s,
    };
    return pool;
}

const QStringList &PelkoVoice::greetingPool()
{
    static const QStringList pool{
        u"Let's get to work."_s,
        u"You opened the app. That's 90% of the battle."_s,
        u"Your competition is still asleep."_s,
        u"Ship something today."_s,
        u"Stop thinking. Start typing."_s,
        u"The path illuminates as you walk it."_s,
        u"Don't be soft. Get strong."_s,
        u"93 fuel. Let's go."_s,
        u"It's sunflower season, baby."_s,
        u"My angel's with me, dog."_s,
        u"That idea in your head is worthless until it's on this screen."_s,
        u"Nobody's coming to save you. That's the good news."_s,
    };
    return pool;
}
