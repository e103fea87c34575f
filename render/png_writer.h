// A PNG encoder tuned for speed rather than the smallest file: one filter for every row and
// deflate's fastest level.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zt::render {

// Encodes opaque pixels (0xAARRGGBB, `stride` pixels per row; alpha is ignored) as an 8-bit RGB
// PNG. Returns an empty string when the size is not positive.
std::string encodePng(const uint32_t* pixels, int width, int height, int stride);

// Writes `bytes` to `path`; false when the file cannot be written.
bool writeFile(std::string_view path, const std::string& bytes);

}  // namespace zt::render
