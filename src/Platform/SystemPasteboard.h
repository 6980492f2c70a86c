#pragma once

#include "Services/Pasteboard.h"

/// The desktop's own pasteboard. Needs a QGuiApplication.
class SystemPasteboard : public Pasteboard
{
public:
    QString text() const override;
    QByteArray picture() const override;
    void put(const PasteboardItem &item) override;
    QString selectedText() const override;
    void putSelectedText(const QString &text) override;
};
