// Host record decoders on any bytes: decoding never fails, and encoding what was decoded gives
// back the same bytes (every byte of the fixed layouts is carried).
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include "platform/host_records.h"

namespace {

template <std::size_t N, typename Decode, typename Encode>
void roundTrip(const uint8_t* data, std::size_t size, Decode decode, Encode encode) {
    std::array<uint8_t, N> in{};
    std::memcpy(in.data(), data, std::min(size, N));
    const auto record = decode(std::span<const uint8_t, N>(in));
    const std::array<uint8_t, N> out = encode(record);
    if (out != in) {
        std::fprintf(stderr, "record of %zu bytes does not encode back\n", N);
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    using namespace zt;
    roundTrip<kGraphRequestBytes>(data, size, decodeGraphRequest,
                                  [](const GRAPH_REQUEST& r) { return encode(r); });
    roundTrip<kStationRecordBytes>(data, size, decodeStationRecord,
                                   [](const STATION_RECORD& r) { return encode(r); });
    roundTrip<kIniFileItemBytes>(data, size, decodeIniFileItem,
                                 [](const INIFILE_ITEM& r) { return encode(r); });
    roundTrip<kSampleRecordBytes>(data, size, decodeSampleRecord, [](const SampleRecord& r) {
        std::array<uint8_t, kSampleRecordBytes> out{};
        encode(r, out);
        return out;
    });
    // A reply of many records: each decoded in turn, as the host hands them over.
    for (std::size_t at = 0; at + kSampleRecordBytes <= size; at += kSampleRecordBytes) {
        const SampleRecord r =
            decodeSampleRecord(std::span<const uint8_t, kSampleRecordBytes>(data + at, 24));
        if (static_cast<uint16_t>(r.intDigitalData) >> 16 != 0) std::abort();
    }
    return 0;
}
