#pragma once

#include <QPointF>

#include <array>

/// The outline of the flame on a grid of 24 × 24: the starting point, then three points for each cubic Bézier
/// curve, the last of which closes the outline. The symbol "flame.fill" has the same outline.
inline constexpr double flameGrid = 24;
inline constexpr double flameTip = 1.2;
inline constexpr double flameFoot = 22.8;
inline constexpr QPointF flameStart{10.6, flameTip};
inline constexpr std::array<std::array<QPointF, 3>, 7> flameCurves{{
    {{{11.1, 4.3}, {9.6, 6.5}, {7.9, 8.9}}},
    {{{6.3, 11.1}, {4.6, 13.2}, {4.6, 15.9}}},
    {{{4.6, 19.8}, {7.9, flameFoot}, {12, flameFoot}}},
    {{{16.1, flameFoot}, {19.4, 19.8}, {19.4, 15.7}}},
    {{{19.4, 12.9}, {18.2, 10.6}, {16.6, 8.6}}},
    {{{16.5, 10}, {16, 11.1}, {15, 11.9}}},
    {{{15.2, 7.7}, {13.6, 3.8}, flameStart}},
}};
