#include "Export/Export.h"

#include "Export/FileNames.h"
#include "Export/FrontMatter.h"
#include "Export/PageMarkdown.h"
#include "Export/PictureSuffix.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
bool isBlank(const QString &text)
{
    return QStringView(text).trimmed().isEmpty();
}

/// Pages without a heading, sparks above all, are known by their first words.
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
    const QString title = document.title();
    return title == u"Untitled"_s ? firstWords(document) : title;
}

bool holdsPicture(const Block &block)
{
    return block.type == BlockType::image && block.imageData;
}

QString counted(qsizetype count, QLatin1StringView noun)
{
    return QString::number(count) + u' ' + noun + (count == 1 ? ""_L1 : "s"_L1);
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
    const QString pages = counted(documents.size(), "page"_L1);
    return pictures > 0 ? u"%1 and %2"_s.arg(pages, counted(pictures, "picture"_L1)) : pages;
}
