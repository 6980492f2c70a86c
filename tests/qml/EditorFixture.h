#pragma once

#include "Editor/EditorViewModel.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QPointer>
#include <QQuickItem>
#include <QVariantList>

#include <memory>

/// One document in a store with manual time, and its editor's view model. A block is described as { type,
/// content, todos: [{ text, done }], picture, isFullWidth, bannerTitle }; a picture is the name of a colour,
/// or bytes that cannot be decoded.
class EditorFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(EditorViewModel *editor READ editor NOTIFY editorChanged)

public:
    explicit EditorFixture(QObject *parent = nullptr);

    EditorViewModel *editor() const { return m_editor; }

    /// Opens a new page with these blocks in a new editor.
    Q_INVOKABLE void open(const QVariantList &blocks);
    /// Replaces the page without the editor.
    Q_INVOKABLE void replace(const QVariantList &blocks);
    /// Adds an entry to the checklist in the first block without the editor.
    Q_INVOKABLE void addTask(const QString &text);
    /// Returns the blocks of the editor's page.
    Q_INVOKABLE QVariantList blocks() const;
    Q_INVOKABLE void advance(int milliseconds);
    /// Sends the preedit text, or the commit text, of an input method to the focused field.
    Q_INVOKABLE void compose(const QString &preedit);
    Q_INVOKABLE void commit(const QString &text, const QString &preedit = {});
    /// Sends press, release and a second press of the pointer.
    Q_INVOKABLE void pressTwice(QQuickItem *item, QPointF place) const;
    /// Sends the release to the field directly, because Qt sends no middle button to fields on a platform
    /// without a primary selection.
    Q_INVOKABLE void releaseMiddleButton(QQuickItem *field, QPointF place) const;
    /// Sets or returns the text of the clipboard.
    Q_INVOKABLE void copy(const QString &text) { m_desktop.pasteboard.put({.text = text}); }
    Q_INVOKABLE QString copied() const { return m_desktop.pasteboard.item.text; }
    Q_INVOKABLE QString copiedMarkdown() const { return m_desktop.pasteboard.item.markdown; }
    Q_INVOKABLE bool copiedPicture() const { return !m_desktop.pasteboard.picture().isEmpty(); }
    /// Sets the text of the primary selection.
    Q_INVOKABLE void offer(const QString &text) { m_desktop.pasteboard.putSelectedText(text); }
    Q_INVOKABLE QString offered() const { return m_desktop.pasteboard.selected; }
    /// Creates and opens another page; the editor still has the previous one.
    Q_INVOKABLE void openAnother();
    /// Returns how often the data file was written.
    Q_INVOKABLE int saves() const { return m_file.writes(); }
    /// Returns the shape of the pointer in the window of the item.
    Q_INVOKABLE int cursorOf(QQuickItem *item) const;
    /// Drops data of another program on the item. Returns whether it was accepted.
    Q_INVOKABLE bool dropFromElsewhere(QQuickItem *item, QPointF place, const QString &format,
                                       const QString &text) const;

    /// Ends the chooser with the file of this picture, without a choice, or with an error.
    Q_INVOKABLE void choosePicture(const QString &picture);
    Q_INVOKABLE void chooseNothing();
    Q_INVOKABLE void failToChoose(const QString &why);
    /// Returns whether the picture in this row shares its bytes with the store.
    Q_INVOKABLE bool sharesBytes(QObject *picture, int row) const;
    /// Puts a picture on the clipboard.
    Q_INVOKABLE void copyPicture(const QString &picture);

Q_SIGNALS:
    void editorChanged();

private:
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualDesktop m_desktop;
    AppState m_appState;
    QPointer<EditorViewModel> m_editor;
};
