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

/// What the editor of one document shows and can do. It follows the document in the store and hands every
/// change back to it, so that the next save has it. Ids cross into QML as strings. Operations that find
/// nothing change nothing.
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
    /// The block whose field has the keyboard focus; empty for none.
    QString focusedBlockID() const { return m_focusedBlockID; }
    /// The block that the view should bring into sight; empty for none.
    QString scrollTarget() const { return m_scrollTarget; }

    /// Where a block stands on the page, or -1.
    Q_INVOKABLE int rowOf(const QString &blockID) const;

    /// Adds a block of the kind of that raw name at the end of the page.
    Q_INVOKABLE void addBlock(const QString &kind);
    Q_INVOKABLE void deleteBlock(const QString &blockID);
    /// Moves the block so many rows down, or up when negative.
    Q_INVOKABLE void moveBlock(const QString &blockID, int rows);
    Q_INVOKABLE void toggleFullWidth(const QString &blockID);

    /// Takes what the field of a text reports; see TextOperations. The page and the focus have followed when
    /// this returns.
    Q_INVOKABLE void typed(const TextAddress &address, const QString &value, int caret);
    Q_INVOKABLE void toggleTodo(const TextAddress &entry);
    Q_INVOKABLE void appendTodo(const QString &blockID);
    Q_INVOKABLE void removeTodo(const TextAddress &entry);

    /// Puts the picture of the pasteboard, when there is one and no text, into a new block after that one.
    /// Tells whether it did.
    bool pastePicture(const QString &blockID);

    /// Takes back what was done last on this page, with the focus and the caret where they were; and does it
    /// again.
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();

    /// The view is on screen: the first empty text block gets the focus.
    Q_INVOKABLE void appeared();
    /// The view has scrolled to `scrollTarget`.
    Q_INVOKABLE void scrolled();
    Q_INVOKABLE void focusGained(const QString &blockID);
    Q_INVOKABLE void focusLost(const QString &blockID);
    /// The caret of the focused field stands elsewhere, without anything having been typed.
    Q_INVOKABLE void caretMoved(const TextAddress &address, int caret);
    /// The view is gone: stops following the store and deletes itself.
    Q_INVOKABLE void release();

Q_SIGNALS:
    void titleChanged();
    void firstBlockIsBannerChanged();
    void offersDeleteChanged();
    void focusedBlockIDChanged();
    void scrollTargetChanged();
    /// What an input method is composing has to become part of the text now: another document is about to be
    /// opened, or the page to be changed otherwise.
    void settleRequested();
    /// The field of that text has to take the keyboard focus with the caret at that place, -1 for the end of
    /// its text.
    void focusRequested(const TextAddress &address, int caret);

private:
    const PelkoDocument *document() const;
    /// Contains what an input method was composing.
    std::optional<PelkoDocument> documentToMutate();
    void refresh();
    /// The one way by which operations change the page.
    void commit(const std::optional<Edit> &edit, std::chrono::milliseconds focusDelay = {});
    void storePicture(const QUuid &blockID, const QByteArray &bytes);
    void commitTyping(const std::optional<Edit> &edit, const FocusTarget &field);
    /// Runs an operation on the page, with the arguments behind it, and stores what comes out as one step.
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
