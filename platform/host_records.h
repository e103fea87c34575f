// Records that cross the boundary between the host, its common library and the graph
// component. Records with a fixed byte layout have encode/decode functions that produce and
// read exactly that layout, little-endian, whatever the machine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zt {

// Station number meaning "no station" throughout the component.
inline constexpr int32_t kNoStation = 32;
// Number of stations on the host's link (0 to 31).
inline constexpr int kStationCount = 32;
// Model-code value that marks a station as not present.
inline constexpr int32_t kStationNotPresent = static_cast<int32_t>(0xFFFFFFFF);
// Item code of the "None" item.
inline constexpr int32_t kNoneItem = 0x8000;

// One sample of a graph: 24 bytes.
struct SampleRecord {
    int32_t lngDiffTime = 0;                 // interval since the previous sample, 0.1 ms
    int16_t intFaultData = 0;                // fault word
    int16_t intDigitalData = 0;              // bit 0 = channel 5 ... bit 3 = channel 8
    std::array<int32_t, 4> lngAnalogData{};  // raw counts of analog channels 1 to 4

    friend bool operator==(const SampleRecord&, const SampleRecord&) = default;
};
inline constexpr std::size_t kSampleRecordBytes = 24;
void encode(const SampleRecord& record, std::span<uint8_t, kSampleRecordBytes> out);
SampleRecord decodeSampleRecord(std::span<const uint8_t, kSampleRecordBytes> in);

// Number of sample records in one graph.
inline constexpr int kGraphRecords = 10000;

// Request record of a sampling run: 100 bytes. Offsets in the comments.
struct GRAPH_REQUEST {
    int16_t intDigitalCount = 0;                // 0
    int16_t intAnalogCount = 0;                 // 2
    std::array<int16_t, 4> intDigitalItem{};    // 4: channels 5 to 8
    std::array<int16_t, 4> intAnalogItem{};     // 12: channels 1 to 4
    std::array<int16_t, 4> intDigitalTarget{};  // 20
    std::array<int16_t, 4> intAnalogTarget{};   // 28
    int16_t intTriggerStation = 0;              // 36
    int16_t intTriggerMode = 0;                 // 38
    int16_t intSamplingSpeed = 0;               // 40
    int16_t intMaskHalf = 0;                    // 42
    int32_t lngMask = 0;                        // 44
    int32_t lngInterval = 0;                    // 48
    std::array<int16_t, 4> intUnit{};           // 52: filled by the host
    std::array<int16_t, 4> intDecPoint{};       // 60: filled by the host
    std::array<int32_t, 4> lngBaseValue{};      // 68: filled by the host
    std::array<int32_t, 4> lngReserved{};       // 84, 88, 92, 96

    friend bool operator==(const GRAPH_REQUEST&, const GRAPH_REQUEST&) = default;
};
inline constexpr std::size_t kGraphRequestBytes = 100;
std::array<uint8_t, kGraphRequestBytes> encode(const GRAPH_REQUEST& request);
GRAPH_REQUEST decodeGraphRequest(std::span<const uint8_t, kGraphRequestBytes> in);

// One station of the host's link: 48 bytes. Only the named fields are read by the component;
// the rest travel unchanged.
struct STATION_RECORD {
    int16_t intStationNo = 0;                // 0
    int16_t intReserved2 = 0;                // 2
    int32_t lngModelCode = 0;                // 4: kStationNotPresent when absent
    int32_t lngCapacity = 0;                 // 8
    int32_t lngRegion = 0;                   // 12
    int32_t lngSpModel = 0;                  // 16
    std::array<int32_t, 5> lngReserved20{};  // 20 to 39
    int32_t lngAttribute = 0;                // 40: bit 0x100 = values taken without conversion
    int32_t lngReserved44 = 0;               // 44

    bool present() const { return lngModelCode != kStationNotPresent; }
    friend bool operator==(const STATION_RECORD&, const STATION_RECORD&) = default;
};
inline constexpr std::size_t kStationRecordBytes = 48;
std::array<uint8_t, kStationRecordBytes> encode(const STATION_RECORD& station);
STATION_RECORD decodeStationRecord(std::span<const uint8_t, kStationRecordBytes> in);

