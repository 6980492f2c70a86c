#pragma once

#include <QUuid>

#include <array>
#include <optional>
#include <string_view>

/// The canonical form of a UUID: 8-4-4-4-12 hexadecimal digits with hyphens, 36 characters and no braces.
using UuidText = std::array<char, 36>;

/// Returns the upper-case form, which the data file uses.
UuidText uuidToText(const QUuid &uuid);

/// Accepts both cases. Returns std::nullopt for all other forms, some of which QUuid accepts.
std::optional<QUuid> uuidFromText(std::string_view text);
