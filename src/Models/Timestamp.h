#pragma once

/// Seconds since 2001-01-01 00:00:00 UTC, with fraction. A double, because the data file stores exactly this
/// number; a calendar type would drop its microseconds.
using Timestamp = double;

/// Timestamp 0 in seconds since 1970.
inline constexpr Timestamp referenceDate = 978'307'200;
