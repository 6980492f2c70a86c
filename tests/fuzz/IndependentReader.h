#pragma once

#include "Models/PelkoDocument.h"

#include <optional>
#include <string_view>

/// A second implementation of the reader of the data file, to compare with: slow, simple and equally strict.
std::optional<QList<PelkoDocument>> readIndependently(std::string_view text);

/// A second implementation for base64 with the standard alphabet and padding.
std::optional<QByteArray> decodeIndependently(std::string_view text);
