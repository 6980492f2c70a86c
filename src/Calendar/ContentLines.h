#pragma once

#include <QByteArray>

#include <optional>

/// One line of a calendar's text, taken apart: "NAME;PARAMETER=VALUE:VALUE". The parts are views into the
/// text or, where a line was folded, into the lines it was read from, and hold until the next one is read.
struct ContentLine {
    QByteArrayView name;
    QByteArrayView parameters;
    QByteArrayView value;

    /// Names of components, properties and parameters may be written in either case.
    bool is(QByteArrayView other) const;
    std::optional<QByteArrayView> parameter(QByteArrayView name) const;
};

/// Reads the lines of a text, whatever they end in, and joins those that were folded. What is no line of a
/// calendar is passed over, and so is what is longer than a megabyte.
class ContentLines
{
public:
    explicit ContentLines(QByteArrayView text) : m_rest(text) {}

    /// Nothing at the end of the text.
    std::optional<ContentLine> next();

private:
    QByteArrayView takePiece();
    QByteArrayView takeUnfolded();
    bool continues() const;

    QByteArrayView m_rest;
    QByteArray m_unfolded;
};
