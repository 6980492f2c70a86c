#pragma once

#include <QByteArray>
#include <QString>

/// The same thing in the forms that other programs may ask for. An empty form is not offered.
struct PasteboardItem {
    QString text = {};
    QString markdown = {};
    QString html = {};

    bool operator==(const PasteboardItem &) const = default;
};

/// What the user has copied, shared by all programs of the desktop.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;

    /// The plain text there is; empty when there is none.
    virtual QString text() const = 0;

    /// The bytes of a picture file, PNG, when there is a picture and no text; else empty.
    virtual QByteArray picture() const = 0;

    /// Replaces all that was there.
    virtual void put(const PasteboardItem &item) = 0;
};
