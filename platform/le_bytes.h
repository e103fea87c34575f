// Little-endian reading and writing of integers and IEEE floats in byte buffers, independent
// of the machine's own byte order.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

namespace zt {

template <typename T>
void putLE(std::span<uint8_t> out, std::size_t offset, T value) {
    static_assert(std::is_arithmetic_v<T>);
    using U = std::conditional_t<
        sizeof(T) == 8, uint64_t,
        std::conditional_t<sizeof(T) == 4, uint32_t,
                           std::conditional_t<sizeof(T) == 2, uint16_t, uint8_t>>>;
    const U bits = std::bit_cast<U>(value);
    for (std::size_t i = 0; i < sizeof(T); ++i) {
        out[offset + i] = static_cast<uint8_t>(bits >> (8 * i));
    }
}

template <typename T>
T getLE(std::span<const uint8_t> in, std::size_t offset) {
    static_assert(std::is_arithmetic_v<T>);
    using U = std::conditional_t<
        sizeof(T) == 8, uint64_t,
        std::conditional_t<sizeof(T) == 4, uint32_t,
                           std::conditional_t<sizeof(T) == 2, uint16_t, uint8_t>>>;
    U bits = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
        bits = static_cast<U>(bits | (static_cast<U>(in[offset + i]) << (8 * i)));
    }
    return std::bit_cast<T>(bits);
}

}  // namespace zt
