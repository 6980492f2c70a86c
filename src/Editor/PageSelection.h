#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

#include <QObject>

#include <functional>

class Pasteboard;

/// What is selected on a page where the selection goes beyond one text; within one text its field knows. The
/// selection is dropped as soon as the page changes.
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
    /// Of the page as it is now.
    const Passages &passages() const;

    /// The page as it is now.
    void publish(const PelkoDocument &document);

    /// Tells whether the selection goes beyond one text. If not, there is none here.
    bool select(const BlockSelection &selection);
    void clear();

    void copy() const;
    void cut();
    void remove();
    /// Types over what is selected.
    void replace(const QString &text);
    /// Return and Shift+Return over what is selected.
    void split();
    void breakLine();
    /// Puts the text, or else the picture, of the pasteboard in place of what is selected.
    void paste();
    /// The same for what is selected within one text.
    void copyText(const BlockSelection &selected) const;
    void cutText(const BlockSelection &selected);
    /// Puts the text of the pasteboard in place of `selected`, within one text or beyond. Tells whether there
    /// is any.
    bool pasteText(const BlockSelection &selected);
    /// Puts the text that was selected last, in whatever program, at that place.
    bool pasteSelectedText(const PagePosition &place);
    /// Offers the text of the selection to the middle button.
    void offer() const;
    /// The same for what is selected within one text; nothing if that is empty.
    void offerText(const BlockSelection &selected) const;

Q_SIGNALS:
    void changed();

private:
    /// What is selected within one text.
    QString textOf(const BlockSelection &selected) const;
    bool insert(QString text, const BlockSelection &selected);

    Pasteboard &m_pasteboard;
    Apply m_apply;
    PelkoDocument m_document;
    mutable std::optional<Passages> m_passages;
    std::optional<BlockSelection> m_selection;
    SelectedParts m_parts;
};
