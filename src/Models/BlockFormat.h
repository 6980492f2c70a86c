#pragma once

#include "Models/Block.h"

/// A form that blocks can be written in, such as Markdown. Each kind of block has its function.
class BlockFormat
{
public:
    virtual ~BlockFormat() = default;

    /// Nothing for a block that has no words, or nothing to be told in this form.
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
