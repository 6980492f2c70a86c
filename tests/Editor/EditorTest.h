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

/// What every test of the editor's view model begins with: a store on manual time, and an editor on a page of
/// it.
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
    QStringList focused; // what focusRequested asked for, such as "B@3"

    /// Puts the pages into the store, which opens the first one of the work space.
    void store(const QList<PelkoDocument> &documents)
    {
        ManualDocumentFile before; // so that `file` counts only what the store writes
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

    /// One page, open, with an editor on it.
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
    /// What was asked for last, or "".
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
