#pragma once

/// Seconds, with fraction, since 2001-01-01 00:00:00 UTC. A plain double on purpose: the data file stores
/// exactly this number, and a calendar type would drop its microseconds.
using Timestamp = double;

/// Timestamp 0 in seconds since 1970.
inline constexpr Timestamp referenceDate = 978'307'200;
