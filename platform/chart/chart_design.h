// The chart's design: the names of its objects in each collection, in the order the component
// looks them up, and the colours it starts with.
#pragma once

#include <array>
#include <string_view>

#include "platform/chart/chart_types.h"

namespace zt::chart::design {

inline constexpr std::string_view kAreas = "Areas";
inline constexpr std::string_view kPlotSeries = "PlotDataCollection";
inline constexpr std::string_view kPulseSeries = "PulseDataCollection";
inline constexpr std::string_view kAxes = "Axes";
inline constexpr std::string_view kShapes = "Shapes";
inline constexpr std::string_view kCursors = "Cursors";
inline constexpr std::string_view kGrids = "Grids";
inline constexpr std::string_view kLines = "Lines";
inline constexpr std::string_view kLabels = "Labels";

// Index = channel - 1: the strip each channel is drawn in.
inline constexpr std::array<std::string_view, 8> kChannelAreas = {
    "PlotArea1",  "PlotArea2",  "PlotArea3",  "PlotArea4",
    "PulseArea1", "PulseArea2", "PulseArea3", "PulseArea4"};
inline constexpr std::string_view kTimeBaseArea = "DummyArea";

// Index n - 1: displayed graph of analog channel n (n = 1-4), overlay of channel n - 4 (5-8).
inline constexpr std::array<std::string_view, 8> kPlotSeriesNames = {
    "PlotData1", "PlotData2", "PlotData3", "PlotData4",
    "PlotData5", "PlotData6", "PlotData7", "PlotData8"};
// Index k - 1: displayed graph of channel k + 4 (k = 1-4), overlay of channel k (k = 5-8).
inline constexpr std::array<std::string_view, 8> kPulseSeriesNames = {
    "PulseData1", "PulseData2", "PulseData3", "PulseData4",
    "PulseData5", "PulseData6", "PulseData7", "PulseData8"};
// The time-base series lives in the analog series collection.
inline constexpr std::string_view kTimeBaseSeries = "DummyData";

// Index = channel - 1; then the time-base series' axis and the time axis.
inline constexpr std::array<std::string_view, 8> kChannelAxes = {
    "Y1Axis", "Y2Axis", "Y3Axis", "Y4Axis", "Y5Axis", "Y6Axis", "Y7Axis", "Y8Axis"};
inline constexpr std::string_view kTimeBaseAxis = "YDummyAxis";
inline constexpr std::string_view kTimeAxis = "XAxis";

inline constexpr std::array<std::string_view, 8> kScaleBacks = {
    "Y1AxisBack", "Y2AxisBack", "Y3AxisBack", "Y4AxisBack",
    "Y5AxisBack", "Y6AxisBack", "Y7AxisBack", "Y8AxisBack"};

inline constexpr std::string_view kCursorA = "VertCursorA";
inline constexpr std::string_view kCursorB = "VertCursorB";
inline constexpr std::string_view kTriggerCursor = "TriggerCursor";
inline constexpr std::string_view kGrid = "Grid";
inline constexpr std::string_view kValueCursorA = "HorzCursorA";
inline constexpr std::string_view kValueCursorB = "HorzCursorB";
inline constexpr std::string_view kEdgeLineB = "DummyVertLineB";
inline constexpr std::string_view kEdgeLineA = "DummyVertLineA";
inline constexpr std::string_view kTriggerStateLabel = "TriggerStateLabel";

// Geometry in pixels.
inline constexpr int kScaleColumnWidth = 80;
inline constexpr int kMarginAllScales = 320;  // four scale columns
inline constexpr int kMarginOneScale = 80;    // one scale column
inline constexpr int kGridTop = 20;
inline constexpr int kGridBottomGap = 30;  // grid bottom = chart height - this
inline constexpr int kStartWidth = 1000;
inline constexpr int kStartHeight = 480;

// Channel colours, index = channel - 1.
inline constexpr std::array<Color, 8> kChannelColors = {0xFFFF00, 0xFF00FF, 0x00FFFF, 0x80FF80,
                                                        0xFF0000, 0x0000FF, 0x0080FF, 0xC0C0C0};
inline constexpr Color kBackground = 0x000000;
inline constexpr Color kGridColor = 0x404000;
inline constexpr Color kCursorColor = 0xE0E0E0;
inline constexpr Color kOverlayColor = 0xC0C0C0;
inline constexpr Color kTextColor = 0xFFFFFF;
inline constexpr Color kTriggerColor = 0x00C000;

}  // namespace zt::chart::design
