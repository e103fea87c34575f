// Reads a fuzzer's input as a stream of small values, so that one input can describe a file
// and a sequence of operations on it. Reading past the end gives zeros and empty texts.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace zt::fuzz {

class FuzzInput {
  public:
    FuzzInput(const uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool empty() const { return pos_ >= size_; }

    uint8_t byte() { return pos_ < size_ ? data_[pos_++] : 0; }

    template <typename T>
    T value() {
        T out{};
        uint8_t raw[sizeof(T)] = {};
        const std::size_t n = std::min(sizeof(T), size_ - std::min(pos_, size_));
        if (n > 0) std::memcpy(raw, data_ + pos_, n);
        pos_ += n;
        std::memcpy(&out, raw, sizeof(T));
        return out;
    }

    // A text of up to `maxLength` bytes: a length byte, then the bytes.
    std::string text(std::size_t maxLength = 255) {
        const std::size_t length = std::min<std::size_t>(byte(), maxLength);
        return bytes(length);
    }

    std::string bytes(std::size_t length) {
        const std::size_t n = std::min(length, size_ - std::min(pos_, size_));
        std::string out(reinterpret_cast<const char*>(data_ + pos_), n);
        pos_ += n;
        return out;
    }

    // The rest of the input.
    std::string rest() { return bytes(size_ - std::min(pos_, size_)); }

  private:
    const uint8_t* data_;
    std::size_t size_;
    std::size_t pos_ = 0;
};

}  // namespace zt::fuzz
