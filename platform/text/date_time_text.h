// Date and time text in the user's locale patterns.
#pragma once

#include <chrono>
#include <ctime>
#include <string>
#include <string_view>

#include "platform/host_locale.h"

namespace zt::text {

// Formats the fields of `local` with a date or time pattern in the host platform's notation:
// d dd (day), ddd dddd (English day name), M MM (month), MMM MMMM (English month name), y (year
// of century), yy (two digits), yyy and longer (full year), h hh (12-hour), H HH (24-hour),
// m mm, s ss, t (first character of the AM/PM designator), tt (designator). Text in single
// quotes is literal ('' is a quote); every other character is copied. Out-of-range fields are
// clamped, never trusted as indexes.
std::string formatDateTimePattern(const std::tm& local, std::string_view pattern,
                                  const HostLocale& locale);

// The date in the short date pattern, one blank, the time in the time pattern.
std::string dateTimeText(const std::tm& local, const HostLocale& locale);

// Local calendar fields of a point in time; all-zero fields when the time cannot be converted.
std::tm localTime(std::chrono::system_clock::time_point time);

}  // namespace zt::text
