#include "Store/AppState.h"

#include "Services/Clock.h"
#include "Store/ChangeScope.h"
#include "Store/NewestFirst.h"

#include <algorithm>

namespace
{
std::optional<QString> wordsOf(const std::optional<StoreError> &error)
{
    return error ? std::optional(error->description()) : std::nullopt;
}
} // namespace

AppState::AppState(Scheduler &scheduler, const Clock &clock, DocumentFile &file)
    : m_scheduler(scheduler)
    , m_clock(clock)
    , m_file(file)
    , m_saveSchedule(scheduler, [this] { save(); })
{
    // Connected first, so that all other receivers see the new count.
    connect(this, &AppState::documentsChanged, this, [this] { ++m_changeCount; });
    load();
    const auto first = std::ranges::find(m_documents, m_currentSpace, &PelkoDocument::space);
    if (first != m_documents.cend())
        m_openDocumentID = first->id;
}

AppState::~AppState() = default;

std::optional<QString> AppState::lastError() const
{
    return wordsOf(m_lastError);
}

std::optional<QString> AppState::lastSaveError() const
{
    return wordsOf(m_lastSaveError);
}

const PelkoDocument *AppState::document(const QUuid &id) const
{
    const auto found = std::ranges::find(m_documents, id, &PelkoDocument::id);
    return found == m_documents.cend() ? nullptr : &*found;
}

std::optional<PelkoDocument> AppState::openDocument() const
{
    const PelkoDocument *open = m_openDocumentID ? document(*m_openDocumentID) : nullptr;
    return open ? std::optional(*open) : std::nullopt;
}

std::optional<qsizetype> AppState::replacedRow() const
{
    const bool isLatest = m_changeCount > 0 && m_lastReplacement.change == m_changeCount;
    return isLatest ? std::optional(m_lastReplacement.row) : std::nullopt;
}

QList<PelkoDocument> AppState::currentSpaceDocuments() const
{
    return newestFirst(m_documents, m_currentSpace);
}

QList<PelkoDocument> AppState::sparks() const
{
    return newestFirst(m_documents, Space::ideas);
}

void AppState::setCurrentSpace(Space space)
{
    ChangeScope(*this).assign(m_currentSpace, space, &AppState::currentSpaceChanged);
}

void AppState::setOpenDocumentID(std::optional<QUuid> id)
{
    show(m_currentSpace, id);
}

void AppState::setShowDocLimitNudge(bool shown)
{
    ChangeScope(*this).assign(m_showDocLimitNudge, shown, &AppState::showDocLimitNudgeChanged);
}

void AppState::setFocusMode(bool on)
{
    ChangeScope(*this).assign(m_focusMode, on, &AppState::focusModeChanged);
}

void AppState::setShowNav(bool shown)
{
    ChangeScope(*this).assign(m_showNav, shown, &AppState::showNavChanged);
}

void AppState::setShowTasksPanel(bool shown)
{
    ChangeScope(*this).assign(m_showTasksPanel, shown, &AppState::showTasksPanelChanged);
}

void AppState::setShowAbout(bool shown)
{
    ChangeScope(*this).assign(m_showAbout, shown, &AppState::showAboutChanged);
}

void AppState::clearLastError()
{
    setLastError(std::nullopt);
}

void AppState::switchSpace(Space space)
{
    const PelkoDocument *open = m_openDocumentID ? document(*m_openDocumentID) : nullptr;
    show(space, open && open->space == space ? m_openDocumentID : newestOf(m_documents, space));
}

void AppState::showDocument(const QUuid &id)
{
    if (const PelkoDocument *wanted = document(id))
        show(wanted->space, id);
}

void AppState::createDocument(Space space)
{
    if (std::ranges::count(m_documents, space, &PelkoDocument::space) >= documentLimit) {
        setShowDocLimitNudge(true);
        return;
    }
    Q_EMIT openDocumentIDAboutToChange();
    const PelkoDocument document(space, m_clock.now());
    ChangeScope scope(*this);
    m_documents.append(document);
    scope.announce(&AppState::documentsChanged);
    scope.assign(m_openDocumentID, document.id, &AppState::openDocumentIDChanged);
    debounceSave();
}

void AppState::updateDocument(PelkoDocument document)
{
    const auto stored = std::ranges::find(std::as_const(m_documents), document.id, &PelkoDocument::id);
    if (stored == m_documents.cend())
        return;
    document.updatedAt = m_clock.now();
    debounceSave();
    // Time is compared first: it nearly always differs, and a page with pictures is costly to compare.
    if (stored->updatedAt == document.updatedAt && *stored == document)
        return;
    const qsizetype row = stored - m_documents.cbegin();
    m_documents[row] = std::move(document);
    announceReplaced(row);
}

void AppState::permanentlyDeleteDocument(const PelkoDocument &document)
{
    const QUuid id = document.id; // the caller may have handed in an element of the list itself
    ChangeScope scope(*this);
    if (m_documents.removeIf([&id](const PelkoDocument &other) { return other.id == id; }) > 0)
        scope.announce(&AppState::documentsChanged);
    if (m_openDocumentID == id) {
        const std::optional<QUuid> next = newestOf(m_documents, m_currentSpace);
        scope.assign(m_openDocumentID, next, &AppState::openDocumentIDChanged);
    }
    debounceSave();
}

std::optional<PelkoDocument> AppState::captureSpark(const QString &text)
{
    const QString line = text.trimmed(); // QString's white space is that of words and titles
    if (line.isEmpty())
        return std::nullopt;
    const Timestamp now = m_clock.now();
    PelkoDocument spark(Space::ideas, now);
    spark.blocks = {Block(BlockType::textSmall, line)};
    spark.updatedAt = now;
    ChangeScope scope(*this);
    m_documents.append(spark);
    scope.announce(&AppState::documentsChanged);
    m_hasUnsavedChanges = true;
    save();
    return spark;
}

void AppState::moveBlock(const QUuid &documentID, qsizetype from, qsizetype to)
{
    const auto stored = std::ranges::find(std::as_const(m_documents), documentID, &PelkoDocument::id);
    if (stored == m_documents.cend())
        return;
    const auto isInside = [count = stored->blocks.size()](qsizetype index) {
        return index >= 0 && index < count;
    };
    if (from == to || !isInside(from) || !isInside(to))
        return;
    const qsizetype row = stored - m_documents.cbegin();
    m_documents[row].blocks.move(from, to);
    announceReplaced(row);
}

void AppState::show(Space space, std::optional<QUuid> id)
{
    if (m_openDocumentID != id)
        Q_EMIT openDocumentIDAboutToChange();
    ChangeScope changes(*this);
    changes.assign(m_currentSpace, space, &AppState::currentSpaceChanged);
    changes.assign(m_openDocumentID, id, &AppState::openDocumentIDChanged);
}

void AppState::announceReplaced(qsizetype row)
{
    m_lastReplacement = {.row = row, .change = m_changeCount + 1};
    Q_EMIT documentsChanged();
}
