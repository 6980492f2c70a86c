#include "Editor/WritingKeys.h"

#include "Editor/BlockOperations.h"
#include "Editor/JoinOperations.h"

#include <utility>

WritingKeys::WritingKeys(Apply apply, QObject *parent) : QObject(parent), m_apply(std::move(apply)) {}

void WritingKeys::joinBackwards(const TextAddress &text)
{
    m_apply([text](PelkoDocument page) { return JoinOperations::backwards(std::move(page), text); });
}

void WritingKeys::joinForwards(const TextAddress &text)
{
    m_apply([text](PelkoDocument page) { return JoinOperations::forwards(std::move(page), text); });
}

void WritingKeys::remove(const QUuid &blockID, bool forward)
{
    m_apply([blockID, forward](PelkoDocument page) {
        return JoinOperations::remove(std::move(page), blockID, forward);
    });
}

void WritingKeys::applyToLines(LineOperation operation, const TextAddress &text, Stretch selected)
{
    m_apply([operation, text, selected](PelkoDocument page) {
        return operation(std::move(page), text, selected);
    });
}

void WritingKeys::breakLine(const TextAddress &text, Stretch selected)
{
    applyToLines(LineOperations::breakLine, text, selected);
}

void WritingKeys::split(const TextAddress &text, Stretch selected)
{
    applyToLines(LineOperations::split, text, selected);
}

void WritingKeys::indent(const TextAddress &text, Stretch selected)
{
    applyToLines(LineOperations::indent, text, selected);
}

void WritingKeys::unindent(const TextAddress &text, Stretch selected)
{
    applyToLines(LineOperations::unindent, text, selected);
}

void WritingKeys::writeBelow()
{
    m_apply([](PelkoDocument page) { return BlockOperations::writeBelow(std::move(page)); });
}
