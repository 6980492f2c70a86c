#include "Editor/SoftBreaks.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{
QString words(qsizetype size)
{
    return u"every word "_s.repeated(size / 11 + 1).first(size);
}

qsizetype longestParagraph(const QString &shown)
{
    qsizetype longest = 0;
    for (const QStringView paragraph : QStringTokenizer(shown, u'\n'))
        longest = std::max(longest, paragraph.size());
    return longest;
}

/// Returns whether every break is at a space, sorted and unique.
bool isSound(const SoftBreaks &breaks, const QString &text)
{
    const QList<qsizetype> &places = breaks.places();
    return std::ranges::all_of(places, [&text](qsizetype place) { return text.at(place) == u' '; }) &&
           std::ranges::adjacent_find(places, std::ranges::greater_equal()) == places.end();
}
} // namespace

class TestSoftBreaks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOrdinaryTextHasNone()
    {
        SoftBreaks breaks;
        const QString text = words(SoftBreaks::longText);
        breaks.reset(text);
        QCOMPARE(breaks.applied(text), text);
    }

    void aLongLineIsBrokenAtSpaces()
    {
        SoftBreaks breaks;
        const QString text = words(1'000'000);
        breaks.reset(text);
        QVERIFY(isSound(breaks, text));
        QVERIFY(longestParagraph(breaks.applied(text)) <= 8'000);
        QCOMPARE(breaks.applied(text).replace(u'\n', u' '), text);
    }

    void breaksOfTheBeginningAreThoseOfTheText()
    {
        SoftBreaks breaks;
        const QString text = words(1'000'000);
        breaks.reset(text);
        QCOMPARE(breaks.applied(text.first(100'000)), breaks.applied(text).first(100'000));
    }

    void linesThatAreShortEnoughStay()
    {
        SoftBreaks breaks;
        const QString text = (words(7'000) + u'\n').repeated(20);
        breaks.reset(text);
        QVERIFY(breaks.places().isEmpty());
    }

    void aLineWithoutSpacesStays()
    {
        SoftBreaks breaks;
        breaks.reset(QString(200'000, u'a'));
        QVERIFY(breaks.places().isEmpty());
    }

    void breaksOutsideAChangeStay()
    {
        SoftBreaks breaks;
        QString text = words(100'000);
        breaks.reset(text);
        const QList<qsizetype> before = breaks.places();
        const qsizetype middle = before.at(5) + 10;
        const TextChange change{.position = middle, .removed = {}, .inserted = u"xyz"_s};
        text = change.applied(text);
        breaks.follow(change, text);
        QCOMPARE(breaks.places().first(6), before.first(6));
        QCOMPARE(breaks.places().at(6), before.at(6) + 3);
        QVERIFY(isSound(breaks, text));
    }

    void aTextThatBecomesShortLosesThem()
    {
        SoftBreaks breaks;
        QString text = words(60'000);
        breaks.reset(text);
        const TextChange change{.position = 100, .removed = text.sliced(100), .inserted = {}};
        text = change.applied(text);
        breaks.follow(change, text);
        QVERIFY(breaks.places().isEmpty());
    }

    void knowsALongWord_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isLong");
        QTest::newRow("none") << QString() << false;
        QTest::newRow("words") << words(10'000) << false;
        QTest::newRow("among words") << words(1'000) + QString(3'000, u'a') + words(1'000) << true;
        QTest::newRow("ideographs") << QString(10'000, u'本') << false;
        QTest::newRow("hyphens") << u"a-b"_s.repeated(3'000) << false;
    }

    void knowsALongWord()
    {
        QFETCH(QString, text);
        QTEST(SoftBreaks::hasLongWord(text), "isLong");
    }

    void manyChangesKeepParagraphsShort()
    {
        SoftBreaks breaks;
        QRandomGenerator random(7);
        QString text = words(80'000);
        breaks.reset(text);
        for (int round = 0; round < 300; ++round) {
            const qsizetype position = random.bounded(text.size());
            const qsizetype count = std::min<qsizetype>(random.bounded(3'000), text.size() - position);
            QString inserted = words(random.bounded(4'000));
            if (round % 3 == 0)
                inserted.append(u'\n');
            const TextChange change{position, text.sliced(position, count), inserted};
            text = change.applied(text);
            breaks.follow(change, text);
            QVERIFY(isSound(breaks, text));
            if (SoftBreaks::isLong(text))
                QVERIFY(longestParagraph(breaks.applied(text)) <= 20'000);
        }
    }
};

PELKO_TEST(TestSoftBreaks)
#include "tst_SoftBreaks.moc"
