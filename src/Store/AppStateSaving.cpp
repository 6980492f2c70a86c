#include "Services/DocumentFile.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"
#include "Store/DocumentReader.h"

using namespace std::chrono_literals;

namespace
{
constexpr auto savedIndicatorTime = 1500ms;
} // namespace

// How the store reads and writes the data file.

void AppState::load()
{
    DocumentFile::Contents contents = m_file.read();
    if (std::holds_alternative<DocumentFile::Missing>(contents))
        return;
    std::optional<QList<PelkoDocument>> documents;
    if (auto *bytes = std::get_if<QByteArray>(&contents))
        documents = readDocuments(std::move(*bytes));
    if (documents)
        m_documents = std::move(*documents);
    else
        m_lastError = StoreError{.task = StoreError::Task::load};
}

void AppState::adoptFile()
{
    DocumentFile::Contents contents = m_file.read();
    QList<PelkoDocument> stored;
    if (auto *bytes = std::get_if<QByteArray>(&contents)) {
        std::optional<QList<PelkoDocument>> read = readDocuments(std::move(*bytes));
        if (!read)
            return;
        stored = std::move(*read);
    }
    ChangeScope scope(*this);
    for (const PelkoDocument &other : std::as_const(stored)) {
        if (document(other.id))
            continue;
        m_documents.append(other);
        scope.announce(&AppState::documentsChanged);
    }
    if (stored != m_documents)
        m_hasUnsavedChanges = true;
}

void AppState::save()
{
    confirmSave(); // the one before this
    const auto produce = [this](ByteSink &sink) { return m_writer.write(m_documents, sink); };
    const auto start = m_scheduler.now();
    const std::optional<FileError> error = m_file.replace(produce);
    m_saveSchedule.saved(m_scheduler.now() - start);
    if (error) {
        saveFailed(*error);
        return;
    }
    m_hasUnsavedChanges = false;
    setLastSaveError(std::nullopt);
    m_savedIndicatorTask = m_scheduler.after(savedIndicatorTime, [this] {
        setShowSavedIndicator(false);
        confirmSave();
    });
    setShowSavedIndicator(true);
}

void AppState::confirmSave()
{
    if (const std::optional<FileError> error = m_file.confirm())
        saveFailed(*error);
}

void AppState::saveFailed(const FileError &error)
{
    m_hasUnsavedChanges = true;
    const StoreError failure{.task = StoreError::Task::save, .cause = error};
    setLastSaveError(failure);
    setLastError(failure);
}

void AppState::saveChanges()
{
    if (!m_hasUnsavedChanges)
        return;
    m_saveSchedule.cancel();
    save();
}

void AppState::debounceSave()
{
    m_hasUnsavedChanges = true;
    m_saveSchedule.changed();
}

void AppState::setShowSavedIndicator(bool shown)
{
    ChangeScope(*this).assign(m_showSavedIndicator, shown, &AppState::showSavedIndicatorChanged);
}

void AppState::setLastError(std::optional<StoreError> error)
{
    ChangeScope(*this).assign(m_lastError, std::move(error), &AppState::lastErrorChanged);
}

void AppState::setLastSaveError(std::optional<StoreError> error)
{
    ChangeScope(*this).assign(m_lastSaveError, std::move(error), &AppState::lastSaveErrorChanged);
}
