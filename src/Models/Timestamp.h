#pragma once

/// Seconds, with fraction, since 2001-01-01 00:00:00 UTC. A plain double on purpose: the data file stores
/// exactly this number, and a calendar type would drop its microseconds.
using Timestamp = double;
