#pragma once

#include "Services/Pasteboard.h"

/// A pasteboard of the test's own, to be filled and looked at.
class ManualPasteboard : public Pasteboard
{
public:
    QString text() const override { return item.text; }
    QByteArray picture() const override { return item.text.isEmpty() ? png : QByteArray(); }
    void put(const PasteboardItem &put) override { item = put; }

    PasteboardItem item;
    QByteArray png;
};
