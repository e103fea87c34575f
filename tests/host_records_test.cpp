#include "platform/host_records.h"

#include <gtest/gtest.h>

namespace zt {
namespace {

TEST(SampleRecord, EncodesTwentyFourLittleEndianBytes) {
    SampleRecord r;
    r.lngDiffTime = 120;
    r.intFaultData = -1;
    r.intDigitalData = 5;
    r.lngAnalogData = {-312, 4000, 0x01020304, 0};
    std::array<uint8_t, kSampleRecordBytes> bytes{};
    encode(r, bytes);
    const std::array<uint8_t, kSampleRecordBytes> expected{
        120,  0,    0, 0, 0xFF, 0xFF, 5, 0, 0xC8, 0xFE, 0xFF, 0xFF,
        0xA0, 0x0F, 0, 0, 4,    3,    2, 1, 0,    0,    0,    0};
    EXPECT_EQ(bytes, expected);
    EXPECT_EQ(decodeSampleRecord(bytes), r);
}

TEST(GraphRequest, FieldsLandAtTheirOffsets) {
    GRAPH_REQUEST q;
    q.intDigitalCount = 1;
    q.intAnalogCount = 2;
    q.intAnalogItem = {0, 201, 0, 202};
    q.intAnalogTarget = {0, 3, 0, 3};
    q.intTriggerStation = 255;
    q.intMaskHalf = 7;
    q.lngMask = 13;
    q.lngInterval = 100;
    q.intUnit[3] = 3;
    q.intDecPoint[0] = 2;
    q.lngBaseValue[1] = 60000;
    q.lngReserved[1] = -1;
    const auto b = encode(q);
    ASSERT_EQ(b.size(), 100u);
    EXPECT_EQ(b[0], 1);
    EXPECT_EQ(b[2], 2);
    EXPECT_EQ(b[14], 201);  // analog item element 1
    EXPECT_EQ(b[18], 202);  // analog item element 3
    EXPECT_EQ(b[30], 3);    // analog target element 1
    EXPECT_EQ(b[36], 255);
    EXPECT_EQ(b[42], 7);
    EXPECT_EQ(b[44], 13);
    EXPECT_EQ(b[48], 100);
    EXPECT_EQ(b[58], 3);     // unit element 3
    EXPECT_EQ(b[60], 2);     // decimal places element 0
    EXPECT_EQ(b[72], 0x60);  // base value element 1 = 60000 = 0xEA60
    EXPECT_EQ(b[73], 0xEA);
    EXPECT_EQ(b[88], 0xFF);
    EXPECT_EQ(b[91], 0xFF);
    EXPECT_EQ(decodeGraphRequest(b), q);
}

TEST(StationRecord, ModelCodeAndAttributeRoundTrip) {
    STATION_RECORD s;
    s.intStationNo = 3;
    s.lngModelCode = kStationNotPresent;
    s.lngAttribute = 0x100;
    const auto b = encode(s);
    EXPECT_EQ(b[0], 3);
    EXPECT_EQ(b[4], 0xFF);
    EXPECT_EQ(b[7], 0xFF);
    EXPECT_EQ(b[41], 0x01);
    const auto back = decodeStationRecord(b);
    EXPECT_EQ(back, s);
    EXPECT_FALSE(back.present());
}

TEST(IniFileItem, SixtyBytesWithNamedFields) {
    INIFILE_ITEM item;
    item.lngData[1] = 19200;
    item.lngData[9] = 1;
    item.lngData[10] = 1;
    const auto b = encode(item);
    EXPECT_EQ(b.size(), 60u);
    EXPECT_EQ(b[4], 0x00);
    EXPECT_EQ(b[5], 0x4B);  // 19200 = 0x4B00
    EXPECT_EQ(b[36], 1);
    EXPECT_EQ(b[40], 1);
    const auto back = decodeIniFileItem(b);
    EXPECT_EQ(back.baudRate(), 19200);
    EXPECT_EQ(back.linkKind(), 1);
    EXPECT_EQ(back.factorFlag(), 1);
}

}  // namespace
}  // namespace zt
