#include "Store/JsonObjects.h"
#include "support/HandwrittenFile.h"

#include <QByteArrayList>
#include <QTest>

namespace
{
constexpr std::size_t anyLength = 0;

/// The texts of the objects that are found, or "nothing".
QByteArrayList objectsIn(const QByteArray &text, std::size_t start = 0, std::size_t shortest = anyLength)
{
    const auto places = findObjects({text.constData(), std::size_t(text.size())}, start, shortest);
    if (!places)
        return {"nothing"};
    QByteArrayList objects;
    for (const ObjectPlace &place : *places)
        objects += text.sliced(qsizetype(place.start), qsizetype(place.size));
    return objects;
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
        add("escaped backslash", "[{'a':'\\\\'},{'b':'\\\\\\'}'}]", {"{'a':'\\\\'}", "{'b':'\\\\\\'}'}"});
        add("empty text", "[{'':''}]", {"{'':''}"});
        add("not looked into", "[{x]}]", {"{x]}"});
    }

    void objectsAreFoundWhereTheyLie()
    {
        QFETCH(QByteArray, text);
        QTEST(objectsIn(text), "objects");
    }

    void whatIsNoArrayOfObjectsIsNothing_data()
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

    void whatIsNoArrayOfObjectsIsNothing()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(objectsIn(text), QByteArrayList{"nothing"});
    }

    void theArrayBeginsWhereItIsSaid()
    {
        QCOMPARE(objectsIn("xy[{}]", 2), QByteArrayList{"{}"});
        QCOMPARE(objectsIn("xy[{}]", 1), QByteArrayList{"nothing"});
        QCOMPARE(objectsIn("[]", 2), QByteArrayList{"nothing"});
    }

    void anObjectThatIsTooShortIsAFault()
    {
        QCOMPARE(objectsIn("[{ },{ }]", 0, 3), (QByteArrayList{"{ }", "{ }"}));
        QCOMPARE(objectsIn("[{ },{}]", 0, 3), QByteArrayList{"nothing"});
    }
};

QTEST_APPLESS_MAIN(TestJsonObjects)
#include "tst_JsonObjects.moc"
