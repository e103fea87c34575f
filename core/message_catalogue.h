// Every user-visible text of the component: its number in the host's message table and the
// built-in English default used when the table has no entry for it.
#pragma once

#include <cstdint>
#include <string_view>

namespace zt::msg {

struct Message {
    int32_t number;
    std::string_view defaultText;
};

// Communication errors.
inline constexpr Message kNode{6, "NODE:"};
inline constexpr Message kCommError{
    7, "Unable to connect to inverter properly.\r\nCommunication Error Code: 0x"};
inline constexpr Message kUnknownError{10, "Unknown error occurred."};
inline constexpr Message kUnexpectedError{12, "Unexpected error occurred.\r\nError Code:"};

// Caption, run buttons and scale panel.
inline constexpr Message kGraph{10000, "Graph"};
inline constexpr Message kStart{10001, "Start"};
inline constexpr Message kStop{10002, "Stop"};
inline constexpr Message kClear{10003, "Clear"};
inline constexpr Message kVerticalAxis{10004, "Vertical Axis"};
inline constexpr Message kHorizontalAxis{10006, "Horizontal Axis"};
inline constexpr Message kMsPerDiv{10007, "ms/Div"};
inline constexpr Message kCursorDisplay{10016, "Cursor Display"};
inline constexpr Message kScaleOne{10017, "One"};
inline constexpr Message kScaleAll{10018, "All"};
inline constexpr Message kScaleDisplay{10019, "Scale Display"};

// Channel sheet.
inline constexpr Message kColor{10021, "Color"};
inline constexpr Message kStationNo{10022, "St.No."};
inline constexpr Message kName{10023, "Name"};
inline constexpr Message kCursorA{10024, "Cursor A"};
inline constexpr Message kCursorB{10025, "Cursor B"};
inline constexpr Message kEffValue{10026, "Eff. value"};
inline constexpr Message kMaxValue{10027, "Max. value"};
inline constexpr Message kMinValue{10028, "Min. value"};
inline constexpr Message kNoValue{10029, "---"};

// Trigger sheet.
inline constexpr Message kTriggerType{10030, "Type"};
inline constexpr Message kStartAt{10032, "Start At"};
inline constexpr Message kLevel{10033, "Level"};
inline constexpr Message kPosition{10034, "Position[%]"};
inline constexpr Message kTrigger{10035, "Trigger"};
inline constexpr Message kNotUsed{10036, "Not used"};
inline constexpr Message kInside{10037, "Inside"};
inline constexpr Message kFault{10038, "Fault"};
inline constexpr Message kRise{10047, "Rise"};
inline constexpr Message kFall{10048, "Fall"};

// Sampling sheet.
inline constexpr Message kSamplingSetting{10049, "Sampling setting"};
inline constexpr Message kMode{10050, "Mode"};
inline constexpr Message kSingleContinuous{10051, "Single/Continuous"};
inline constexpr Message kInterval{10052, "Interval[ms]"};
inline constexpr Message kTime{10053, "Time[ms]"};
inline constexpr Message kMonitor{10054, "Monitor"};
inline constexpr Message kHighSpeed{10055, "High Speed"};
inline constexpr Message kSingle{10056, "Single"};
inline constexpr Message kContinuous{10057, "Continuous"};
inline constexpr Message kChannelTab{10058, "CH"};
inline constexpr Message kTriggerSamplingTab{10059, "Trigger/Sampling"};
inline constexpr Message kNone{10060, "None"};
inline constexpr Message kAscendingOrder{
    10061,
    "Make setting in ascending order from CH1 for analog data.\r\n"
    "Make setting in ascending order from CH5 for digital data."};
inline constexpr Message kTriggerMark{10062, "T"};

// Start checks.
inline constexpr Message kIntervalOutOfRange{10064, "Sampling interval is out of setting range."};
inline constexpr Message kTimeOutOfRange{10065, "Sampling time is out of setting range."};
inline constexpr Message kSelectHighSpeedItem{
    10066, "Select a sampling item from High Speed sampling item."};
inline constexpr Message kSelectMonitorItem{10067,
                                            "Select a sampling item from Monitor sampling item."};
inline constexpr Message kAllChannelsNotSet{10068, "All CH are not set."};
inline constexpr Message kTriggerChannelNotSet{
    10069, "Selected CH is not set. Choose another inside trigger."};
inline constexpr Message kTriggerLevelOutOfRange{10070, "Trigger Level is out of setting range."};
inline constexpr Message kTriggerStationNotConnected{
    10071, "Selected station number is not connected. Choose another trigger station number."};
// The same message when the station entry is marked not present: its default has no full stop.
inline constexpr Message kTriggerStationNotPresent{
    10071, "Selected station number is not connected. Choose another trigger station number"};
inline constexpr Message kFallUnavailable{10072, "\"Fall\" is unavailable for Trigger start."};
inline constexpr Message kTriggerPositionOutOfRange{10073,
                                                    "Trigger Position is out of setting range."};
inline constexpr Message kMaskCount{10075, "Mask count"};

// Runs and files.
inline constexpr Message kSamplingStopped{10079, "Sampling is stopped"};
inline constexpr Message kBufferOverflow{10080, "A buffer overflow occurred"};
inline constexpr Message kImportFilter{10081, "GraphFile(*.gp3; *.gpi3)|*.gp3;*.gpi3"};
inline constexpr Message kExportFilter{10084, "GraphFile(*.gp3)|*.gp3"};

// Cursor and history panels.
inline constexpr Message kBetweenCursors{10085, "Between cursor A and B"};
inline constexpr Message kComment{10086, "Comment"};
inline constexpr Message kPreviousGraph{10087, "previous graph"};
inline constexpr Message kDisplaying{10088, "Displaying"};
inline constexpr Message kMs{10089, "ms"};
inline constexpr Message kScaleTab{10090, "Scale"};
inline constexpr Message kCursorTab{10091, "Cursor"};
inline constexpr Message kHistoryTab{10092, "History"};
inline constexpr Message kGraphDisplayedNow{10093, "Graph displayed now"};
inline constexpr Message kGraphOverwriting{10094, "Graph overwriting"};
inline constexpr Message kOld{10095, "Old"};
inline constexpr Message kNew{10096, "New"};
inline constexpr Message kPreTriggerData{10097, "Sampling Pre-trigger Data"};
inline constexpr Message kWaitingForTrigger{10098, "Waiting for Trigger"};
inline constexpr Message kDataDeleted{10099, "The sampling data is deleted."};
inline constexpr Message kSettingsInitialized{
    10100, "The CH setting and trigger/sampling setting are initialized."};
inline constexpr Message kMaskTip{10101,
                                  "Sampling Interval is approximately equal to (Mask Count + 1) *"};
inline constexpr Message kMaskTipFactor{10102, "0.5"};
inline constexpr Message kMaskTipUnit{10103, "ms"};
inline constexpr Message kOptimizeVertScale{10104, "Optimize VertScale"};
inline constexpr Message kHighSpeedCheckResult{10105, "Err"};
inline constexpr Message kImportChannelError{10106, "Err"};
inline constexpr Message kDataHeader{10107,
                                     "Difference time,Fault data,Digital data,Analog data1,"
                                     "Analog data2,Analog data3,Analog data4="};
inline constexpr Message kProgrammableController{
    10108,
    "Unavailable to perform since programmable controller function is activated.\r\n"
    "Deactivate the programmable controller function, and try again."};
inline constexpr Message kNoHighSpeedSampling{
    10109,
    "It doesn't correspond to a high-speed sampling in the connected inverter.\r\n"
    "Sampling is stopped."};
inline constexpr Message kHighSpeedItemNote{
    10110, "The item to which * has adhered is a high-speed sampling."};

// Names of the built-in two-channel position items.
inline constexpr Message kPositionCommand{10200, "*Position Command [before the electronic gear]"};
inline constexpr Message kCurrentPosition{10201, "*Current Position [before the electronic gear]"};
inline constexpr Message kDroopPulse{10202, "*Droop Pulse [after the electronic gear]"};

}  // namespace zt::msg
