#pragma once

#include "Editor/LineOperations.h"
#include "Editor/Passages.h"

#include <QObject>

/// The keys that do more than change the value of a field: they join texts, split them and move between them.
/// A field calls them at its start and end. Unknown addresses change nothing.
class WritingKeys : public QObject
{
    Q_OBJECT

public:
    /// Applies an operation to the page and stores the result as one step.
    using Apply = std::function<void(const EditOperation &)>;
    using Stretch = LineOperations::Stretch;

    explicit WritingKeys(Apply apply, QObject *parent = nullptr);

    /// Backspace before the first character of a text.
    void joinBackwards(const TextAddress &text);
    /// Delete behind the last character.
    void joinForwards(const TextAddress &text);
    /// Backspace or Delete on a block without text.
    void remove(const QUuid &blockID, bool forward);
    /// Shift+Return.
    void breakLine(const TextAddress &text, Stretch selected);
    /// Return in a text of several lines.
    void split(const TextAddress &text, Stretch selected);
    /// Tab and Shift+Tab over selected lines of code.
    void indent(const TextAddress &text, Stretch selected);
    void unindent(const TextAddress &text, Stretch selected);
    /// A click below the last block: gives the focus to the end of the page.
    Q_INVOKABLE void writeBelow();

private:
    using LineOperation = std::optional<Edit> (*)(PelkoDocument, const TextAddress &, Stretch);

    void applyToLines(LineOperation operation, const TextAddress &text, Stretch selected);

    Apply m_apply;
};
