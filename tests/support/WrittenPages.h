#pragma once

#include "Models/PelkoDocument.h"

// Pages for the tests of the writer.

inline PelkoDocument pageWith(const QString &content)
{
    PelkoDocument document(Space::work, 1);
    document.blocks = {Block(BlockType::code, content)};
    return document;
}

inline QList<PelkoDocument> pages(int count)
{
    QList<PelkoDocument> documents;
    for (int index = 0; index < count; ++index)
        documents.append(pageWith(QString::number(index)));
    return documents;
}

inline PelkoDocument pageWithPicture(qsizetype size)
{
    PelkoDocument document = pageWith(QStringLiteral("picture"));
    document.blocks[0].imageData = QByteArray(size, '\xFF');
    return document;
}
