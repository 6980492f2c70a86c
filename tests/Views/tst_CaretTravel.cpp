#include "Views/Editor/CaretTravel.h"
#include "Views/Editor/TextLines.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QTextDocument>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

constexpr qreal width = 400;
constexpr qreal viewHeight = 100;

/// A page with its texts one below the other; code is indented.
class LaidOutPage : public PageLayout
{
public:
    explicit LaidOutPage(const QList<Block> &blocks) : m_passages(page(blocks))
    {
        for (qsizetype index = 0; index < m_passages.size(); ++index)
            layOut(m_passages.at(index));
    }

    const Passages &passages() const override { return m_passages; }
    const QTextDocument *textOf(const TextAddress &address) override
    {
        const qsizetype index = m_passages.indexOf(address);
        return index < 0 ? nullptr : m_texts.at(index).document.get();
    }
    QPointF originOf(const TextAddress &address) override
    {
        return m_texts.at(m_passages.indexOf(address)).origin - QPointF(0, m_scrolled);
    }
    std::optional<PagePosition> nearest(QPointF point, bool onlyInText) const override
    {
        std::optional<PagePosition> found;
        for (qsizetype index = 0; index < m_passages.size(); ++index) {
            const Text &text = m_texts.at(index);
            const QPointF inside = point + QPointF(0, m_scrolled) - text.origin;
            if (!text.document && onlyInText)
                continue;
            if (found && inside.y() < 0)
                break;
            found = {.passage = m_passages.at(index).id,
                     .offset = text.document ? TextLines::nearest(*text.document, inside) : 0};
        }
        return found;
    }
    qreal pageStep() const override { return viewHeight; }
    qreal scrollBy(qreal distance) override
    {
        const qreal before = std::exchange(
            m_scrolled, std::clamp(m_scrolled + distance, 0.0, std::max(0.0, m_height - viewHeight)));
        return m_scrolled - before;
    }

private:
    struct Text {
        QPointF origin;
        /// Null for a passage without text.
        std::unique_ptr<QTextDocument> document = nullptr;
    };

    void layOut(const Passage &passage)
    {
        Text text{.origin = {passage.type == BlockType::code ? 30.0 : 0.0, m_height}};
        if (passage.text) {
            text.document = std::make_unique<QTextDocument>(*passage.text);
            text.document->setDocumentMargin(0);
            text.document->setTextWidth(width);
        }
        m_height += text.document ? text.document->size().height() : 10;
        m_texts.push_back(std::move(text));
    }

    const Passages m_passages;
    std::vector<Text> m_texts;
    qreal m_height = 0;
    qreal m_scrolled = 0;
};

CaretKey key(CaretMove move, bool extends = false)
{
    return {.move = move, .extends = extends};
}

Block divider(char letter)
{
    return block(letter, BlockType::divider);
}

/// Returns the destinations of consecutive keys, such as "B@3"; "-" if the last one has none.
QString after(LaidOutPage &page, const TextAddress &text, int offset, const QList<CaretKey> &keys)
{
    CaretTravel travel(page);
    std::optional<PagePosition> place = PagePosition{.passage = text, .offset = offset};
    for (const CaretKey &pressed : keys) {
        place = travel.destination(*place, pressed);
        if (!place)
            return u"-"_s;
    }
    return focus(FocusTarget{.address = place->passage, .caret = place->offset});
}

} // namespace

