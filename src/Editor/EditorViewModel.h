#pragma once

#include "Editor/BlockDrag.h"
#include "Editor/BlockListModel.h"
#include "Editor/EditSession.h"
#include "Editor/ImageImport.h"
#include "Editor/PageSelection.h"
#include "Editor/WritingKeys.h"
#include "Services/Scheduler.h"

#include <QObject>

class AppState;

/// The view model of the editor of one document. It follows the document in the store and stores every change
/// there, so that the next save contains it. Ids are strings in QML. Unknown ids change nothing.
class EditorViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString documentID READ documentID CONSTANT)
    Q_PROPERTY(QObject *blocks READ blocks CONSTANT)
    Q_PROPERTY(BlockDrag *drag READ drag CONSTANT)
    Q_PROPERTY(PageSelection *selection READ selection CONSTANT)
    Q_PROPERTY(WritingKeys *keys READ keys CONSTANT)
    Q_PROPERTY(ImageImport *imageImport READ imageImport CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(bool firstBlockIsBanner READ firstBlockIsBanner NOTIFY firstBlockIsBannerChanged)
    Q_PROPERTY(bool offersDelete READ offersDelete NOTIFY offersDeleteChanged)
    Q_PROPERTY(QString focusedBlockID READ focusedBlockID NOTIFY focusedBlockIDChanged)
    Q_PROPERTY(QString scrollTarget READ scrollTarget NOTIFY scrollTargetChanged)

public:
    EditorViewModel(AppState &appState, const EditorServices &services, const QUuid &documentID,
                    QObject *parent = nullptr);

    QString documentID() const { return m_documentID.toString(QUuid::WithoutBraces); }
    QObject *blocks() { return &m_blocks; }
    BlockDrag *drag() { return &m_drag; }
    PageSelection *selection() { return &m_selection; }
    WritingKeys *keys() { return &m_keys; }
    ImageImport *imageImport() { return &m_imageImport; }
    QString title() const { return m_title; }
    bool firstBlockIsBanner() const { return m_firstBlockIsBanner; }
    /// Whether the context menu of a block offers to delete it.
    bool offersDelete() const { return m_offersDelete; }
    /// The block whose field has the focus; empty for none.
    QString focusedBlockID() const { return m_focusedBlockID; }
    /// The block that the view should scroll to; empty for none.
    QString scrollTarget() const { return m_scrollTarget; }

    /// Returns the row of a block, or -1.
    Q_INVOKABLE int rowOf(const QString &blockID) const;

    /// Adds a block at the end of the page; `kind` is a raw name.
    Q_INVOKABLE void addBlock(const QString &kind);
    Q_INVOKABLE void deleteBlock(const QString &blockID);
    /// Moves the block down by `rows`, or up if it is negative.
    Q_INVOKABLE void moveBlock(const QString &blockID, int rows);
    Q_INVOKABLE void toggleFullWidth(const QString &blockID);

    /// Call it with the text and caret of a field after each change; see TextOperations. Page and focus are
    /// up to date when it returns.
    Q_INVOKABLE void typed(const TextAddress &address, const QString &value, int caret);
    Q_INVOKABLE void toggleTodo(const TextAddress &entry);
    Q_INVOKABLE void appendTodo(const QString &blockID);
    Q_INVOKABLE void removeTodo(const TextAddress &entry);

    /// Puts the picture of the clipboard into a new block after the given one. Returns false if the clipboard
    /// has no picture, or text as well.
    bool pastePicture(const QString &blockID);

    /// Undoes the last change of this page, or redoes it, and restores focus and caret.
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();

    /// Call it when the view is on screen: the first empty text block gets the focus.
    Q_INVOKABLE void appeared();
    /// Call it when the view has scrolled to `scrollTarget`.
    Q_INVOKABLE void scrolled();
    Q_INVOKABLE void focusGained(const QString &blockID);
    Q_INVOKABLE void focusLost(const QString &blockID);
    /// Call it when the caret of the focused field moves without a change of the text.
    Q_INVOKABLE void caretMoved(const TextAddress &address, int caret);
    /// Call it when the view is destroyed: stops following the store and deletes this object.
    Q_INVOKABLE void release();

Q_SIGNALS:
    void titleChanged();
    void firstBlockIsBannerChanged();
    void offersDeleteChanged();
    void focusedBlockIDChanged();
    void scrollTargetChanged();
    /// Fields must commit the preedit text of an input method now, because another document is opened or the
    /// page is changed otherwise.
    void settleRequested();
    /// The field of this text must take the focus and put its caret at `caret`; -1 is the end of the text.
    void focusRequested(const TextAddress &address, int caret);

private:
    const PelkoDocument *document() const;
    /// Returns the page after committing preedit text.
    std::optional<PelkoDocument> documentToMutate();
    void refresh();
    /// Stores the result of an operation; all changes of the page go through it.
    void commit(const std::optional<Edit> &edit, std::chrono::milliseconds focusDelay = {});
    void storePicture(const QUuid &blockID, const QByteArray &bytes);
    void commitTyping(const std::optional<Edit> &edit, const FocusTarget &field);
    /// Applies an operation to the page and stores the result as one step.
    template <typename Operation, typename... Arguments>
    void change(const Operation &operation, const Arguments &...arguments);
    void goOn(const Edit &edit, std::chrono::milliseconds focusDelay = {});
    void focus(const FocusTarget &target);
    void focusAfter(std::chrono::milliseconds delay, const FocusTarget &target);
    void focusInFocusMode();
    void focusAfterNavigation();
    void setFocusedBlockID(const QString &blockID);
    void setScrollTarget(const QString &blockID);

    AppState &m_appState;
    Scheduler &m_scheduler;
    const Pasteboard &m_pasteboard;
    const QUuid m_documentID;

    EditSession m_session;
    BlockListModel m_blocks;
    BlockDrag m_drag;
    PageSelection m_selection;
    WritingKeys m_keys;
    ImageImport m_imageImport;
    QString m_title;
    bool m_firstBlockIsBanner = false;
    bool m_offersDelete = false;
    QString m_focusedBlockID;
    QString m_scrollTarget;
    ScheduledCall m_delayedFocus;
    std::optional<FocusTarget> m_waitingFocus;
};
