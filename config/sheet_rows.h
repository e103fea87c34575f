// Rows of the three setting sheets, numbered from the top as a person reads them; column 0
// holds the row labels.
#pragma once

namespace zt {

// Channel sheet: one column per channel 1 to 8.
inline constexpr int kRowColor = 1;
inline constexpr int kRowStation = 2;
inline constexpr int kRowName = 3;
inline constexpr int kFirstReadoutRow = 4;
inline constexpr int kLastReadoutRow = 8;

// Trigger sheet: the values in column 1.
inline constexpr int kTriggerRowType = 1;
inline constexpr int kTriggerRowTarget = 2;
inline constexpr int kTriggerRowBoot = 3;
inline constexpr int kTriggerRowLevel = 4;
inline constexpr int kTriggerRowPosition = 5;

// Sampling sheet: the values in column 1.
inline constexpr int kSamplingRowMode = 1;
inline constexpr int kSamplingRowSpeed = 2;
inline constexpr int kSamplingRowInterval = 3;
inline constexpr int kSamplingRowTime = 4;

}  // namespace zt
