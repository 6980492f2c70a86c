#include "Store/AppState.h"
#include "Timers/RecentSparks.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument spark(const QString &text, Timestamp createdAt, Space space = Space::ideas)
{
    PelkoDocument document(space, createdAt);
    document.blocks = {Block(BlockType::textSmall, text)};
    return document;
}

QString texts(const RecentSparks &recent)
{
    QStringList found;
    for (const RecentSpark &card : recent.cards)
        found.append(card.text);
    return found.join(' '_L1);
}
} // namespace

class TestRecentSparks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newestComeFirstAndOnlyAFew()
    {
        const QList documents{spark(u"c"_s, 3), spark(u"a"_s, 1), spark(u"f"_s, 6),
                              spark(u"b"_s, 2), spark(u"e"_s, 5), spark(u"d"_s, 4)};
        const RecentSparks recent = recentSparks(documents, 4, std::nullopt);

        QCOMPARE(texts(recent), u"f e d c"_s);
        QCOMPARE(recent.total, 6);
    }

    void ofTheSameInstantTheFirstInTheListComesFirst()
    {
        QList<PelkoDocument> documents;
        for (const QChar letter : u"ABCDEFGHIJ"_s)
            documents.append(spark(letter, 1));

        QCOMPARE(texts(recentSparks(documents, 4, std::nullopt)), u"A B C D"_s);
    }

    void otherSpacesAreNoSparks()
    {
        const QList documents{spark(u"work"_s, 9, Space::work), spark(u"idea"_s, 1),
                              spark(u"journal"_s, 8, Space::journal)};
        const RecentSparks recent = recentSparks(documents, 4, std::nullopt);

        QCOMPARE(texts(recent), u"idea"_s);
        QCOMPARE(recent.total, 1);
    }

    void marksTheOneThatWasJustCaught()
    {
        const QList documents{spark(u"old"_s, 1), spark(u"new"_s, 2)};
        const RecentSparks recent = recentSparks(documents, 4, documents[1].id);

        QVERIFY(recent.cards[0].isNew);
        QVERIFY(!recent.cards[1].isNew);
    }

    void sparkWithoutBlocksHasNoText()
    {
        PelkoDocument bare(Space::ideas, 1);
        bare.blocks.clear();

        QCOMPARE(recentSparks({bare}, 4, std::nullopt).cards[0].text, QString());
    }

    void ofABookOnlyTheBeginningIsShown()
    {
        const QList documents{spark(QString(1'000'000, u'x'), 1)};

        QCOMPARE(recentSparks(documents, 4, std::nullopt).cards[0].text, QString(300, u'x'));
        QCOMPARE(sparkText(documents[0]).size(), 1'000'000);
    }

    void agreesWithTheStore()
    {
        ManualScheduler scheduler;
        ManualClock clock;
        ManualDocumentFile file;
        AppState appState(scheduler, clock, file);
        for (int i = 0; i < 50; ++i) {
            clock.time = 1000 + i * 37 % 17; // several in the same instant
            appState.captureSpark(QString::number(i));
        }
        const QList<PelkoDocument> sparks = appState.sparks();
        const RecentSparks recent = recentSparks(appState.documents(), 4, std::nullopt);

        QCOMPARE(recent.total, sparks.size());
        for (qsizetype i = 0; i < recent.cards.size(); ++i)
            QCOMPARE(recent.cards[i].id, sparks[i].id);
    }
};

PELKO_TEST(TestRecentSparks)
#include "tst_RecentSparks.moc"
