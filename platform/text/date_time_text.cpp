#include "platform/text/date_time_text.h"

#include <algorithm>
#include <array>
#include <string>

namespace zt::text {

namespace {

constexpr std::array<const char*, 7> kDayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                  "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> kMonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

std::string number(long long value, std::size_t width) {
    bool negative = value < 0;
    std::string digits = std::to_string(negative ? -value : value);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return negative ? "-" + digits : digits;
}

std::string name(const char* full, std::size_t run) {
    std::string text = full;
    return run == 3 ? text.substr(0, 3) : text;
}

}  // namespace

std::string formatDateTimePattern(const std::tm& local, std::string_view pattern,
                                  const HostLocale& locale) {
    const int second = std::clamp(local.tm_sec, 0, 60);
    const int minute = std::clamp(local.tm_min, 0, 59);
    const int hour = std::clamp(local.tm_hour, 0, 23);
    const int day = std::clamp(local.tm_mday, 1, 31);
    const int month = std::clamp(local.tm_mon, 0, 11);
    const int weekday = std::clamp(local.tm_wday, 0, 6);
    const long long year = static_cast<long long>(local.tm_year) + 1900;
    const std::string& designator = hour < 12 ? locale.amDesignator : locale.pmDesignator;

    std::string text;
    std::size_t i = 0;
    while (i < pattern.size()) {
        const char c = pattern[i];
        if (c == '\'') {
            std::size_t j = i + 1;
            while (j < pattern.size()) {
                if (pattern[j] == '\'') {
                    if (j + 1 < pattern.size() && pattern[j + 1] == '\'') {
                        text += '\'';
                        j += 2;
                        continue;
                    }
                    break;
                }
                text += pattern[j++];
            }
            i = j + 1;
            continue;
        }
        std::size_t run = 1;
        while (i + run < pattern.size() && pattern[i + run] == c)
            ++run;
        switch (c) {
            case 'd':
                text += run <= 2 ? number(day, run) : name(kDayNames[weekday], run);
                break;
            case 'M':
                text += run <= 2 ? number(month + 1, run) : name(kMonthNames[month], run);
                break;
            case 'y':
                text += run <= 2 ? number(((year % 100) + 100) % 100, run) : number(year, 4);
                break;
            case 'h':
                text += number(hour % 12 == 0 ? 12 : hour % 12, std::min<std::size_t>(run, 2));
                break;
            case 'H':
                text += number(hour, std::min<std::size_t>(run, 2));
                break;
            case 'm':
                text += number(minute, std::min<std::size_t>(run, 2));
                break;
            case 's':
                text += number(second, std::min<std::size_t>(run, 2));
                break;
            case 't':
                text += run == 1 ? designator.substr(0, designator.empty() ? 0 : 1) : designator;
                break;
            default:
                text.append(run, c);
                break;
        }
        i += run;
    }
    return text;
}

std::string dateTimeText(const std::tm& local, const HostLocale& locale) {
    return formatDateTimePattern(local, locale.shortDatePattern, locale) + " " +
           formatDateTimePattern(local, locale.timePattern, locale);
}

std::tm localTime(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm fields{};
    if (localtime_r(&seconds, &fields) == nullptr) return std::tm{};
    return fields;
}

}  // namespace zt::text