// The host's system record: its station list comes first.
struct SYS_INFO {
    std::vector<STATION_RECORD> udtStation;
};

// Station state answered by the common library's state query: 48 bytes.
struct STATION_STATE {
    std::array<int32_t, 6> lngReserved0{};   // 0 to 23
    int32_t lngLinkState = 0;                // 24: 1 when the station is ready for sampling
    std::array<int32_t, 5> lngReserved28{};  // 28 to 47
};
inline constexpr std::size_t kStationStateBytes = 48;

// Station communication record answered by the communication query: 40 bytes.
struct STATION_COMM {
    std::array<int32_t, 9> lngReserved0{};  // 0 to 35
    int32_t lngErrorCode = 0;               // 36: last communication error, 0 when none
};
inline constexpr std::size_t kStationCommBytes = 40;

// Settings-file record of the host: fifteen 32-bit fields.
struct INIFILE_ITEM {
    std::array<int32_t, 15> lngData{};

    // Byte 4: serial baud rate.
    int32_t baudRate() const { return lngData[1]; }
    // Byte 36: link kind, 0 serial link, 1 the other link.
    int32_t linkKind() const { return lngData[9]; }
    // Byte 40: 1 doubles the minimum sampling interval.
    int32_t factorFlag() const { return lngData[10]; }

    friend bool operator==(const INIFILE_ITEM&, const INIFILE_ITEM&) = default;
};
inline constexpr std::size_t kIniFileItemBytes = 60;
std::array<uint8_t, kIniFileItemBytes> encode(const INIFILE_ITEM& item);
INIFILE_ITEM decodeIniFileItem(std::span<const uint8_t, kIniFileItemBytes> in);

// One monitor item of a station (the element of every item list).
struct ITEM_INFO {
    int32_t lngItemCode = 0;        // kNoneItem is the "None" item
    std::string strInOutName;       // display name of an on/off item
    std::string strAnalogName;      // display name of an analog item
    int32_t lngUnitCode = 0;        // turned into text by the common library
    int32_t lngFullScale = 0;       // full-scale value
    int16_t intAttribute = 0;       // bit 0 signed, bit 1 fault-zeroed, bit 2 effective value
    int16_t intReserved = 0;        // carried unchanged
    int32_t lngFlags = 0;           // bit 0 monitor sampling, bit 1 high-speed sampling
    std::vector<int32_t> lngValue;  // the eleven values e0 to e10 (may be shorter or empty)

    friend bool operator==(const ITEM_INFO&, const ITEM_INFO&) = default;
};

// Item lists of one station as the host hands them over.
struct MONI_ITEM {
    std::vector<ITEM_INFO> udtAnalog;  // analog items
    std::vector<ITEM_INFO> udtInput;   // first list of on/off items
    std::vector<ITEM_INFO> udtOutput;  // second list of on/off items
    int32_t lngCapacity = 0;           // station fields at bytes 8, 12 and 16
    int32_t lngRegion = 0;
    int32_t lngSpModel = 0;
};

// One entry of the host's message list.
struct MSG_ITEM {
    int32_t lngMsgNo = 0;
    std::string strMsg;
};

// One reply of a sampling run: the sample records delivered by the host.
struct GRAPH_RESULT_INFO {
    std::vector<SampleRecord> udtSample;
};

// Records that the component accepts and does not read.
struct PARAMETER_INFO {
    std::vector<int32_t> lngData;
};
struct MODEL_INFO {
    std::vector<int32_t> lngData;
};
struct INV_STATUS {
    std::vector<int32_t> lngData;
};
struct CONT_INFO {
    std::vector<int32_t> lngData;
};
struct VERSION_INFO {
    std::vector<int32_t> lngData;
};
// Program version of the host: the first two fields are its major and minor number.
struct PROGRAM_VERSION {
    int32_t lngMajor = 0;
    int32_t lngMinor = 0;
    std::vector<int32_t> lngData;
};

}  // namespace zt
