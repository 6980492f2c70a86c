#include "support/TestProgram.h"
#include "writer/RandomActions.h"
#include "writer/RecordedRun.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

QList<Action> typed(const QString &letters)
{
    QList<Action> actions;
    for (const QChar letter : letters)
        actions.append({.kind = Action::Kind::type, .text = letter});
    return actions;
}

QString lettersOf(const QList<Action> &actions)
{
    QString letters;
    for (const Action &action : actions)
        letters += action.text;
    return letters;
}

QString shrunk(const QString &letters, const std::function<bool(const QString &)> &fails)
{
    const auto failsAsRun = [&](const QList<Action> &actions) { return fails(lettersOf(actions)); };
    return lettersOf(shrink(typed(letters), failsAsRun, 1'000));
}

} // namespace

class TestRecordedRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shrinksToTheActionsThatAreNeeded()
    {
        const auto fails = [](const QString &run) { return run.contains(u'c') && run.contains(u'k'); };
        QCOMPARE(shrunk(u"abcdefghijklmnop"_s, fails), u"ck"_s);
    }

    void keepsWhatDependsOnTheOrder()
    {
        const auto fails = [](const QString &run) { return run.contains(u'b') && run.endsWith(u"ea"_s); };
        QCOMPARE(shrunk(u"abcdea"_s, fails), u"bea"_s);
    }

    void asksOnlySoOften()
    {
        int asked = 0;
        const auto fails = [&](const QList<Action> &) { return ++asked < 0; };
        shrink(typed(u"abcdefgh"_s), fails, 3);
        QCOMPARE(asked, 3);
    }

    void readsBackWhatItWrote()
    {
        const QTemporaryDir folder;
        RecordedRun run{.startPages = u"code"_s, .actions = {}, .fault = u"page: lost\n- one\n+ other"_s};
        RandomActions random(7);
        for (int count = 0; count < 500; ++count)
            run.actions.append(random.next());
        writeRun(folder.filePath(u"run"_s), run);
        const auto read = readRun(folder.filePath(u"run"_s)).value();
        QCOMPARE(read.startPages, run.startPages);
        QCOMPARE(read.fault, run.fault);
        QCOMPARE(read.actions.size(), run.actions.size());
        for (qsizetype index = 0; index < run.actions.size(); ++index)
            QCOMPARE(lineOf(read.actions.at(index)), lineOf(run.actions.at(index)));
    }

    void sameSeedGivesSameActions()
    {
        RandomActions one(42);
        RandomActions other(42);
        for (int count = 0; count < 200; ++count)
            QCOMPARE(lineOf(one.next()), lineOf(other.next()));
    }
};

PELKO_TEST(TestRecordedRun)
#include "tst_RecordedRun.moc"
