#include "Views/Editor/PointerSelection.h"

#include "Editor/EditorTest.h"
#include "PageOfFields.h"

#include <QMouseEvent>
#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;

class TestPointerSelection : public EditorTest
{
    Q_OBJECT

    std::unique_ptr<PageOfFields> page;
    std::unique_ptr<PointerSelection> pointer;

    void open(const QList<Block> &blocks)
    {
        edit(blocks);
        page = std::make_unique<PageOfFields>(*editor);
        pointer = std::make_unique<PointerSelection>(page->fields);
        QVERIFY(page->isShown());
    }

    /// Returns the position behind the text of that row.
    static QPointF endOfRow(int row) { return {390, (row + 0.5) * PageOfFields::height}; }

    static QMouseEvent mouse(QEvent::Type type, QPointF point, Qt::MouseButton button = Qt::LeftButton,
                             Qt::KeyboardModifiers modifiers = {})
    {
        const bool isDown = type != QEvent::MouseButtonRelease;
        return {type,
                point,
                point,
                type == QEvent::MouseMove ? Qt::NoButton : button,
                isDown ? button : Qt::NoButton,
                modifiers};
    }

    bool press(char letter, QPointF point, Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event = mouse(QEvent::MouseButtonPress, point, Qt::LeftButton, modifiers);
        return pointer->pressed(page->field(letter), event);
    }

    bool move(char letter, QPointF point)
    {
        return pointer->moved(page->field(letter), mouse(QEvent::MouseMove, point));
    }

    QString selected() const
    {
        const auto &selection = editor->selection()->selection();
        if (!selection)
            return {};
        const auto tell = [](const PagePosition &place) {
            return focus(FocusTarget{.address = place.passage, .caret = place.offset});
        };
        return tell(selection->anchor) + u" to "_s + tell(selection->head);
    }

private Q_SLOTS:
    void cleanup()
    {
        pointer.reset();
        page.reset();
        close();
    }

    void withinAFieldTheFieldSelects()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        QVERIFY(!press('A', {1, 5}));
        QVERIFY(!move('A', endOfRow(0)));
        QVERIFY(!pointer->released());
        QCOMPARE(selected(), QString());
    }

    void aDragIntoAnotherFieldSelectsOverBoth()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->field('A').select(1, 1);
        press('A', {1, 5});
        QVERIFY(move('A', endOfRow(1)));
        QCOMPARE(selected(), u"A@1 to B@3"_s);
        QVERIFY(!pointer->released()); // the field that was pressed receives the release too
        QCOMPARE(selected(), u"A@1 to B@3"_s);
        QCOMPARE(page->focused(), &page->field('B').field());
    }

    void aDragBackLeavesTheSelectionToTheField()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        press('A', {1, 5});
        QVERIFY(move('A', endOfRow(1)));
        QVERIFY(!move('A', endOfRow(0)));
        QCOMPARE(selected(), QString());
    }

    void aDragUpwardsKeepsAllOfAWordThatWasPressed()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two words"_s)});
        press('B', {1, PageOfFields::height + 5});
        page->field('B').select(0, 3);
        QVERIFY(move('B', {0, 5}));
        QCOMPARE(selected(), u"B@3 to A@0"_s);
    }

    void aDragOverABlockWithoutTextSelectsIt()
    {
        open({block('A', body, u"one"_s), block('B', BlockType::divider), block('C', body, u"two"_s)});
        page->field('A').select(3, 3);
        press('A', endOfRow(0));
        QVERIFY(move('A', endOfRow(1) + QPointF(0, 5)));
        QCOMPARE(selected(), u"A@3 to B@1"_s);
        QVERIFY(page->block('B').isCovered());
    }

    void overAnEdgeTheViewIsPulled()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        const QSignalSpy changes(pointer.get(), &PointerSelection::pullChanged);
        press('A', {1, 5});
        move('A', {1, 350});
        QCOMPARE(pointer->pull(), 50);
        move('A', {1, -20});
        QCOMPARE(pointer->pull(), -20);
        pointer->released();
        QCOMPARE(pointer->pull(), 0);
        QCOMPARE(changes.size(), 3);
    }

    void whatScrollsUnderThePointerIsSelected()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s), block('C', body, u"three"_s)});
        page->field('A').select(0, 0);
        press('A', {1, 5});
        move('A', endOfRow(1));
        QCOMPARE(selected(), u"A@0 to B@3"_s);
        for (const char letter : {'A', 'B', 'C'})
            page->field(letter).field().setY(page->field(letter).field().y() - PageOfFields::height);
        pointer->carryOn();
        QCOMPARE(selected(), u"A@0 to C@5"_s);
    }

    void shiftAndAClickExtendTheSelection()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        QVERIFY(!press('A', {1, 5}, Qt::ShiftModifier)); // there is no caret yet
        page->fields.place({.passage = address('A'), .offset = 2});
        QVERIFY(press('B', endOfRow(1), Qt::ShiftModifier));
        QCOMPARE(selected(), u"A@2 to B@3"_s);
        QVERIFY(pointer->released());
    }

    void anotherButtonSelectsNothing()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        QMouseEvent event = mouse(QEvent::MouseButtonPress, {1, 5}, Qt::RightButton);
        QVERIFY(!pointer->pressed(page->field('A'), event));
        QVERIFY(!move('A', endOfRow(1)));
        QCOMPARE(selected(), QString());
    }

    void theMiddleButtonPastesWhatWasSelectedLast()
    {
        open({block('A', body, u"one"_s)});
        const QMouseEvent event = mouse(QEvent::MouseButtonRelease, {390, 5}, Qt::MiddleButton);
        QVERIFY(!pointer->pastes(page->field('A'), event));
        desktop.pasteboard.selected = u" and two"_s;
        QVERIFY(pointer->pastes(page->field('A'), event));
        QCOMPARE(stored().blocks.first().content, u"one and two"_s);
        QCOMPARE(page->focused(), &page->field('A').field());
    }
};

PELKO_TEST(TestPointerSelection)
#include "tst_PointerSelection.moc"
