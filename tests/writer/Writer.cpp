#include "writer/Writer.h"

#include "Store/DocumentWriter.h"
#include "Views/Controls/Composition.h"
#include "support/MemorySink.h"
#include "writer/StartPages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto settleTime = 260ms; // after which a block that was just added has the caret

QStringList charactersOf(const QString &text)
{
    QStringList characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype start = 0; finder.toNextBoundary() > 0; start = finder.position())
        characters.append(text.sliced(start, finder.position() - start));
    return characters;
}

} // namespace

Writer::Writer(const QString &startPages, const QStringList &ignored) : m_ignored(ignored)
{
    QGuiApplication::clipboard()->clear();
    const QList<PelkoDocument> library = StartPages::library(startPages);
    DocumentWriter writer;
    MemorySink file;
    [[maybe_unused]] const auto error = writer.write(library, file);
    Q_ASSERT(!error);
    m_system.file.bytes = file.bytes;
    start();
    for (const PelkoDocument &page : library) {
        const PlainPage given = plainPage(page.blocks);
        if (given != m_pages.value(page.id))
            m_fault =
                u"opening: a page changed by being shown\n"_s + ::difference(given, m_pages.value(page.id));
    }
    if (!m_fault)
        m_fault = checkFile();
}

void Writer::start()
{
    m_program = std::make_unique<RunningProgram>(m_system);
    m_isDiskMended = false;
    takePagesAsTheyAre();
}

void Writer::takePagesAsTheyAre()
{
    m_pages.clear();
    for (const PelkoDocument &page : m_program->store().documents())
        m_pages.insert(page.id, plainPage(page.blocks));
    m_open = {};
    m_saveLimit.reset();
    followOpenPage();
}

void Writer::startAgain(bool isOrderly)
{
    mendDisk();
    if (isOrderly) {
        Composition::settle(qobject_cast<QQuickItem *>(QGuiApplication::focusObject()));
        m_program->store().saveChanges();
    }
    const Pages before = isOrderly ? m_pages : m_saved;
    m_program.reset();
    start();
    if (m_pages != before && !m_fault)
        m_fault = u"restart: the pages are others than those that were saved"_s;
    for (auto page = before.begin(); page != before.end() && m_fault; ++page) {
        if (m_pages.value(page.key()) != page.value())
            *m_fault += u'\n' + ::difference(page.value(), m_pages.value(page.key()));
    }
}

const PelkoDocument &Writer::document() const
{
    return *m_program->store().document(m_open);
}

ShownPage Writer::shown() const
{
    return {m_program->window(), *m_program->main().editor(), document()};
}

PageModel Writer::model() const
{
    return m_isInterrupted ? *m_composed : PageModel(m_pages.value(m_open), shown().marked());
}

Writer::Outcome Writer::outcomeOf(const PageModel &model)
{
    return {.stages = model.stages(), .marked = model.marked(), .isKey = true};
}

/// Of a change by other means than keys, which may push the caret out of sight.
Writer::Outcome Writer::elsewhere(const PageModel &model)
{
    Outcome outcome = outcomeOf(model);
    outcome.isKey = false;
    return outcome;
}

/// Another page in the editor: undo begins there.
void Writer::followOpenPage()
{
    const auto open = m_program->store().openDocumentID().value_or(QUuid());
    if (open == m_open && m_history)
        return;
    m_open = open;
    m_history.emplace(m_pages.value(open));
}

/// The alert of a failed save says what it has to and goes; keys that are typed are not for it.
void Writer::leaveAlert()
{
    if (!m_program->main().showError())
        return;
    m_program->main().dismissError();
    m_program->pass(keyTime);
}

Writer::Fault Writer::perform(const Action &action)
{
    if (m_fault && !isIgnored(*m_fault)) // from the start
        return m_fault;
    m_fault.reset();
    const auto before = std::clock();
    if (action.kind != Action::Kind::type)
        leaveAlert();
    leaveComposing(action);
    const Outcome outcome = act(action);
    if (!m_fault)
        m_fault = followComposing(action, outcome);
    if (!m_fault)
        m_fault = checkPages(outcome);
    if (!m_fault)
        m_fault = checkView(outcome);
    if (!m_fault)
        m_fault = checkFile();
    const auto seconds = double(std::clock() - before) / CLOCKS_PER_SEC;
    constexpr double longest = 20; // under the sanitizers, on any machine
    if (!m_fault && seconds > longest)
        m_fault = u"freeze: this took %1 s of the processor"_s.arg(seconds);
    if (m_fault && isIgnored(*m_fault)) {
        m_fault.reset();
        takePagesAsTheyAre();
    }
    return m_fault;
}

