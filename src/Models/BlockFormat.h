#pragma once

#include "Models/Block.h"

/// A text format for blocks, such as Markdown. Each kind of block has its function.
class BlockFormat
{
public:
    virtual ~BlockFormat() = default;

    /// Returns std::nullopt for a block that this format leaves out.
    std::optional<QString> operator()(const Block &block);

protected:
    enum class EmptyBlocks { omitted, kept };

    explicit BlockFormat(EmptyBlocks emptyBlocks) : m_emptyBlocks(emptyBlocks) {}

    virtual QString heading(const QString &text) = 0;
    virtual QString body(const QString &text) = 0;
    virtual QString quote(const QString &text) = 0;
    virtual QString code(const QString &text) = 0;
    virtual QString divider() = 0;
    virtual std::optional<QString> picture(const Block &block) = 0;
    virtual QString checklist(const QList<TodoItem> &todos) = 0;

private:
    using TextForm = QString (BlockFormat::*)(const QString &);

    std::optional<QString> text(const QString &content, TextForm form);

    EmptyBlocks m_emptyBlocks;
};
