#pragma once

#include <QByteArray>
#include <QString>

/// The clipboard contents in several formats. Empty formats are not offered.
struct PasteboardItem {
    QString text = {};
    QString markdown = {};
    QString html = {};
    /// The bytes of a picture file.
    QByteArray picture = {};

    bool isEmpty() const { return *this == PasteboardItem(); }
    bool operator==(const PasteboardItem &) const = default;
};

/// The system clipboard and the primary selection.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;

    /// Returns the plain text; empty if there is none.
    virtual QString text() const = 0;

    /// Returns the bytes of a picture file; empty if there is none or if there is text.
    virtual QByteArray picture() const = 0;

    /// Replaces the contents. An empty item, or one with only a picture of unknown format, changes nothing.
    virtual void put(const PasteboardItem &item) = 0;

    /// Returns the text of the primary selection, which the middle button pastes; empty on platforms without
    /// one.
    virtual QString selectedText() const = 0;
    virtual void putSelectedText(const QString &text) = 0;
};
