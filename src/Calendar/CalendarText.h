#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// Unescapes a SUMMARY to one line of text. Returns std::nullopt if it is blank. Text that is not UTF-8 is
/// read as Latin-1.
std::optional<QString> titleFrom(QByteArrayView value);

/// Splits a comma-separated list.
std::vector<QByteArrayView> listItems(QByteArrayView value);

/// Returns the seconds of an offset such as "+0130" or "-053000"; 0 if it is malformed.
int offsetFrom(QByteArrayView value);
