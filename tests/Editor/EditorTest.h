#pragma once

#include "Editor/EditorViewModel.h"
#include "Store/AppState.h"
#include "Store/DocumentReader.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

/// The base of the tests of the editor's view model: a store with manual time, and an editor on one of its
/// pages.
class EditorTest : public QObject
{
    Q_OBJECT

protected:
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualDesktop desktop;
    std::unique_ptr<AppState> state;
    std::unique_ptr<EditorViewModel> editor;
    QUuid pageID;
    QStringList focused; // the calls of focusRequested, such as "B@3"

    /// Sets the pages of the store, which opens the first one of the work space.
    void store(const QList<PelkoDocument> &documents)
    {
        ManualDocumentFile before; // so that `file` counts only writes of the store
        const auto error =
            before.replace([&](ByteSink &sink) { return DocumentWriter().write(documents, sink); });
        QVERIFY(!error);
        file.bytes = before.bytes;
        state = std::make_unique<AppState>(scheduler, clock, file);
    }

    void edit(const QUuid &documentID)
    {
        editor = std::make_unique<EditorViewModel>(*state, desktop.services(scheduler), documentID);
        connect(editor.get(), &EditorViewModel::focusRequested, this,
                [this](const TextAddress &address, int caret) {
                    focused << PageText::focus(FocusTarget{.address = address, .caret = caret});
                });
    }

    /// Opens one page with these blocks and an editor for it.
    void edit(const QList<Block> &blocks)
    {
        const PelkoDocument document = PageText::page(blocks);
        pageID = document.id;
        store({document});
        edit(pageID);
    }

    void close()
    {
        editor.reset();
        state.reset();
    }

    QAbstractItemModel &blocks() const { return *qobject_cast<QAbstractItemModel *>(editor->blocks()); }

    const PelkoDocument &stored() const { return *state->document(pageID); }

    QString blockID(int row) const
    {
        return blocks().index(row, 0).data(BlockListModel::AddressRole).value<TextAddress>().blockName();
    }

    QStringList takeFocused() { return std::exchange(focused, {}); }
    /// Returns the last call of focusRequested, or an empty text.
    QString takeLastFocused()
    {
        const QStringList all = takeFocused();
        return all.isEmpty() ? QString() : all.last();
    }

    void type(char letter, const QString &value)
    {
        editor->typed(PageText::address(letter), value, int(value.size()));
    }

private Q_SLOTS:
    void init()
    {
        scheduler = {};
        clock = {};
        file = {};
        desktop = {};
        focused.clear();
    }

    void cleanup() { close(); }
};
