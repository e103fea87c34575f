// The whole content of a file as bytes, for tests that compare files byte for byte.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zt {

inline std::string readAll(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace zt
