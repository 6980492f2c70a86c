#pragma once

#include "Services/Pasteboard.h"

/// A clipboard in memory.
class ManualPasteboard : public Pasteboard
{
public:
    QString text() const override { return item.text; }
    QByteArray picture() const override { return item.text.isEmpty() ? png : QByteArray(); }
    void put(const PasteboardItem &put) override
    {
        if (!put.isEmpty())
            item = put;
        if (!put.picture.isEmpty())
            png = put.picture;
    }
    QString selectedText() const override { return selected; }
    void putSelectedText(const QString &text) override { selected = text; }

    PasteboardItem item;
    QString selected;
    QByteArray png;
};
