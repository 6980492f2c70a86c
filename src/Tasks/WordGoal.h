#pragma once

#include <QtGlobal>

/// How far the writer has come.
namespace WordGoal
{

constexpr qint64 words = 500;

/// From 0 to 1, where it stays however much is written.
constexpr double progress(qint64 total)
{
    const double part = static_cast<double>(total) / static_cast<double>(words);
    return part < 1 ? part : 1;
}

} // namespace WordGoal
