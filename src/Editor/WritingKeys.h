#pragma once

#include "Editor/LineOperations.h"
#include "Editor/Passages.h"

#include <QObject>

/// The keys that mean more than the value they would leave in a field: they join, split and step from one
/// text to the next. A field asks for them where it stands at its own end. Steps that find nothing change
/// nothing.
class WritingKeys : public QObject
{
    Q_OBJECT

public:
    /// Runs an operation on the page and stores what comes out as one step.
    using Apply = std::function<void(const EditOperation &)>;
    using Stretch = LineOperations::Stretch;

    explicit WritingKeys(Apply apply, QObject *parent = nullptr);

    /// Backspace before the first character of a text.
    void joinBackwards(const TextAddress &text);
    /// Delete behind the last.
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
    /// A click below the last block: the writer goes on there.
    Q_INVOKABLE void writeBelow();

private:
    using LineOperation = std::optional<Edit> (*)(PelkoDocument, const TextAddress &, Stretch);

    void applyToLines(LineOperation operation, const TextAddress &text, Stretch selected);

    Apply m_apply;
};
