#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

#include <QObject>

#include <functional>

class Pasteboard;

/// The selection on a page when it spans several texts; a selection within one text belongs to its field. It
/// is cleared when the page changes.
class PageSelection : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool crossing READ isCrossing NOTIFY changed)

public:
    using Operation = EditOperation;
    /// Applies an operation to the page as one edit.
    using Apply = std::function<void(const Operation &)>;

    PageSelection(Pasteboard &pasteboard, Apply apply);

    bool isCrossing() const { return m_selection.has_value(); }
    const std::optional<BlockSelection> &selection() const { return m_selection; }
    const SelectedParts &parts() const { return m_parts; }
    /// Of the present page.
    const Passages &passages() const;

    /// Sets the present page.
    void publish(const PelkoDocument &document);

    /// Sets the selection. Returns false, and clears it, if it lies within one text.
    bool select(const BlockSelection &selection);
    void clear();

    void copy() const;
    void cut();
    void remove();
    /// Replaces the selection with typed text.
    void replace(const QString &text);
    /// Return and Shift+Return over the selection.
    void split();
    void breakLine();
    /// Replaces the selection with the text, or otherwise the picture, of the clipboard.
    void paste();
    /// Copies a selection within one text.
    void copyText(const BlockSelection &selected) const;
    void cutText(const BlockSelection &selected);
    /// Replaces `selected`, within one text or several, with the text of the clipboard. Returns whether there
    /// is any.
    bool pasteText(const BlockSelection &selected);
    /// Inserts the text of the primary selection. Returns whether there is any.
    bool pasteSelectedText(const PagePosition &place);
    /// Offers the selected text as the primary selection.
    void offer() const;
    /// The same for a selection within one text. Does nothing if it is empty.
    void offerText(const BlockSelection &selected) const;

Q_SIGNALS:
    void changed();

private:
    /// Returns the text of a selection within one text.
    QString textOf(const BlockSelection &selected) const;
    bool insert(QString text, const BlockSelection &selected);

    Pasteboard &m_pasteboard;
    Apply m_apply;
    PelkoDocument m_document;
    mutable std::optional<Passages> m_passages;
    std::optional<BlockSelection> m_selection;
    SelectedParts m_parts;
};
