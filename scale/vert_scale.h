// Rules of the per-channel vertical scale: the offered scale list, how a typed scale becomes
// the channel's scale, its limits, the zero position that keeps a centre on the middle line,
// the zero-position steps and the fit of a scale to a curve's extremes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/graph_info.h"
#include "platform/host_locale.h"

namespace zt {

inline constexpr double kVertScaleMin = 0.1;
inline constexpr double kVertScaleMax = 99999999.9;

// Full scale / 10, / 20, / 100, / 200, / 1000, each as the default text of the double.
std::vector<std::string> vertScaleList(int32_t fullScale, const HostLocale& locale);

// A scale as the scale box shows it ("########0.0").
std::string vertScaleText(double scale, const HostLocale& locale);

// The scale a box text stands for: a numeric text is trimmed, cut to nine characters and
// rounded to one decimal; what is not numeric after the cut gives 0.1. nullopt when the box
// text is not numeric at all (the scale stays as it is).
std::optional<double> vertScaleFromText(const std::string& text, const HostLocale& locale);

// Above 99999999.9 gives 99999999.9, 0.1 or less gives 0.1.
double limitVertScale(double scale);

// Scale `scale` with its zero placed so that value `centre` lies on the middle line. A centre
// more than 30000 divisions from zero widens the scale to keep the zero position in range.
VERTSCALE centredVertScale(double centre, double scale);

// The scale that fits a curve between `minimum` and `maximum` into the middle eight
// divisions, rounded up to the next tenth, centred.
VERTSCALE optimisedVertScale(double minimum, double maximum);

// Zero-position steps of an analog channel: up is refused once the top of the plot would fall
// below the item's lowest value, down once the bottom would rise above its highest.
bool analogZeroCanRise(int zero, double scale, bool signedItem);
bool analogZeroCanFall(int zero, double scale, bool signedItem);
// A digital channel's zero position runs from 0 to 9.
inline constexpr int kDigitalZeroMax = 9;

}  // namespace zt
