#pragma once

#include "Models/PelkoDocument.h"

#include <optional>
#include <string_view>

/// The rules of the data file once more, written without a glance at the program's reader, to be compared
/// with it: slow, plain, and just as strict.
std::optional<QList<PelkoDocument>> readIndependently(std::string_view text);

/// The same for base64 with the standard alphabet and padding.
std::optional<QByteArray> decodeIndependently(std::string_view text);
