#pragma once

#include "Models/PelkoDocument.h"
#include "writer/PageModel.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

class EditorViewModel;

/// The open page as shown in the window, read from its items.
class ShownPage
{
public:
    ShownPage(QQuickWindow &window, EditorViewModel &editor, const PelkoDocument &document);

    /// The fields on the page from top to bottom.
    const QList<QQuickItem *> &fields() const { return m_fields; }
    /// The items of this type on the page, such as "RemoveTodoButton", from top to bottom.
    QList<QQuickItem *> controls(const QByteArray &type) const;
    /// The buttons below the page, from left to right.
    QList<QQuickItem *> chips() const;
    /// The scrolling view.
    QQuickItem *list() const { return m_list; }

    /// The position of a field, without an offset; block -1 if its block is not on the page.
    Spot placeOf(const QQuickItem &field) const;
    /// The index of the block that contains the item, or -1.
    int blockOf(const QQuickItem *item) const;
    /// The index of the checklist entry that contains the item, or -1.
    int entryOf(const QQuickItem *item) const;
    bool isOnPage(const QQuickItem *item) const;
    /// The selection or caret; std::nullopt if no text of the page has the focus.
    std::optional<Marked> marked() const { return markedFrom(focusedField()); }
    /// The same for when an alert returns the focus.
    std::optional<Marked> markedUnderAlert() const;
    /// The field with the focus, or nullptr.
    QQuickItem *focusedField() const;

    /// The preedit text of the field with the focus.
    QString preedit() const;

    /// Describes the first field whose text differs from the page; empty if there is none.
    QString difference() const;
    /// Describes where the caret is if it is not visible; otherwise empty.
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
