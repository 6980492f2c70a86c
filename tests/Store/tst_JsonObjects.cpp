#include "Store/JsonObjects.h"
#include "support/HandwrittenFile.h"
#include "support/TestProgram.h"

#include <QByteArrayList>

namespace
{
constexpr ObjectLengths each = {.shortest = 0, .run = 0};

/// Returns the texts of the runs, without the characters for the brackets, or "nothing".
QByteArrayList runsIn(const QByteArray &text, const ObjectLengths &lengths = each, std::size_t start = 0)
{
    const auto runs = findObjects({text.constData(), std::size_t(text.size())}, start, lengths);
    if (!runs)
        return {"nothing"};
    QByteArrayList texts;
    for (const ObjectRun &run : *runs)
        texts += text.sliced(qsizetype(run.start) + 1, qsizetype(run.size) - 2).trimmed();
    return texts;
}
} // namespace

class TestJsonObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void objectsAreFoundWhereTheyLie_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArrayList>("objects");
        const auto add = [](const char *name, const QByteArray &text,
                            std::initializer_list<const char *> objects) {
            QByteArrayList written;
            for (const char *object : objects)
                written += inJson(object);
            QTest::newRow(name) << inJson(text) << written;
        };
        add("none", "[]", {});
        add("one", "[{}]", {"{}"});
        add("several", "[{},{},{}]", {"{}", "{}", "{}"});
        add("white space", " \t[\r\n{ } , {}\n] ", {"{ }", "{}"});
        add("nested", "[{'a':{'b':[{}]}},{}]", {"{'a':{'b':[{}]}}", "{}"});
        add("braces in text", "[{'}':'{'},{}]", {"{'}':'{'}", "{}"});
        add("escaped quote", "[{'a':'\\'}'},{}]", {"{'a':'\\'}'}", "{}"});
        add("escaped backslash", R"([{'a':'\\'},{'b':'\\\'}'}])", {R"({'a':'\\'})", R"({'b':'\\\'}'})"});
        add("empty text", "[{'':''}]", {"{'':''}"});
        add("not looked into", "[{x]}]", {"{x]}"});
    }

    void objectsAreFoundWhereTheyLie()
    {
        QFETCH(QByteArray, text);
        QTEST(runsIn(text), "objects");
    }

    void rejectsTextThatIsNoArrayOfObjects_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"",      " ",     "{}",       "[",      "]",      "[,]",   "[{}",          "[{},",
              "[{},]", "[,{}]", "[{},,{}]", "[{}{}]", "[{}]x",  "[{}],", "[{}][]",       "[{]",
              "[{{}]", "[1]",   "[[{}]]",   "[null]", "['{}']", "[{'}]", "[{'a':'\\'}]", "\f[]",
              "[\v{}]"})
            QTest::newRow(text) << inJson(text);
        QTest::newRow("NUL") << QByteArray("[\0]", 3);
    }

    void rejectsTextThatIsNoArrayOfObjects()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(runsIn(text), QByteArrayList{"nothing"});
    }

    void theArrayBeginsWhereItIsSaid()
    {
        QCOMPARE(runsIn("xy[{}]", each, 2), QByteArrayList{"{}"});
        QCOMPARE(runsIn("xy[{}]", each, 1), QByteArrayList{"nothing"});
        QCOMPARE(runsIn("[]", each, 2), QByteArrayList{"nothing"});
    }

    void anObjectThatIsTooShortIsAFault()
    {
        QCOMPARE(runsIn("[{ },{ }]", {.shortest = 3, .run = 0}), (QByteArrayList{"{ }", "{ }"}));
        QCOMPARE(runsIn("[{ },{}]", {.shortest = 3, .run = 0}), QByteArrayList{"nothing"});
    }

    void shortObjectsMakeRunsWithTheirNeighbours_data()
    {
        QTest::addColumn<std::size_t>("length");
        QTest::addColumn<QList<std::ptrdiff_t>>("objects");
        const auto add = [](std::size_t length, const QList<std::ptrdiff_t> &objects) {
            QTest::addRow("%d bytes", int(length)) << length << objects;
        };
        add(4, {1, 1, 1, 1});
        add(5, {2, 2});
        add(7, {2, 2});
        add(8, {3, 1});
        add(100, {4});
    }

    void shortObjectsMakeRunsWithTheirNeighbours()
    {
        QFETCH(std::size_t, length);
        QList<std::ptrdiff_t> objects;
        const auto runs = findObjects("[{},{},{},{}]", 0, {.shortest = 0, .run = length}).value();
        for (const ObjectRun &run : runs)
            objects += run.objects;
        QTEST(objects, "objects");
    }

    void aRunReachesFromOnePlaceForABracketToTheOther()
    {
        const std::vector<ObjectRun> expected{{.start = 1, .size = 5, .objects = 1},
                                              {.start = 6, .size = 4, .objects = 1}};
        QCOMPARE(findObjects(" [{ } ,{} ]", 0, each).value(), expected);
    }
};

PELKO_TEST(TestJsonObjects)
#include "tst_JsonObjects.moc"