class TestCaretTravel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sidewaysLeadsFromOneTextIntoTheNext()
    {
        LaidOutPage page({block('A', body, u"one"_s), sticky('B', {todo('x', u"milk"_s), todo('y')})});
        QCOMPARE(after(page, address('A'), 1, {key(CaretMove::right)}), u"A@2"_s);
        QCOMPARE(after(page, address('A'), 3, {key(CaretMove::right)}), u"B.x@0"_s);
        QCOMPARE(after(page, address('B', 'x'), 0, {key(CaretMove::left)}), u"A@3"_s);
        QCOMPARE(after(page, address('B', 'y'), 0, {key(CaretMove::left)}), u"B.x@4"_s);
    }

    void sidewaysLeadsNowhereAtTheEndsOfThePage()
    {
        LaidOutPage page({block('A', body, u"one"_s)});
        QCOMPARE(after(page, address('A'), 0, {key(CaretMove::left)}), u"-"_s);
        QCOMPARE(after(page, address('A'), 3, {key(CaretMove::right)}), u"-"_s);
    }

    void upAndDownGoToTheEndOfTheTextAtTheEndsOfThePage()
    {
        LaidOutPage page({block('A', body, u"one"_s)});
        QCOMPARE(after(page, address('A'), 2, {key(CaretMove::up)}), u"A@0"_s);
        QCOMPARE(after(page, address('A'), 2, {key(CaretMove::down)}), u"A@3"_s);
    }

    void rightToLeftTextIsLeftAtItsLeftEnd()
    {
        LaidOutPage page({block('A', body, u"אבג"_s), block('B', body, u"one"_s)});
        QCOMPARE(after(page, address('A'), 3, {key(CaretMove::left)}), u"B@0"_s);
        QCOMPARE(after(page, address('A'), 0, {key(CaretMove::right)}), u"-"_s);
    }

    void upAndDownKeepToTheColumnTheyBeganIn()
    {
        LaidOutPage page({block('A', body, u"a long text"_s), block('B', body, u"b"_s),
                          block('C', body, u"a long text"_s)});
        const CaretKey down = key(CaretMove::down);
        const CaretKey up = key(CaretMove::up);
        QCOMPARE(after(page, address('A'), 8, {down}), u"B@1"_s);
        QCOMPARE(after(page, address('A'), 8, {down, down}), u"C@8"_s);
        QCOMPARE(after(page, address('C'), 5, {up, up}), u"A@5"_s);
    }

    void theColumnIsThatOfTheViewAndNotOfTheText()
    {
        LaidOutPage page(
            {block('A', BlockType::code, u"iiii"_s), block('B', body, u"iiiiiiiiiiiiiiiiiiii"_s)});
        const QString below = after(page, address('A'), 0, {key(CaretMove::down)});
        QVERIFY2(below.startsWith(u"B@") && below != u"B@0", qPrintable(below));
    }

    void aCaretGoesThroughTheLinesOfOneText()
    {
        LaidOutPage page({block('A', body, u"one\ntwo"_s)});
        QCOMPARE(after(page, address('A'), 1, {key(CaretMove::down)}), u"A@5"_s);
        QCOMPARE(after(page, address('A'), 5, {key(CaretMove::up)}), u"A@1"_s);
    }

    void aCaretGoesOverWhatHasNoText()
    {
        LaidOutPage page(
            {block('A', body, u"one"_s), divider('B'), divider('C'), block('D', body, u"two"_s)});
        for (const CaretMove move : {CaretMove::right, CaretMove::down})
            QCOMPARE(after(page, address('A'), 3, {key(move)}).first(2), u"D@"_s);
        QCOMPARE(after(page, address('D'), 0, {key(CaretMove::left)}), u"A@3"_s);
        QCOMPARE(after(page, address('B'), 1, {key(CaretMove::right)}), u"D@0"_s);
    }

    void aSelectionTakesWhatHasNoTextInSteps()
    {
        LaidOutPage page({block('A', body, u"one"_s), divider('B'), block('C', body, u"two"_s)});
        const CaretKey right = key(CaretMove::right, true);
        const CaretKey left = key(CaretMove::left, true);
        QCOMPARE(after(page, address('A'), 3, {right}), u"B@1"_s);
        QCOMPARE(after(page, address('A'), 3, {right, right}), u"C@0"_s);
        QCOMPARE(after(page, address('C'), 0, {left}), u"B@0"_s);
        QCOMPARE(after(page, address('B'), 0, {right}), u"B@1"_s);
    }

    void anEmptyChecklistIsAStop()
    {
        LaidOutPage page({block('A', body, u"one"_s), sticky('B', {}), block('C', body, u"two"_s)});
        QCOMPARE(after(page, address('A'), 3, {key(CaretMove::right)}).first(1), u"B"_s);
    }

    void theEndsOfThePageAreThoseOfItsTexts()
    {
        LaidOutPage page(
            {divider('A'), block('B', body, u"one"_s), block('C', body, u"two"_s), divider('D')});
        QCOMPARE(after(page, address('C'), 1, {key(CaretMove::start)}), u"B@0"_s);
        QCOMPARE(after(page, address('B'), 1, {key(CaretMove::end)}), u"C@3"_s);
    }

    void aSelectionReachesTheVeryEndsOfThePage()
    {
        LaidOutPage page({divider('A'), block('B', body, u"one"_s), divider('C')});
        QCOMPARE(after(page, address('B'), 1, {key(CaretMove::start, true)}), u"A@0"_s);
        QCOMPARE(after(page, address('B'), 1, {key(CaretMove::end, true)}), u"C@1"_s);
    }

    void aPageWithoutTextHasNoEndForACaret()
    {
        LaidOutPage page({divider('A')});
        QCOMPARE(after(page, address('A'), 0, {key(CaretMove::end)}), u"-"_s);
    }

    void pageDownGoesAsFarAsTheViewIsHigh()
    {
        LaidOutPage page({block('A', body, u"a line\n"_s.repeated(50))});
        const qreal line = page.textOf(address('A'))->size().height() / 51;
        const int lines = int(viewHeight / line);
        const QString below = after(page, address('A'), 2, {key(CaretMove::pageDown)});
        const int offset = below.sliced(2).toInt();
        QVERIFY2(qAbs(offset / 7 - lines) <= 1 && offset % 7 == 2, qPrintable(below));
    }

    void pageUpFromTheTopStaysInItsColumn()
    {
        LaidOutPage page({block('A', body, u"a line\nb line\nc line"_s)});
        QCOMPARE(after(page, address('A'), 9, {key(CaretMove::pageUp)}), u"A@2"_s);
    }

    void aPlaceThatIsNotOnThePageLeadsNowhere()
    {
        LaidOutPage page({block('A', body, u"one"_s)});
        QCOMPARE(after(page, address('Z'), 0, {key(CaretMove::right)}), u"-"_s);
    }
};

PELKO_TEST(TestCaretTravel)
#include "tst_CaretTravel.moc"
