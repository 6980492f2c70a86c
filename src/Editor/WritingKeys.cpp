#include "Editor/WritingKeys.h"

#include "Editor/BlockOperations.h"
#include "Editor/JoinOperations.h"

#include <utility>

namespace
{

FocusTarget caretAt(const PassageID &text, int offset)
{
    return {.blockID = text.blockID, .todoID = text.todoID, .caret = offset};
}

} // namespace

WritingKeys::WritingKeys(Apply apply, QObject *parent) : QObject(parent), m_apply(std::move(apply)) {}

void WritingKeys::joinBackwards(const PassageID &text)
{
    m_apply([place = caretAt(text, 0)](PelkoDocument page) {
        return JoinOperations::backwards(std::move(page), place);
    });
}

void WritingKeys::joinForwards(const PassageID &text)
{
    m_apply([place = caretAt(text, FocusTarget::atEnd)](PelkoDocument page) {
        return JoinOperations::forwards(std::move(page), place);
    });
}

void WritingKeys::remove(const QUuid &blockID, bool forward)
{
    m_apply([blockID, forward](PelkoDocument page) {
        return JoinOperations::remove(std::move(page), blockID, forward);
    });
}

void WritingKeys::applyToLines(LineOperation operation, const PassageID &text, Stretch selected)
{
    m_apply([operation, field = caretAt(text, selected.start), selected](PelkoDocument page) {
        return operation(std::move(page), field, selected);
    });
}

void WritingKeys::breakLine(const PassageID &text, Stretch selected)
{
    applyToLines(LineOperations::breakLine, text, selected);
}

void WritingKeys::split(const PassageID &text, Stretch selected)
{
    applyToLines(LineOperations::split, text, selected);
}

void WritingKeys::indent(const PassageID &text, Stretch selected)
{
    applyToLines(LineOperations::indent, text, selected);
}

void WritingKeys::unindent(const PassageID &text, Stretch selected)
{
    applyToLines(LineOperations::unindent, text, selected);
}

void WritingKeys::writeBelow()
{
    m_apply([](PelkoDocument page) { return BlockOperations::writeBelow(std::move(page)); });
}
