#pragma once

#include <QDate>

struct icalrecurrencetype;

/// Whether a monthly or yearly rule ever comes true for something that begins on a day. The library that
/// works out its days would search for the first of them to the year 2582, within one call, and take seconds:
/// "the 30th of February", "the sixth Monday".
bool comesTrue(const icalrecurrencetype &rule, QDate start);
