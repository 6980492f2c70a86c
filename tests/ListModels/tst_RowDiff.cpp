#include "ListModels/RowDiff.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{

QList<QChar> rows(const QString &letters)
{
    return QList<QChar>(letters.begin(), letters.end());
}

/// Applies the steps to a list; inserted rows are taken from `after`. Returns std::nullopt if a step is out
/// of bounds or moves nothing.
std::optional<QList<QChar>> applied(QList<QChar> list, const std::vector<RowChange> &steps,
                                    const QList<QChar> &after)
{
    const auto isInside = [&list](qsizetype row) { return row >= 0 && row < list.size(); };
    for (const RowChange &step : steps) {
        switch (step.kind) {
        case RowChange::Kind::remove:
            if (step.count < 1 || !isInside(step.row) || !isInside(step.row + step.count - 1))
                return std::nullopt;
            list.remove(step.row, step.count);
            break;
        case RowChange::Kind::move:
            if (step.count != 1 || step.row == step.destination || !isInside(step.row) ||
                !isInside(step.destination))
                return std::nullopt;
            list.move(step.row, step.destination);
            break;
        case RowChange::Kind::insert:
            if (step.count < 1 || step.row > list.size() || step.row + step.count > after.size())
                return std::nullopt;
            for (qsizetype row = step.row; row < step.row + step.count; ++row)
                list.insert(row, after.at(row));
            break;
        }
    }
    return list;
}

/// "-1x2" removes two rows from row 1 on, "0>3" moves row 0 to row 3, "+2" inserts row 2.
QString written(const std::vector<RowChange> &steps)
{
    QStringList words;
    for (const RowChange &step : steps) {
        const QString count = step.count == 1 ? QString() : u'x' + QString::number(step.count);
        const QString row = QString::number(step.row);
        switch (step.kind) {
        case RowChange::Kind::remove:
            words << u'-' + row + count;
            break;
        case RowChange::Kind::move:
            words << row + u'>' + QString::number(step.destination) + count;
            break;
        case RowChange::Kind::insert:
            words << u'+' + row + count;
            break;
        }
    }
    return words.join(u' ');
}

qsizetype movesIn(const std::vector<RowChange> &steps)
{
    return std::ranges::count(steps, RowChange::Kind::move, &RowChange::kind);
}

/// Returns the smallest possible number of moves: all rows but those of a longest increasing subsequence,
/// found by a slow and simple algorithm.
qsizetype fewestMoves(const QList<QChar> &before, const QList<QChar> &after)
{
    QList<qsizetype> places;
    for (const QChar letter : before)
        if (after.contains(letter))
            places << after.indexOf(letter);
    QList<qsizetype> longest(places.size(), 1); // length of the increasing subsequence that ends here
    for (qsizetype end = 0; end < places.size(); ++end)
        for (qsizetype start = 0; start < end; ++start)
            if (places[start] < places[end])
                longest[end] = std::max(longest[end], longest[start] + 1);
    return places.isEmpty() ? 0 : places.size() - *std::ranges::max_element(longest);
}

QList<QChar> shuffledPart(QRandomGenerator &random, int universe)
{
    QList<QChar> letters;
    const bool keepsOrder = random.bounded(3) == 0;
    for (int letter = 0; letter < universe; ++letter)
        if (random.bounded(4) > 0)
            letters << QChar(u'A' + letter);
    if (!keepsOrder)
        std::ranges::shuffle(letters, random);
    return letters;
}

} // namespace

class TestRowDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStepsLeadFromOneListToTheOther_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("steps");
        const auto addRow = [](const char *name, const QString &before, const QString &after,
                               const QString &steps) { QTest::newRow(name) << before << after << steps; };
        addRow("nothing", u""_s, u""_s, u""_s);
        addRow("equal", u"ABC"_s, u"ABC"_s, u""_s);
        addRow("fill", u""_s, u"ABC"_s, u"+0x3"_s);
        addRow("empty", u"ABC"_s, u""_s, u"-0x3"_s);
        addRow("insert in the middle", u"ABFG"_s, u"ABCDEFG"_s, u"+2x3"_s);
        addRow("insert at the start", u"BC"_s, u"ABC"_s, u"+0"_s);
        addRow("insert at the end", u"AB"_s, u"ABC"_s, u"+2"_s);
        addRow("insert in two places", u"BD"_s, u"ABCD"_s, u"+0 +2"_s);
        addRow("remove in the middle", u"ABCDEFG"_s, u"ABFG"_s, u"-2x3"_s);
        addRow("remove in two places, last first", u"ABCD"_s, u"BD"_s, u"-2 -0"_s);
        addRow("replace", u"ABC"_s, u"AXC"_s, u"-1 +1"_s);
        addRow("replace all", u"ABC"_s, u"XYZ"_s, u"-0x3 +0x3"_s);
        addRow("drag the first below the third", u"ABCD"_s, u"BCAD"_s, u"0>2"_s);
        addRow("drag the last above the second", u"ABCD"_s, u"ADBC"_s, u"3>1"_s);
        addRow("drag down to the end", u"ABCD"_s, u"BCDA"_s, u"0>3"_s);
        addRow("drag up to the start", u"ABCD"_s, u"DABC"_s, u"3>0"_s);
        addRow("remove a heading, then move a banner", u"ABCD"_s, u"DBC"_s, u"-0 2>0"_s);
        addRow("move and insert", u"ABC"_s, u"CABX"_s, u"2>0 +3"_s);
        addRow("remove, move and insert", u"ABCDE"_s, u"XEBCY"_s, u"-3 -0 2>0 +0 +4"_s);
    }

    void theStepsLeadFromOneListToTheOther()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        QFETCH(const QString, steps);
        const auto found = RowDiff::between(rows(before), rows(after));
        QCOMPARE(written(found.value()), steps);
        QCOMPARE(applied(rows(before), *found, rows(after)), rows(after));
    }

    void swappedNeighboursAreOneMove()
    {
        const auto steps = RowDiff::between(rows(u"ABCD"_s), rows(u"ACBD"_s));
        QCOMPARE(steps.value().size(), 1u);
        QCOMPARE(applied(rows(u"ABCD"_s), *steps, rows(u"ACBD"_s)), rows(u"ACBD"_s));
    }

    void repeatedIdsGiveNoSteps()
    {
        QCOMPARE(RowDiff::between(rows(u"AB"_s), rows(u"AA"_s)), std::nullopt);
        QCOMPARE(RowDiff::between(rows(u"AA"_s), rows(u"AB"_s)), std::nullopt);
        QCOMPARE(RowDiff::between(rows(u"AAB"_s), rows(u"BAA"_s)), std::nullopt);
        QCOMPARE(RowDiff::between(rows(u""_s), rows(u"AA"_s)), std::nullopt);
    }

    void repeatedIdsThatAreAllRemovedDoNoHarm()
    {
        const auto steps = RowDiff::between(rows(u"AABA"_s), rows(u"B"_s));
        QCOMPARE(applied(rows(u"AABA"_s), steps.value(), rows(u"B"_s)), rows(u"B"_s));
    }

    void anUnchangedListWithRepeatedIdsNeedsNoSteps()
    {
        QCOMPARE(RowDiff::between(rows(u"ABA"_s), rows(u"ABA"_s)), std::vector<RowChange>{});
    }

    void anyListLeadsToAnyOtherWithTheFewestMoves()
    {
        QRandomGenerator random(20'010'101);
        for (int round = 0; round < 3000; ++round) {
            const int universe = random.bounded(1, 24);
            const QList<QChar> before = shuffledPart(random, universe);
            const QList<QChar> after = shuffledPart(random, universe);
            const auto steps = RowDiff::between(before, after);
            const QString place = u"round %1: %2 to %3: %4"_s.arg(round).arg(
                QString(before.constData(), before.size()), QString(after.constData(), after.size()),
                written(steps.value()));
            QVERIFY2(applied(before, *steps, after) == after, qPrintable(place));
            QVERIFY2(movesIn(*steps) == fewestMoves(before, after), qPrintable(place));
        }
    }

    void rowsThatStayAreNeverRemovedAndInsertedAgain()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 500; ++round) {
            const QList<QChar> before = shuffledPart(random, 12);
            const QList<QChar> after = shuffledPart(random, 12);
            const auto isKept = [&](QChar letter) { return after.contains(letter); };
            qsizetype removed = 0;
            const auto steps = RowDiff::between(before, after);
            for (const RowChange &step : steps.value())
                removed += step.kind == RowChange::Kind::remove ? step.count : 0;
            QCOMPARE(removed, before.size() - std::ranges::count_if(before, isKept));
        }
    }
};

PELKO_TEST(TestRowDiff)
#include "tst_RowDiff.moc"
