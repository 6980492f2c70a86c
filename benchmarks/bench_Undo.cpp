// What the history of a page takes to keep ten thousand steps. The floor is the bytes of what was typed and
// removed, without which nothing could be taken back. The program fails when text alone takes more than 10
// MB.

#include "Editor/BlockOperations.h"
#include "Editor/EditHistory.h"
#include "Editor/TypingRules.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <span>

using namespace Qt::StringLiterals;

namespace
{

constexpr int steps = 10'000;
constexpr double limit = 10e6;

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

PelkoDocument writtenPage(qsizetype letters, int pictures)
{
    PelkoDocument page(Space::work, 0);
    page.blocks.resize(50 + pictures);
    for (Block &block : page.blocks) {
        block.id = QUuid::createUuid();
        block.content = QString(letters, u'x');
    }
    for (Block &picture : std::span(page.blocks).last(std::size_t(pictures))) {
        picture.type = BlockType::image;
        picture.imageData = QByteArray(3'000'000, 'x');
    }
    return page;
}

/// Makes one step after another of a page and its history.
class Desk
{
public:
    explicit Desk(PelkoDocument page) : m_page(std::move(page)) {}

    const PelkoDocument &page() const { return m_page; }
    EditHistory &history() { return m_history; }
    /// The bytes of text that came and went.
    qint64 typed() const { return m_typed; }

    void become(const PelkoDocument &page, qsizetype units)
    {
        m_history.record(m_page, page, {.before = m_place, .after = m_place});
        m_page = page;
        m_typed += units * qint64(sizeof(QChar));
    }

    void typeWord(int step)
    {
        PelkoDocument page = m_page;
        Block &block = page.blocks[step % 50];
        m_place = FocusTarget{.address = {.blockID = block.id}, .caret = int(block.content.size())};
        block.content += u" words"_s;
        become(page, 6);
    }

    void splitOrJoin(int step)
    {
        const Block &block = m_page.blocks.at(step / 2 % 50);
        m_place = FocusTarget{.address = {.blockID = block.id}, .caret = 0};
        if (step % 2 == 0) {
            become(TypingRules::apply(m_page, block.id, block.content + u'\n', 0)->document, 1);
            return;
        }
        PelkoDocument page = m_page;
        page.blocks.removeAt(step / 2 % 50 + 1);
        become(page, 1);
    }

    /// A picture moves to the other end of the page.
    void movePicture(int)
    {
        PelkoDocument page = m_page;
        page.blocks.move(page.blocks.size() - 1, 0);
        become(page, 0);
    }

private:
    EditHistory m_history;
    PelkoDocument m_page;
    std::optional<FocusTarget> m_place;
    qint64 m_typed = 0;
};

struct Case {
    const char *name;
    PelkoDocument page;
    std::function<void(Desk &, int)> step;
    double limit;
};

double milliseconds(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

bool measure(const Case &each)
{
    Desk desk(each.page);
    const double making = milliseconds([&] {
        for (int step = 0; step < steps; ++step)
            each.step(desk, step);
    });
    const qsizetype kept = desk.history().steps();
    const double undoing = milliseconds([&] {
        PelkoDocument page = desk.page();
        for (int step = 0; step < 100; ++step)
            page = desk.history().undo(page).value_or(Edit{.document = page}).document;
    });
    const qint64 with = heapInUse();
    desk.history() = EditHistory();
    const double bytes = double(with - heapInUse());
    std::printf("%-28s %6lld steps %8.2f MB %6.0f bytes a step %7.1f x the typed text %8.2f us a step %8.2f "
                "us an undo\n",
                each.name, static_cast<long long>(kept), bytes / 1e6, bytes / double(kept),
                desk.typed() > 0 ? bytes / double(desk.typed()) : 0., making * 1e3 / steps,
                undoing * 1e3 / 100);
    return bytes <= each.limit;
}

} // namespace

int main()
{
    bool isSmall = true;
    for (const Case &each :
         {Case{"words, 200 letters a block", writtenPage(200, 0), &Desk::typeWord, limit},
          Case{"words, 5,000 letters a block", writtenPage(5'000, 0), &Desk::typeWord, limit},
          Case{"splits and joins", writtenPage(200, 0), &Desk::splitOrJoin, limit},
          Case{"words among 20 photos", writtenPage(200, 20), &Desk::typeWord, limit},
          Case{"a photo moved", writtenPage(20, 1), &Desk::movePicture, 2 * limit}})
        isSmall = measure(each) && isSmall;
    if (!isSmall)
        std::puts("Too much: ten thousand steps have to fit into 10 MB.");
    return isSmall ? 0 : 1;
}
