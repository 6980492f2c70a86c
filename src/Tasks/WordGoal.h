#pragma once

#include <QtGlobal>

/// The word goal of the library.
namespace WordGoal
{

constexpr qint64 words = 500;

/// Returns the progress from 0 to 1.
constexpr double progress(qint64 total)
{
    const double part = static_cast<double>(total) / static_cast<double>(words);
    return part < 1 ? part : 1;
}

} // namespace WordGoal
