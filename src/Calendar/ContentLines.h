#pragma once

#include <QByteArray>

#include <optional>

/// One content line of iCalendar: "NAME;PARAMETER=VALUE:VALUE". The parts are views, valid until the next
/// line is read.
struct ContentLine {
    QByteArrayView name;
    QByteArrayView parameters;
    QByteArrayView value;

    /// Compares the name, ignoring case.
    bool is(QByteArrayView other) const;
    std::optional<QByteArrayView> parameter(QByteArrayView name) const;
};

/// Reads the content lines of a text, with any line ending, and unfolds them. Skips malformed lines and lines
/// longer than a megabyte.
class ContentLines
{
public:
    explicit ContentLines(QByteArrayView text) : m_rest(text) {}

    /// Returns the next line, or std::nullopt at the end of the text.
    std::optional<ContentLine> next();

private:
    QByteArrayView takePiece();
    QByteArrayView takeUnfolded();
    bool continues() const;

    QByteArrayView m_rest;
    QByteArray m_unfolded;
};
