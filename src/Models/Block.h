#pragma once

#include "Models/BlockType.h"
#include "Models/TodoItem.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// One piece of a page. The optional fields are truly optional: absent differs from false or empty and
/// stays absent in the data file.
struct Block {
    QUuid id;
    BlockType type = BlockType::textSmall;
    /// The text; unused by dividers and images.
    QString content;
    /// The bytes of the picture's file, unchanged.
    std::optional<QByteArray> imageData;
    std::optional<QList<TodoItem>> todos;
    /// A picture shown as the banner of its page; absent counts as no.
    std::optional<bool> isFullWidth;
    /// The title laid over a banner.
    std::optional<QString> bannerTitle;

    /// Null id, for readers that set it. Generating a UUID costs a system call.
    Block() = default;
    /// A new block, with an id of its own.
    explicit Block(BlockType blockType, QString text = {})
        : id(QUuid::createUuid())
        , type(blockType)
        , content(std::move(text))
    {
    }

    /// Returns the number of runs of characters between white space in the text.
    qint64 wordCount() const;

    bool operator==(const Block &other) const;
};

/// Compares the addresses first: copies of a picture share their bytes, and comparing megabytes with every
/// key would be slow.
bool isSamePicture(const std::optional<QByteArray> &one, const std::optional<QByteArray> &other);
