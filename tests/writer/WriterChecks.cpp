#include "writer/Writer.h"

#include "Store/DocumentReader.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// What has to hold after every action.

namespace
{

constexpr auto slideTime = 1'000ms;
/// What is typed is in the file after this time, however steadily the writer types.
constexpr auto longestUnsaved = 2'600ms;
/// When the disk takes words again, they are written by themselves.
constexpr auto longestAfterMending = 35s;

QStringList &console()
{
    static QStringList messages;
    return messages;
}

QString told(const Spot &spot)
{
    const QString entry = spot.entry < 0 ? QString() : u", entry %1"_s.arg(spot.entry);
    return u"block %1%2, offset %3"_s.arg(spot.block).arg(entry).arg(spot.offset);
}

} // namespace

void Writer::watchConsole()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &message) {
        // What Qt says of the machine: no installed face can shape a script.
        if (!message.contains("OpenType support missing for"_L1))
            console().append(message);
    });
}

Writer::Fault Writer::checkPages(const Outcome &outcome)
{
    const PlainPage found = plainPage(document().blocks);
    const PlainPage expected = outcome.stages.isEmpty() ? m_pages.value(m_open) : outcome.stages.last().page;
    if (outcome.accepts && outcome.accepts(found))
        m_history->add({{.page = found, .isTyping = outcome.acceptedAsTyping == found}});
    else if (found != expected)
        return u"page: the page is another than expected\n"_s + ::difference(expected, found);
    else
        m_history->add(outcome.stages);
    m_pages.insert(m_open, found);

    const QList<PelkoDocument> &stored = m_program->store().documents();
    if (stored.size() != m_pages.size())
        return u"page: there are %1 pages, not %2"_s.arg(stored.size()).arg(m_pages.size());
    for (const PelkoDocument &page : stored) {
        if (plainPage(page.blocks) != m_pages.value(page.id))
            return u"page: a page that is not open has changed\n"_s +
                   ::difference(m_pages.value(page.id), plainPage(page.blocks));
    }
    return std::nullopt;
}

Writer::Fault Writer::checkView(const Outcome &outcome)
{
    auto wrong = wrongInView(outcome);
    if (wrong) { // it may still be on its way
        m_program->pass(slideTime);
        wrong = wrongInView(outcome);
    }
    if (!wrong && !console().isEmpty())
        wrong = u"console: "_s + console().join(u'\n');
    console().clear();
    return wrong;
}

std::optional<QString> Writer::wrongInView(const Outcome &outcome)
{
    const ShownPage page = shown();
    const int rows = page.list() ? page.list()->property("count").toInt() : -1;
    if (rows != document().blocks.size())
        return u"shown: %1 rows for %2 blocks"_s.arg(rows).arg(document().blocks.size());
    if (const QString difference = page.difference(); !difference.isEmpty())
        return u"shown: "_s + difference;
    if (m_program->main().showError())
        return std::nullopt; // it has the keyboard
    const QQuickItem *focused = m_program->window().activeFocusItem();
    if (focused && !focused->isVisible())
        return u"keyboard: it is in something hidden, %1"_s.arg(
            QString::fromLatin1(focused->metaObject()->className()));
    const auto marked = page.marked();
    if (outcome.marked && !marked)
        return u"caret: it is nowhere, expected in "_s + told(outcome.marked->head);
    if (outcome.marked && marked->head != outcome.marked->head)
        return u"caret: it is in "_s + told(marked->head) + u", expected in "_s + told(outcome.marked->head);
    if (outcome.anchor && marked && marked->anchor != *outcome.anchor)
        return u"selection: it begins in "_s + told(marked->anchor) + u", expected in "_s +
               told(*outcome.anchor);
    if (const QString place = page.caretOutOfSight(); outcome.isKey && !place.isEmpty())
        return u"sight: "_s + place;
    return std::nullopt;
}

Writer::Fault Writer::checkFile()
{
    const auto now = m_system.scheduler.now();
    if (m_writes != m_system.file.writes()) {
        m_writes = m_system.file.writes();
        m_saveLimit.reset(); // a save leaves out only what came after it
        m_saved.clear();
        for (const PelkoDocument &page : readDocuments(*m_system.file.bytes).value_or(QList<PelkoDocument>()))
            m_saved.insert(page.id, plainPage(page.blocks));
    }
    if (m_saved == m_pages) {
        m_saveLimit.reset();
        m_isDiskMended = false;
    } else if (m_system.file.writeError) {
        m_saveLimit.reset();
        m_isDiskMended = true;
    } else if (!m_saveLimit) {
        m_saveLimit = now + (m_isDiskMended ? longestAfterMending : longestUnsaved);
    } else if (now > *m_saveLimit) {
        return u"file: for %1 ms too long the file lacks what is on the pages"_s.arg(
            (now - *m_saveLimit).count());
    }
    return std::nullopt;
}
