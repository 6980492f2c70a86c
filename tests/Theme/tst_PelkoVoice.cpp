#include "Theme/PelkoVoice.h"
#include "support/TestProgram.h"

#include <array>

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
        QCOMPARE(PelkoVoice::errorPool().size(), 3);
        QCOMPARE(PelkoVoice::emptyNotesPool().size(), 7);
        QCOMPARE(PelkoVoice::greetingPool().size(), 12);
        QCOMPARE(PelkoVoice::errorPool().first(), u"Something broke. Not your fault. Probably."_s);
        QCOMPARE(PelkoVoice::emptyNotesPool().last(),
                 u"Write something or don't. But you opened the app for a reason."_s);
        QCOMPARE(PelkoVoice::greetingPool().last(), u"Nobody's coming to save you. That's the good news."_s);
    }
};

PELKO_TEST(TestPelkoVoice)
#include "tst_PelkoVoice.moc"
