// The public interface of the control: its 39 members in interface order with their fixed
// dispatch ids and kinds, the values that cross a late-bound call, and the dispatch entry
// point that calls a member by id.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/font.h"
#include "platform/graph_host_interface.h"
#include "platform/host_records.h"
#include "platform/zt_common.h"

namespace zt {

class ztGraphControl;

enum class DispatchKind : uint8_t { Method, PropertyGet, PropertyPut };

// Kinds a member answers to, as a bit set.
inline constexpr uint8_t kMethod = 1;
inline constexpr uint8_t kGet = 2;
inline constexpr uint8_t kPut = 4;

struct InterfaceMember {
    int number;  // 1 to 39, interface order
    std::string_view name;
    int32_t dispId;
    uint8_t kinds;
};

inline constexpr std::array<InterfaceMember, 39> kGraphControlMembers{{
    {1, "m_blnStartErr", 0x4003003A, kGet | kPut},
    {2, "GetInifileString", 0x60030053, kMethod},
    {3, "SetInifileString", 0x60030054, kMethod},
    {4, "ReturnChCount", 0x60030055, kMethod},
    {5, "SetMsgItem", 0x60030061, kMethod},
    {6, "SetMonitorItem", 0x60030062, kMethod},
    {7, "SetIniFileItem", 0x60030063, kMethod},
    {8, "SetParameter", 0x60030064, kMethod},
    {9, "GetParameter", 0x60030065, kMethod},
    {10, "SetSysInfo", 0x60030066, kMethod},
    {11, "SetSysStatus", 0x60030067, kMethod},
    {12, "PrintOut", 0x60030068, kMethod},
    {13, "ImportFile", 0x60030069, kMethod},
    {14, "ExportFile", 0x6003006A, kMethod},
    {15, "ChgLineStatus", 0x6003006B, kMethod},
    {16, "ChgSelectNode", 0x6003006C, kMethod},
    {17, "QueryUnLoadU", 0x6003006D, kMethod},
    {18, "setCommonObj", 0x6003006E, kMethod},
    {19, "HeightU", 0x68030009, kGet | kPut},
    {20, "WidthU", 0x68030008, kGet | kPut},
    {21, "CaptionU", 0x68030007, kGet},
    {22, "StatusU", 0x68030006, kGet},
    {23, "SetSamplingData", 0x6003007A, kMethod},
    {24, "SetGraphRequest", 0x6003007E, kMethod},
    {25, "GetGraphRequest", 0x6003007F, kMethod},
    {26, "EventResCommand", 0x6003008E, kMethod},
    {27, "GetHelpContextId", 0x60030090, kMethod},
    {28, "ImportFileExtensionU", 0x68030005, kGet},
    {29, "ExportFileExtensionU", 0x68030004, kGet},
    {30, "ImportFileFilterU", 0x68030003, kGet},
    {31, "ExportFileFilterU", 0x68030002, kGet},
    {32, "CtrlFlagU", 0x68030001, kPut},
    {33, "FontU", 0x68030000, kPut},
    {34, "setContainerInfo", 0x60030092, kMethod},
    {35, "SaveKivFile", 0x60030099, kMethod},
    {36, "LoadKivFile", 0x6003009A, kMethod},
    {37, "SetGraphColor", 0x6003009D, kMethod},
    {38, "getChNode", 0x600300BA, kMethod},
    {39, "showComErrDlg", 0x600300C9, kMethod},
}};

// The member with a dispatch id; nullptr when there is none.
const InterfaceMember* findMember(int32_t dispId);

// The dispatch id of a member by name, for hosts that call by id; 0 for an unknown name.
constexpr int32_t dispIdOf(std::string_view name) {
    for (const InterfaceMember& m : kGraphControlMembers) {
        if (m.name == name) return m.dispId;
    }
    return 0;
}

// A value of a late-bound call. Records and in/out values travel by reference: the dispatch
// writes them back into the argument list.
using DispatchValue =
    std::variant<std::monostate, bool, int16_t, int32_t, float, std::string, std::vector<MSG_ITEM>,
                 MONI_ITEM, INIFILE_ITEM, MODEL_INFO, PARAMETER_INFO, SYS_INFO, INV_STATUS,
                 GRAPH_RESULT_INFO, GRAPH_REQUEST, CONT_INFO, VERSION_INFO, PROGRAM_VERSION, Font,
                 ztCommon*, PrinterObject*>;

// Automation status codes of a refused call.
inline constexpr int32_t kDispOk = 0;
inline constexpr int32_t kDispMemberNotFound = static_cast<int32_t>(0x80020003);
inline constexpr int32_t kDispTypeMismatch = static_cast<int32_t>(0x80020005);
inline constexpr int32_t kDispBadParamCount = static_cast<int32_t>(0x8002000E);
// The object has disconnected from its clients: any call after Terminate.
inline constexpr int32_t kDispDisconnected = static_cast<int32_t>(0x80010108);

struct DispatchResult {
    int32_t status = kDispOk;  // kDispOk, a refusal code, or the error code of a failed call
    std::string error;         // what went wrong, empty on success
    DispatchValue value;       // the member's result; empty for none
    bool ok() const { return status == kDispOk; }
};

// Calls member `dispId` as `kind` with `args` (in interface parameter order). A wrong id,
// kind, argument count or argument type is refused with its status and a message; an
// automation error raised by the member comes back as its code and text.
DispatchResult dispatch(ztGraphControl& control, int32_t dispId, DispatchKind kind,
                        std::vector<DispatchValue>& args);

}  // namespace zt
