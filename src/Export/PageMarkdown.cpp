#include "Export/PageMarkdown.h"

#include "Export/MarkdownText.h"
#include "Models/BlockFormat.h"
#include "Models/CodeFence.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using MarkdownText::Place;

namespace
{

/// The Markdown of one page, block by block.
class ExportedMarkdown : public BlockFormat
{
public:
    ExportedMarkdown() : BlockFormat(EmptyBlocks::omitted) {}

    /// Sets the address of the next block's picture; empty if its file is not exported.
    void setPictureAddress(const QString &address) { m_pictureAddress = address; }

protected:
    QString heading(const QString &text) override
    {
        const QString marked = MarkdownText::escaped(text, Place::marked);
        // Only the underlined form of a heading can have several lines.
        if (marked.contains(u'\n'))
            return MarkdownText::escaped(text, Place::line) + "\n==="_L1;
        // Number signs at the end would be read as a closing sequence.
        return marked.endsWith(u'#') ? "# "_L1 + marked.chopped(1) + R"(\#)"_L1 : "# "_L1 + marked;
    }
    QString body(const QString &text) override { return MarkdownText::escaped(text, Place::line); }
    QString quote(const QString &text) override
    {
        return "> "_L1 + MarkdownText::escaped(text, Place::line, u"> "_s);
    }
    QString code(const QString &text) override
    {
        return fenced(QString(text).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n'));
    }
    QString divider() override { return u"---"_s; }
    std::optional<QString> picture(const Block &block) override
    {
        QStringList parts;
        if (!m_pictureAddress.isEmpty())
            parts << u"![](%1)"_s.arg(m_pictureAddress);
        const QString title =
            block.isFullWidth.value_or(false) ? block.bannerTitle.value_or(QString()) : QString();
        if (!title.isEmpty())
            parts << heading(title);
        return parts.isEmpty() ? std::nullopt : std::optional(parts.join("\n\n"_L1));
    }
    QString checklist(const QList<TodoItem> &todos) override
    {
        QStringList lines;
        for (const TodoItem &todo : todos) {
            const QString box = todo.done ? u" [x]"_s : u" [ ]"_s;
            const QString text = MarkdownText::escaped(todo.text, Place::marked, u"      "_s);
            lines << m_bullet + box + (text.isEmpty() ? QString() : u' ' + text);
        }
        // Two consecutive lists are read as one unless their bullets differ.
        m_bullet = m_bullet == u'-' ? u'*' : u'-';
        return lines.join(u'\n');
    }

private:
    QString m_pictureAddress;
    QChar m_bullet = u'-';
};

} // namespace

QString pageMarkdown(const QList<Block> &blocks, const QHash<qsizetype, QString> &pictures)
{
    ExportedMarkdown format;
    QStringList parts;
    for (qsizetype row = 0; row < blocks.size(); ++row) {
        format.setPictureAddress(pictures.value(row));
        if (const auto part = format(blocks.at(row)))
            parts << *part;
    }
    return parts.isEmpty() ? QString() : parts.join("\n\n"_L1) + u'\n';
}
