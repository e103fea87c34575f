#include "cli/arguments.h"

#include <charconv>

namespace zt::cli {

std::optional<int> wholeNumberArg(const std::string& text, int low, int high) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc{} || stop != end || value < low || value > high)
        return std::nullopt;
    return value;
}

}  // namespace zt::cli
