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

/// One document in a store on manual time, with its editor's view model, for view tests. A block is
/// described as { type, content, todos: [{ text, done }], picture, isFullWidth, bannerTitle }, where a
/// picture is the name of a colour or bytes that are none.
class EditorFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(EditorViewModel *editor READ editor NOTIFY editorChanged)

public:
    explicit EditorFixture(QObject *parent = nullptr);

    EditorViewModel *editor() const { return m_editor; }

    /// Opens a fresh page of these blocks, which makes a new editor.
    Q_INVOKABLE void open(const QVariantList &blocks);
    /// Replaces the page from outside the editor.
    Q_INVOKABLE void replace(const QVariantList &blocks);
    /// Adds an entry to the checklist that is the first block, from outside the editor.
    Q_INVOKABLE void addTask(const QString &text);
    /// The page of the editor.
    Q_INVOKABLE QVariantList blocks() const;
    Q_INVOKABLE void advance(int milliseconds);
    /// Sends what an input method composes to the focused field, and what it settles on.
    Q_INVOKABLE void compose(const QString &preedit);
    Q_INVOKABLE void commit(const QString &text, const QString &preedit = {});
    /// The pointer's button goes down, up and down again.
    Q_INVOKABLE void pressTwice(QQuickItem *item, QPointF place) const;
    /// Without a selection of the desktop, a field is given no middle button; the event goes to it by itself.
    Q_INVOKABLE void releaseMiddleButton(QQuickItem *field, QPointF place) const;
    /// Puts text on the pasteboard, and tells what is there.
    Q_INVOKABLE void copy(const QString &text) { m_desktop.pasteboard.put({.text = text}); }
    Q_INVOKABLE QString copied() const { return m_desktop.pasteboard.item.text; }
    Q_INVOKABLE QString copiedMarkdown() const { return m_desktop.pasteboard.item.markdown; }
    Q_INVOKABLE bool copiedPicture() const { return !m_desktop.pasteboard.picture().isEmpty(); }
    /// The text for the middle button.
    Q_INVOKABLE void offer(const QString &text) { m_desktop.pasteboard.putSelectedText(text); }
    Q_INVOKABLE QString offered() const { return m_desktop.pasteboard.selected; }
    /// Creates another page and opens it; the editor is still the one of the page before.
    Q_INVOKABLE void openAnother();
    /// How often the data file was written.
    Q_INVOKABLE int saves() const { return m_file.writes(); }
    /// The shape of the pointer in the window of that item.
    Q_INVOKABLE int cursorOf(QQuickItem *item) const;
    /// Drags data of another program into the item's window and lets it go there. Tells whether any of it was
    /// accepted.
    Q_INVOKABLE bool dropFromElsewhere(QQuickItem *item, QPointF place, const QString &format,
                                       const QString &text) const;

    /// The user has chosen the file of that picture, or nothing, or the chooser has failed.
    Q_INVOKABLE void choosePicture(const QString &picture);
    Q_INVOKABLE void chooseNothing();
    Q_INVOKABLE void failToChoose(const QString &why);
    /// Whether what shows the picture of that row holds the bytes of the store and not a copy of them.
    Q_INVOKABLE bool sharesBytes(QObject *picture, int row) const;
    /// Another program has copied a picture.
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
