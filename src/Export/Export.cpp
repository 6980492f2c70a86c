#include "Export/Export.h"

#include "Export/FileNames.h"
#include "Export/FrontMatter.h"
#include "Export/PageMarkdown.h"
#include "Export/PictureSuffix.h"

#include <QCoreApplication>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
bool isBlank(const QString &text)
{
    return QStringView(text).trimmed().isEmpty();
}

/// Pages without a heading, such as sparks, are named by their first words.
QString firstWords(const PelkoDocument &document)
{
    for (const Block &block : document.blocks) {
        if (isTextLike(block.type) && !isBlank(block.content))
            return block.content;
        for (const TodoItem &todo : block.todos.value_or(QList<TodoItem>{})) {
            if (!isBlank(todo.text))
                return todo.text;
        }
    }
    return {};
}

QString nameOf(const PelkoDocument &document)
{
    return document.writtenTitle().value_or(firstWords(document));
}

bool holdsPicture(const Block &block)
{
    return block.type == BlockType::image && block.imageData;
}

/// Appends the files of a page. `folder` is empty or ends with a slash.
void append(QList<ExportedFile> &files, const PelkoDocument &document, const QString &folder,
            const QString &name)
{
    QList<ExportedFile> beside;
    QHash<qsizetype, QString> addresses;
    for (qsizetype row = 0; row < document.blocks.size(); ++row) {
        const Block &block = document.blocks.at(row);
        if (!holdsPicture(block))
            continue;
        const QString picture =
            u"%1 %2.%3"_s.arg(name, QString::number(beside.size() + 1), pictureSuffix(*block.imageData));
        addresses.insert(row, QString::fromLatin1(QUrl::toPercentEncoding(picture)));
        beside.append({folder + picture, *block.imageData});
    }
    const QString text = frontMatter(document) + u'\n' + pageMarkdown(document.blocks, addresses);
    files.append({folder + name + ".md"_L1, text.toUtf8()});
    files.append(beside);
}
} // namespace

QList<ExportedFile> Export::page(const PelkoDocument &document)
{
    QList<ExportedFile> files;
    append(files, document, {}, fileNameFrom(nameOf(document)));
    return files;
}

QList<ExportedFile> Export::library(const QList<PelkoDocument> &documents)
{
    QList<const PelkoDocument *> oldestFirst;
    for (const PelkoDocument &document : documents)
        oldestFirst.append(&document);
    std::ranges::stable_sort(oldestFirst, [](const PelkoDocument *one, const PelkoDocument *other) {
        return std::pair(one->createdAt, one->id) < std::pair(other->createdAt, other->id);
    });
    QHash<Space, FileNames> names;
    QList<ExportedFile> files;
    for (const PelkoDocument *document : oldestFirst) {
        const QString name = names[document->space].take(nameOf(*document), document->id);
        append(files, *document, rawValue(document->space) + u'/', name);
    }
    return files;
}

QString Export::contents(const QList<PelkoDocument> &documents)
{
    qsizetype pictures = 0;
    for (const PelkoDocument &document : documents)
        pictures += std::ranges::count_if(document.blocks, holdsPicture);
    QString pages = QCoreApplication::translate("Export", "%n page(s)", nullptr, int(documents.size()));
    if (pictures == 0)
        return pages;
    //: Pages and pictures, such as "12 pages and 1 picture".
    return QCoreApplication::translate("Export", "%1 and %2")
        .arg(pages, QCoreApplication::translate("Export", "%n picture(s)", nullptr, int(pictures)));
}