bool Writer::isIgnored(const QString &fault) const
{
    return m_ignored.contains(fault.section(u':', 0, 0));
}

Writer::Outcome Writer::act(const Action &action)
{
    using Kind = Action::Kind;
    const auto wait = std::chrono::milliseconds(qint64(action.number(0)));
    switch (action.kind) {
    case Kind::key:
        return pressKey(action.text);
    case Kind::type:
        return typeText(action.text);
    case Kind::paste:
        return pasteText(action.text);
    case Kind::pastePicture:
        return pastePicture();
    case Kind::compose:
        return compose(action.text, action.number(0) > 0);
    case Kind::cancelComposing:
        return compose({}, false);
    case Kind::press:
        return pressControl(action.text, action.number(0));
    case Kind::dragBlock:
        return dragBlock(action.number(0), action.number(1));
    case Kind::undoAll:
        return undoAll();
    case Kind::quickAdd:
    case Kind::tickTask:
    case Kind::deleteTask:
        return useTasksPanel(action);
    case Kind::wait:
        m_program->pass(std::min(wait, 2'000ms));
        m_system.scheduler.advance(wait - std::min(wait, 2'000ms));
        return {};
    case Kind::find:
        find(action.text);
        return {};
    case Kind::spark: {
        const auto spark = m_program->store().captureSpark(action.text);
        m_pages.insert(spark->id, plainPage(spark->blocks));
        return {};
    }
    case Kind::openPage:
        m_program->store().showDocument(
            m_program->store().documents().at(qsizetype(action.number(0) * double(m_pages.size()))).id);
        followOpenPage();
        m_program->pass(1s);
        return {};
    case Kind::startComposing:
        return startComposing(action.text);
    case Kind::failDisk:
        failDisk(action);
        return {};
    case Kind::mendDisk:
        mendDisk();
        return {};
    case Kind::restart:
    case Kind::kill:
        startAgain(action.kind == Kind::restart);
        return {};
    case Kind::resize:
        m_program->window().resize(int(action.number(0)), int(action.number(1)));
        m_program->pass(settleTime);
        return {};
    default:
        return point(action);
    }
}

Writer::Outcome Writer::typeText(const QString &text)
{
    // An alert that comes by itself does not keep the writer from going on.
    const bool isInterrupted = m_program->main().showError();
    PageModel model(m_pages.value(m_open), isInterrupted ? shown().markedUnderAlert() : shown().marked());
    const QQuickItem *focused = m_program->window().activeFocusItem();
    const bool isPageFocused = shown().list() && shown().isOnPage(focused);
    const bool isButton = focused && focused->inherits("QQuickAbstractButton");
    const bool isPressed = isButton && !isInterrupted && text.startsWith(u' ');
    if (isPressed || (!model.marked() && (!isPageFocused || isButton)))
        return {};
    for (const QString &character : charactersOf(text)) {
        model.type(character);
        UserInput(m_program->window()).type(character);
        m_program->pass(keyTime);
    }
    return outcomeOf(model);
}

Writer::Outcome Writer::pasteText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    return pressKey(u"Ctrl+V"_s);
}

/// Full, away, or one that says too late that a save has failed.
void Writer::failDisk(const Action &action)
{
    ManualDocumentFile &file = m_system.file;
    if (action.text == u"unconfirmed")
        file.confirmError = u"Input/output error"_s;
    else
        file.writeError =
            action.text == u"away" ? u"No such file or directory"_s : u"No space left on device"_s;
    file.looksWritable = action.text != u"away";
    const auto time = std::chrono::milliseconds(qint64(action.number(0)));
    m_mending = {};
    if (time > 0ms)
        m_mending = m_system.scheduler.after(time, [this] { mendDisk(); });
}

void Writer::mendDisk()
{
    m_system.file.writeError.reset();
    m_system.file.confirmError.reset();
    m_system.file.looksWritable = true;
}

void Writer::find(const QString &text)
{
    UserInput hands(m_program->window());
    hands.press(u"Ctrl+K"_s);
    m_program->pass(keyTime);
    for (const QChar c : text.chopped(1)) {
        hands.type(c);
        m_program->pass(keyTime);
    }
    hands.press(text.endsWith(u'\n') ? u"Return"_s : u"Escape"_s);
    m_program->pass(keyTime);
    m_program->main().dismissNav();
    m_program->pass(1s);
    followOpenPage();
}
