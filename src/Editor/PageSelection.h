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
    /// Types what is on the pasteboard over what is selected.
    void paste();

Q_SIGNALS:
    void changed();

private:
    Pasteboard &m_pasteboard;
    Apply m_apply;
    PelkoDocument m_document;
    mutable std::optional<Passages> m_passages;
    std::optional<BlockSelection> m_selection;
    SelectedParts m_parts;
};
