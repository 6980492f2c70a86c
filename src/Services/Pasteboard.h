#pragma once

#include <QByteArray>
#include <QString>

/// The same thing in the forms that other programs may ask for. An empty form is not offered.
struct PasteboardItem {
    QString text = {};
    QString markdown = {};
    QString html = {};
    /// The bytes of a picture file.
    QByteArray picture = {};

    bool isEmpty() const { return *this == PasteboardItem(); }
    bool operator==(const PasteboardItem &) const = default;
};

/// What the user has copied, shared by all programs of the desktop.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;

    /// The plain text there is; empty when there is none.
    virtual QString text() const = 0;

    /// The bytes of a picture file when there is a picture and no text; else empty.
    virtual QByteArray picture() const = 0;

    /// Replaces all that was there. An item that is empty, or whose picture cannot be told for one and that
    /// has nothing else, leaves it.
    virtual void put(const PasteboardItem &item) = 0;

    /// The text that was selected last, in whatever program: what the middle button pastes. Empty where the
    /// desktop has no such thing.
    virtual QString selectedText() const = 0;
    virtual void putSelectedText(const QString &text) = 0;
};
