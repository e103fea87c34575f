// Option values of the command-line tools.
#pragma once

#include <optional>
#include <string>

namespace zt::cli {

// A whole number written exactly (no sign, blanks or trailing text) within `low` … `high`.
std::optional<int> wholeNumberArg(const std::string& text, int low, int high);

}  // namespace zt::cli
