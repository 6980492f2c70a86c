#include "Editor/WritingKeys.h"

#include "Editor/BlockOperations.h"
#include "Editor/JoinOperations.h"
#include "Editor/LineOperations.h"

#include <utility>

WritingKeys::WritingKeys(Apply apply, QObject *parent) : QObject(parent), m_apply(std::move(apply)) {}

void WritingKeys::joinBackwards(const QString &blockID, const QString &todoID)
{
    m_apply([place = FocusTarget::at(blockID, todoID, 0)](PelkoDocument page) {
        return JoinOperations::backwards(std::move(page), place);
    });
}

void WritingKeys::joinForwards(const QString &blockID, const QString &todoID)
{
    m_apply([place = FocusTarget::at(blockID, todoID, FocusTarget::atEnd)](PelkoDocument page) {
        return JoinOperations::forwards(std::move(page), place);
    });
}

void WritingKeys::remove(const QString &blockID, bool forward)
{
    m_apply([id = QUuid(blockID), forward](PelkoDocument page) {
        return JoinOperations::remove(std::move(page), id, forward);
    });
}

void WritingKeys::breakLine(const QString &blockID, const QString &todoID, int start, int end)
{
    m_apply([field = FocusTarget::at(blockID, todoID, start), start, end](PelkoDocument page) {
        return LineOperations::breakLine(std::move(page), field, {.start = start, .end = end});
    });
}

void WritingKeys::split(const QString &blockID, const QString &todoID, int start, int end)
{
    m_apply([field = FocusTarget::at(blockID, todoID, start), start, end](PelkoDocument page) {
        return LineOperations::split(std::move(page), field, {.start = start, .end = end});
    });
}

void WritingKeys::indent(const QString &blockID, int start, int end)
{
    m_apply([field = FocusTarget::at(blockID, {}, start), start, end](PelkoDocument page) {
        return LineOperations::indent(std::move(page), field, {.start = start, .end = end});
    });
}

void WritingKeys::unindent(const QString &blockID, int start, int end)
{
    m_apply([field = FocusTarget::at(blockID, {}, start), start, end](PelkoDocument page) {
        return LineOperations::unindent(std::move(page), field, {.start = start, .end = end});
    });
}

void WritingKeys::writeBelow()
{
    m_apply([](PelkoDocument page) { return BlockOperations::writeBelow(std::move(page)); });
}
