#pragma once

#include "Models/PelkoDocument.h"
#include "writer/PageModel.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

class EditorViewModel;

/// What the window shows of the page that is open, read from its items.
class ShownPage
{
public:
    ShownPage(QQuickWindow &window, EditorViewModel &editor, const PelkoDocument &document);

    /// The fields that stand on the page, from top to bottom.
    const QList<QQuickItem *> &fields() const { return m_fields; }
    /// The items of that type on the page, such as "RemoveTodoButton", from top to bottom.
    QList<QQuickItem *> controls(const QByteArray &type) const;
    /// The buttons below the page that add blocks, from left to right.
    QList<QQuickItem *> chips() const;
    /// The scrolling view.
    QQuickItem *list() const { return m_list; }

    /// Where a field stands, without an offset; block -1 when its block is not on the page.
    Spot placeOf(const QQuickItem &field) const;
    /// The block that an item of the page stands in; -1 for none.
    int blockOf(const QQuickItem *item) const;
    /// The entry of a checklist that an item stands in; -1 for none.
    int entryOf(const QQuickItem *item) const;
    bool isOnPage(const QQuickItem *item) const;
    /// What is selected, or where the caret stands; nothing where no text of the page has it.
    std::optional<Marked> marked() const { return markedFrom(focusedField()); }
    /// The same once the page is given the keyboard back, which an alert has meanwhile.
    std::optional<Marked> markedUnderAlert() const;
    /// The field that has the keyboard, or null.
    QQuickItem *focusedField() const;

    /// What an input method composes in the field that has the keyboard.
    QString preedit() const;

    /// The first field whose text is another than the page's, told in words; empty for none.
    QString difference() const;
    /// Empty while the caret is inside the view.
    QString caretOutOfSight() const;

private:
    void collect(QQuickItem &item);
    std::optional<Marked> markedFrom(QQuickItem *field) const;
    Spot spotOf(const TextAddress &address, int offset) const;
    const QString *storedText(const Spot &spot) const;

    QQuickWindow &m_window;
    EditorViewModel &m_editor;
    const PelkoDocument &m_document;
    QQuickItem *m_list = nullptr;
    QList<QQuickItem *> m_fields;
};
