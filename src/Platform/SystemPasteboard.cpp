#include "Platform/SystemPasteboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

std::unique_ptr<QMimeData> formsOf(const PasteboardItem &item)
{
    auto forms = std::make_unique<QMimeData>();
    if (!item.text.isEmpty())
        forms->setText(item.text);
    if (!item.markdown.isEmpty())
        forms->setData(u"text/markdown"_s, item.markdown.toUtf8());
    if (!item.html.isEmpty())
        forms->setHtml(item.html);
    return forms;
}

} // namespace

QString SystemPasteboard::text() const
{
    return QGuiApplication::clipboard()->text();
}

QByteArray SystemPasteboard::picture() const
{
    const QMimeData *offered = QGuiApplication::clipboard()->mimeData();
    if (!offered || offered->hasText())
        return {};
    if (const QByteArray file = offered->data(u"image/png"_s); !file.isEmpty())
        return file;
    QByteArray encoded;
    QBuffer buffer(&encoded);
    offered->imageData().value<QImage>().save(&buffer, "PNG");
    return encoded;
}

void SystemPasteboard::put(const PasteboardItem &item)
{
    QGuiApplication::clipboard()->setMimeData(formsOf(item).release());
}
