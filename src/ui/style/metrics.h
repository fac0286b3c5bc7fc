#pragma once

/// The one scale of distances and shapes, in points (device-independent pixels).
namespace tarvo::ui::metrics {

// Distances: every gap and padding of the interface is one of these.
inline constexpr int hair = 2;
inline constexpr int tight = 4;
inline constexpr int small = 6;
inline constexpr int regular = 8;
inline constexpr int medium = 12;
inline constexpr int large = 16;
inline constexpr int huge = 24;

// Cards.
inline constexpr int cardPadding = 12;
inline constexpr double cardRadius = 14;
inline constexpr double cardOutline = 0.5;
inline constexpr double cardOutlineOpacity = 0.08;

// Bars.
inline constexpr int barHeight = 6;
inline constexpr double barMinimum = 4;

} // namespace tarvo::ui::metrics
