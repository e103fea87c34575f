// The host machine's regional settings and screen metrics, as the component's text and number
// rules and its layout read them. Passed in by the host; the component reads no environment.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace zt {

struct HostLocale {
    std::string decimalSeparator = ".";
    std::string thousandsSeparator = ",";
    std::string currencySymbol = "$";
    // ANSI code page of the system (1252 Western, 932 Japanese, ...).
    int codePage = 1252;
    // Short date and long time patterns in the host platform's notation ("M/d/yyyy",
    // "h:mm:ss tt", "yyyy/MM/dd", "H:mm:ss", ...).
    std::string shortDatePattern = "M/d/yyyy";
    std::string timePattern = "h:mm:ss tt";
    std::string amDesignator = "AM";
    std::string pmDesignator = "PM";
};

struct HostEnvironment {
    HostLocale locale;
    // Screen twips per pixel (15 at 96 dpi).
    int twipsPerPixelX = 15;
    int twipsPerPixelY = 15;
    // Local wall-clock time; the default reads the system clock.
    std::function<std::chrono::system_clock::time_point()> now = [] {
        return std::chrono::system_clock::now();
    };
};

}  // namespace zt
