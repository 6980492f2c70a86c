#include "support/Libraries.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{
constexpr int pageCount = 15;
constexpr int sparkCount = 10'000;
constexpr int pictureCount = 60;
constexpr qsizetype pictureSize = 3'000'000;

QRandomGenerator &generator()
{
    static QRandomGenerator shared;
    return shared;
}

QUuid makeId()
{
    return QUuid(generator().generate(), quint16(generator().generate()), quint16(generator().generate()), 1,
                 2, 3, 4, 5, 6, 7, quint8(generator().generate()));
}

QString makeText(int words)
{
    static const QStringList vocabulary{u"the"_s,   u"flame"_s,  u"page"_s,   u"quietly"_s, u"“words”"_s,
                                        u"early"_s, u"Zürich"_s, u"and/or"_s, u"morning"_s, u"draft"_s};
    QString text;
    for (int word = 0; word < words; ++word)
        text += vocabulary[generator().bounded(int(vocabulary.size()))] + u' ';
    return text;
}

Block makeBlock(BlockType type, int words)
{
    Block block(type, makeText(words));
    block.id = makeId();
    return block;
}

Block makePicture()
{
    Block block = makeBlock(BlockType::image, 0);
    QByteArray bytes(pictureSize, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(generator().generate() >> 11);
    block.imageData = bytes;
    return block;
}

PelkoDocument makePage(Space space, int number)
{
    PelkoDocument document(space, 812'345'678.123457 + number * 61.7);
    document.id = makeId();
    document.updatedAt = document.createdAt + 0.25;
    document.blocks = {makeBlock(BlockType::textLarge, 4)};
    for (int paragraph = 0; paragraph < 9; ++paragraph)
        document.blocks.append(makeBlock(BlockType::textSmall, 35));
    return document;
}

PelkoDocument makeSpark(int number, int words)
{
    PelkoDocument document = makePage(Space::ideas, number);
    document.blocks = {makeBlock(BlockType::textSmall, words)};
    return document;
}
} // namespace

QList<PelkoDocument> makeLibrary(LibrarySize size)
{
    generator().seed(1);
    QList<PelkoDocument> documents;
    for (int page = 0; page < pageCount; ++page)
        documents.append(makePage(allSpaces[page % allSpaces.size()], page));
    if (size == LibrarySize::sparks || size == LibrarySize::words) {
        for (int spark = 0; spark < sparkCount; ++spark)
            documents.append(makeSpark(spark, size == LibrarySize::words ? 100 : 38));
    }
    if (size == LibrarySize::pictures) {
        for (int picture = 0; picture < pictureCount; ++picture)
            documents[picture % pageCount].blocks.append(makePicture());
    }
    return documents;
}
