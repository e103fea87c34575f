// Rules of the time scale: the offered ms/div list, how a typed entry becomes the scale, and
// the range of the scroll position.
#pragma once

#include <string>
#include <vector>

#include "core/settings_model.h"
#include "platform/host_locale.h"

namespace zt {

// The list of the time-scale box: the upper limit, its half, fifth, tenth and fiftieth while
// above the lower limit, then the lower limit; each as the default text of the double.
std::vector<std::string> horzScaleList(const SAMPSETTING& setting, const HostLocale& locale);

// The scale a box text stands for, within the limits. A text that fails the numeric test or
// holds an exponent letter (e, d) gives ten sampling intervals.
double horzScaleFromText(const std::string& text, const SAMPSETTING& setting,
                         const HostLocale& locale);

// Largest scroll position, in divisions: the recording less the ten divisions shown; 0 when
// the recording fits.
int horzScrollMax(double scale, double samplingTime);

// The recording is longer than the ten divisions shown.
bool recordingExceedsScreen(double scale, double samplingTime);

}  // namespace zt
