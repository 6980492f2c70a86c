#include "Theme/PelkoVoice.h"
#include "support/TestProgram.h"

#include <array>
#include <csignal>
#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestPelkoVoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoLinesAlternate()
    {
        const QStringList pool{u"a"_s, u"b"_s};
        QString last = PelkoVoice::pick(pool, u"two"_s);
        for (int round = 0; round < 100; ++round) {
            const QString next = PelkoVoice::pick(pool, u"two"_s);
            QVERIFY(next != last);
            last = next;
        }
    }

    void oneLineIsAlwaysPicked()
    {
        for (int round = 0; round < 10; ++round)
            QCOMPARE(PelkoVoice::pick({u"only"_s}, u"one"_s), u"only"_s);
    }

    void aFirstPickMayBeAnyLine()
    {
        const QStringList pool{u"0"_s, u"1"_s, u"2"_s};
        QSet<QString> picked;
        for (int key = 0; key < 200; ++key) // all but one in 10^34 runs find each line
            picked.insert(PelkoVoice::pick(pool, u"fresh%1"_s.arg(key)));
        QCOMPARE(picked.size(), 3);
    }

    void noLineOfALongPoolIsRepeatedAtOnce()
    {
        const QStringList &pool = PelkoVoice::greetingPool();
        QString last;
        for (int round = 0; round < 1000; ++round) {
            const QString next = PelkoVoice::pick(pool, u"long"_s);
            QVERIFY(next != last);
            last = next;
        }
    }

    void linesAreEquallyLikely()
    {
        const QStringList pool{u"0"_s, u"1"_s, u"2"_s};
        std::array<int, 3> counts{};
        constexpr int rounds = 30'000;
        for (int round = 0; round < rounds; ++round)
            ++counts[PelkoVoice::pick(pool, u"fair"_s).toUInt()];
        for (const int count : counts)
            QVERIFY(std::abs(count - rounds / 3) < 500); // more than ten standard deviations
    }

    void keysDoNotDisturbEachOther()
    {
        const QStringList pool{u"a"_s, u"b"_s};
        const QString last = PelkoVoice::pick(pool, u"error"_s);
        const QStringList three{u"x"_s, u"y"_s, u"z"_s};
        for (int round = 0; round < 7; ++round)
            PelkoVoice::pick(three, u"emptyNotes"_s);
        QVERIFY(PelkoVoice::pick(pool, u"error"_s) != last);
    }

    void aKeyKeepsItsIndexWhenThePoolChanges()
    {
        const QString last = PelkoVoice::pick({u"0"_s, u"1"_s}, u"shared"_s);
        const QString next = PelkoVoice::pick({u"zero"_s, u"one"_s}, u"shared"_s);
        QCOMPARE(next, last == u"0"_s ? u"one"_s : u"zero"_s);
    }

    void thePoolsHaveTheirLines()
    {
        QCOMPARE(PelkoVoice::errorPool(),
                 (QStringList{u"Something broke. Not your fault. Probably."_s,
                              u"That didn't work. Give it a second and try again before we both panic."_s,
                              u"Nope. Something went wrong. Try again."_s}));
        QCOMPARE(PelkoVoice::emptyNotesPool(),
                 (QStringList{u"Nothing here. That's either zen or procrastination. You know which one."_s,
                              u"This page is emptier than a gym on January 15th."_s,
                              u"You opened the app. That's the hard part. Now type something."_s,
                              u"Blank page. Infinite potential. Or you could just stare at it. Your call."_s,
                              u"Even my crackhead brain had ideas at 3 AM. You got nothing?"_s,
                              u"The page is waiting. Don't make it weird."_s,
                              u"Write something or don't. But you opened the app for a reason."_s}));
        QCOMPARE(PelkoVoice::greetingPool(),
                 (QStringList{u"Let's get to work."_s, u"You opened the app. That's 90% of the battle."_s,
                              u"Your competition is still asleep."_s, u"Ship something today."_s,
                              u"Stop thinking. Start typing."_s, u"The path illuminates as you walk it."_s,
                              u"Don't be soft. Get strong."_s, u"93 fuel. Let's go."_s,
                              u"It's sunflower season, baby."_s, u"My angel's with me, dog."_s,
                              u"That idea in your head is worthless until it's on this screen."_s,
                              u"Nobody's coming to save you. That's the good news."_s}));
    }

    void anEmptyPoolStopsTheProcess()
    {
        const pid_t child = fork();
        if (child == 0) {
            std::freopen("/dev/null", "w", stderr);
            std::signal(SIGABRT, SIG_DFL); // not the handler of the test program
            PelkoVoice::pick({}, u"empty"_s);
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status) || WEXITSTATUS(status) != 0);
    }
};

PELKO_TEST(TestPelkoVoice)
#include "tst_PelkoVoice.moc"
