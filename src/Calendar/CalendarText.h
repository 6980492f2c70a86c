#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// Unescapes a SUMMARY to one line of text. Returns std::nullopt if it is blank. Text that is not UTF-8 is
/// read as Latin-1.
std::optional<QString> titleFrom(QByteArrayView value);

/// "one,two" as two.
std::vector<QByteArrayView> listItems(QByteArrayView value);

/// "+0130" or "-053000" as seconds; 0 for what is neither.
int offsetFrom(QByteArrayView value);
