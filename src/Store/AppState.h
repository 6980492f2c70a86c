#pragma once

#include "Models/PelkoDocument.h"
#include "Store/DocumentWriter.h"
#include "Store/SaveSchedule.h"
#include "Store/StoreError.h"

#include <QObject>

class Clock;
class DocumentFile;

/// The one store: all documents, which of them is open, and the few flags that several views share. Only the
/// store reads and writes the data file; it saves the whole list when `SaveSchedule` says so. Setting a value
/// that is already held emits nothing. Interface thread only.
class AppState : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool showDocLimitNudge READ showDocLimitNudge NOTIFY showDocLimitNudgeChanged)
    Q_PROPERTY(bool showSavedIndicator READ showSavedIndicator NOTIFY showSavedIndicatorChanged)
    Q_PROPERTY(bool showNav READ showNav NOTIFY showNavChanged)
    Q_PROPERTY(bool showAbout READ showAbout NOTIFY showAboutChanged)

public:
    /// The number of documents in a space from which on `createDocument` refuses.
    static constexpr qsizetype documentLimit = 5;

    /// Loads the documents. The services must outlive the store.
    AppState(Scheduler &scheduler, const Clock &clock, DocumentFile &file);
    ~AppState() override;

    const QList<PelkoDocument> &documents() const { return m_documents; }
    Space currentSpace() const { return m_currentSpace; }
    std::optional<QUuid> openDocumentID() const { return m_openDocumentID; }
    bool showDocLimitNudge() const { return m_showDocLimitNudge; }
    bool showSavedIndicator() const { return m_showSavedIndicator; }
    bool focusMode() const { return m_focusMode; }
    bool showNav() const { return m_showNav; }
    bool showTasksPanel() const { return m_showTasksPanel; }
    bool showAbout() const { return m_showAbout; }
    /// The last error in words for the user, until it is dismissed.
    std::optional<QString> lastError() const;

    /// Why the last save failed, dismissed or not; std::nullopt after a successful save. While it is set, the
    /// documents hold changes that are not in the file.
    std::optional<QString> lastSaveError() const;

    /// Returns the document with this id, or nullptr. Valid until the documents change.
    const PelkoDocument *document(const QUuid &id) const;
    /// Returns the document with the id `openDocumentID`, in any space.
    std::optional<PelkoDocument> openDocument() const;
    /// The number of changes of the documents. It is increased before `documentsChanged` is emitted.
    quint64 changeCount() const { return m_changeCount; }
    /// Returns the row of the document if the last change replaced only this one, otherwise std::nullopt.
    std::optional<qsizetype> replacedRow() const;
    /// The documents of the current space, newest first.
    QList<PelkoDocument> currentSpaceDocuments() const;
    /// The documents of the ideas space, newest first.
    QList<PelkoDocument> sparks() const;

    /// These two change only the named value. The program itself uses `switchSpace` and `showDocument`.
    void setCurrentSpace(Space space);
    void setOpenDocumentID(std::optional<QUuid> id);
    void setShowDocLimitNudge(bool shown);
    void setFocusMode(bool on);
    void setShowNav(bool shown);
    void toggleNav() { setShowNav(!m_showNav); }
    void setShowTasksPanel(bool shown);
    void toggleTasksPanel() { setShowTasksPanel(!m_showTasksPanel); }
    void setShowAbout(bool shown);
    void clearLastError();

    /// Shows a space. Opens its newest document, or none if it is empty, unless the open document is in this
    /// space.
    void switchSpace(Space space);
    /// Opens a document and shows its space. An unknown id changes nothing.
    void showDocument(const QUuid &id);
    /// Adds an empty page to `space` and opens it, or sets `showDocLimitNudge` if the space has five already.
    void createDocument(Space space);
    /// Replaces the document with the same id and sets its edit time to now. An unknown id changes nothing.
    void updateDocument(PelkoDocument document);
    /// Removes the document. If it was open, opens the newest one of the current space.
    void permanentlyDeleteDocument(const PelkoDocument &document);
    /// Adds one line as a new ideas document and saves at once. Returns std::nullopt for blank text.
    std::optional<PelkoDocument> captureSpark(const QString &text);
    /// Moves one block of a document during a drag, without saving and without changing its edit time.
    void moveBlock(const QUuid &documentID, qsizetype from, qsizetype to);
    /// Writes all documents now. Sets `lastError` on failure.
    void save();
    /// Writes all documents if there are unsaved changes. Sets `lastSaveError`.
    void saveChanges();
    /// Call it when the file was removed, or replaced by another program. Adds the file's documents that the
    /// store does not have and marks the rest as unsaved. A file that cannot be read stays until the next
    /// save.
    void adoptFile();
    /// Waits until the last save is synchronised to the disk. Sets `lastError` on failure.
    void confirmSave();

Q_SIGNALS:
    void documentsChanged();
    void currentSpaceChanged();
    /// Emitted before another document is opened. Receivers must store uncommitted input now.
    void openDocumentIDAboutToChange();
    void openDocumentIDChanged();
    void showDocLimitNudgeChanged();
    void showSavedIndicatorChanged();
    void focusModeChanged();
    void showNavChanged();
    void showTasksPanelChanged();
    void showAboutChanged();
    void lastErrorChanged();
    void lastSaveErrorChanged();

private:
    struct Replacement {
        qsizetype row = 0;
        quint64 change = 0;
    };

    void load();
    void show(Space space, std::optional<QUuid> id);
    void debounceSave();
    void announceReplaced(qsizetype row);
    void saveFailed(const FileError &error);
    void setShowSavedIndicator(bool shown);
    void setLastError(std::optional<StoreError> error);
    void setLastSaveError(std::optional<StoreError> error);

    Scheduler &m_scheduler;
    const Clock &m_clock;
    DocumentFile &m_file;
    DocumentWriter m_writer;

    QList<PelkoDocument> m_documents;
    Space m_currentSpace = Space::work;
    std::optional<QUuid> m_openDocumentID;
    bool m_showDocLimitNudge = false;
    bool m_showSavedIndicator = false;
    bool m_focusMode = false;
    bool m_showNav = false;
    bool m_showTasksPanel = false;
    bool m_showAbout = false;
    quint64 m_changeCount = 0;
    Replacement m_lastReplacement;
    std::optional<StoreError> m_lastError;
    std::optional<StoreError> m_lastSaveError;
    bool m_hasUnsavedChanges = false;
    SaveSchedule m_saveSchedule;
    ScheduledCall m_savedIndicatorTask;
};
