#include "platform/host_records.h"

#include "platform/le_bytes.h"

namespace zt {

void encode(const SampleRecord& record, std::span<uint8_t, kSampleRecordBytes> out) {
    putLE(out, 0, record.lngDiffTime);
    putLE(out, 4, record.intFaultData);
    putLE(out, 6, record.intDigitalData);
    for (std::size_t k = 0; k < 4; ++k)
        putLE(out, 8 + 4 * k, record.lngAnalogData[k]);
}

SampleRecord decodeSampleRecord(std::span<const uint8_t, kSampleRecordBytes> in) {
    SampleRecord r;
    r.lngDiffTime = getLE<int32_t>(in, 0);
    r.intFaultData = getLE<int16_t>(in, 4);
    r.intDigitalData = getLE<int16_t>(in, 6);
    for (std::size_t k = 0; k < 4; ++k)
        r.lngAnalogData[k] = getLE<int32_t>(in, 8 + 4 * k);
    return r;
}

namespace {

template <typename T, std::size_t N>
void putArray(std::span<uint8_t> out, std::size_t offset, const std::array<T, N>& values) {
    for (std::size_t k = 0; k < N; ++k)
        putLE(out, offset + sizeof(T) * k, values[k]);
}

template <typename T, std::size_t N>
void getArray(std::span<const uint8_t> in, std::size_t offset, std::array<T, N>& values) {
    for (std::size_t k = 0; k < N; ++k)
        values[k] = getLE<T>(in, offset + sizeof(T) * k);
}

}  // namespace

std::array<uint8_t, kGraphRequestBytes> encode(const GRAPH_REQUEST& q) {
    std::array<uint8_t, kGraphRequestBytes> out{};
    putLE(out, 0, q.intDigitalCount);
    putLE(out, 2, q.intAnalogCount);
    putArray(out, 4, q.intDigitalItem);
    putArray(out, 12, q.intAnalogItem);
    putArray(out, 20, q.intDigitalTarget);
    putArray(out, 28, q.intAnalogTarget);
    putLE(out, 36, q.intTriggerStation);
    putLE(out, 38, q.intTriggerMode);
    putLE(out, 40, q.intSamplingSpeed);
    putLE(out, 42, q.intMaskHalf);
    putLE(out, 44, q.lngMask);
    putLE(out, 48, q.lngInterval);
    putArray(out, 52, q.intUnit);
    putArray(out, 60, q.intDecPoint);
    putArray(out, 68, q.lngBaseValue);
    putArray(out, 84, q.lngReserved);
    return out;
}

GRAPH_REQUEST decodeGraphRequest(std::span<const uint8_t, kGraphRequestBytes> in) {
    GRAPH_REQUEST q;
    q.intDigitalCount = getLE<int16_t>(in, 0);
    q.intAnalogCount = getLE<int16_t>(in, 2);
    getArray(in, 4, q.intDigitalItem);
    getArray(in, 12, q.intAnalogItem);
    getArray(in, 20, q.intDigitalTarget);
    getArray(in, 28, q.intAnalogTarget);
    q.intTriggerStation = getLE<int16_t>(in, 36);
    q.intTriggerMode = getLE<int16_t>(in, 38);
    q.intSamplingSpeed = getLE<int16_t>(in, 40);
    q.intMaskHalf = getLE<int16_t>(in, 42);
    q.lngMask = getLE<int32_t>(in, 44);
    q.lngInterval = getLE<int32_t>(in, 48);
    getArray(in, 52, q.intUnit);
    getArray(in, 60, q.intDecPoint);
    getArray(in, 68, q.lngBaseValue);
    getArray(in, 84, q.lngReserved);
    return q;
}

std::array<uint8_t, kStationRecordBytes> encode(const STATION_RECORD& s) {
    std::array<uint8_t, kStationRecordBytes> out{};
    putLE(out, 0, s.intStationNo);
    putLE(out, 2, s.intReserved2);
    putLE(out, 4, s.lngModelCode);
    putLE(out, 8, s.lngCapacity);
    putLE(out, 12, s.lngRegion);
    putLE(out, 16, s.lngSpModel);
    putArray(out, 20, s.lngReserved20);
    putLE(out, 40, s.lngAttribute);
    putLE(out, 44, s.lngReserved44);
    return out;
}

STATION_RECORD decodeStationRecord(std::span<const uint8_t, kStationRecordBytes> in) {
    STATION_RECORD s;
    s.intStationNo = getLE<int16_t>(in, 0);
    s.intReserved2 = getLE<int16_t>(in, 2);
    s.lngModelCode = getLE<int32_t>(in, 4);
    s.lngCapacity = getLE<int32_t>(in, 8);
    s.lngRegion = getLE<int32_t>(in, 12);
    s.lngSpModel = getLE<int32_t>(in, 16);
    getArray(in, 20, s.lngReserved20);
    s.lngAttribute = getLE<int32_t>(in, 40);
    s.lngReserved44 = getLE<int32_t>(in, 44);
    return s;
}

std::array<uint8_t, kIniFileItemBytes> encode(const INIFILE_ITEM& item) {
    std::array<uint8_t, kIniFileItemBytes> out{};
    putArray(out, 0, item.lngData);
    return out;
}

INIFILE_ITEM decodeIniFileItem(std::span<const uint8_t, kIniFileItemBytes> in) {
    INIFILE_ITEM item;
    getArray(in, 0, item.lngData);
    return item;
}

}  // namespace zt
