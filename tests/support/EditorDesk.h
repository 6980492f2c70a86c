#pragma once

#include "Editor/EditorViewModel.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/PageText.h"

/// One open page in a store on manual time, with the editor of it.
class EditorDesk
{
public:
    explicit EditorDesk(const QList<Block> &blocks) : m_state(scheduler, m_clock, m_file)
    {
        m_state.createDocument(Space::work);
        PelkoDocument page = *m_state.openDocument();
        page.blocks = blocks;
        m_state.updateDocument(page);
        editor = std::make_unique<EditorViewModel>(m_state, desktop.services(scheduler), page.id);
        QObject::connect(editor.get(), &EditorViewModel::focusRequested, editor.get(),
                         [this](const QString &blockID, const QString &todoID, int caret) {
                             FocusTarget target{.blockID = QUuid(blockID), .caret = caret};
                             if (!todoID.isEmpty())
                                 target.todoID = QUuid(todoID);
                             m_focused = PageText::focus(target);
                         });
    }

    ManualScheduler scheduler;
    ManualDesktop desktop;
    std::unique_ptr<EditorViewModel> editor;

    AppState &state() { return m_state; }
    const PelkoDocument &page() const { return *m_state.document(QUuid(editor->documentID())); }
    QStringList lines() const { return PageText::lines(page()); }
    /// Where the focus was asked to go last, such as "B@3".
    QString takeFocused() { return std::exchange(m_focused, {}); }

    void type(char letter, const QString &value)
    {
        editor->typed(PageText::id(letter), value, int(value.size()));
    }

private:
    ManualClock m_clock;
    ManualDocumentFile m_file;
    AppState m_state;
    QString m_focused;
};
