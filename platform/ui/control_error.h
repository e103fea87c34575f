// Errors a hosted control raises for a bad property value or a bad index. The numbers and
// texts are the host platform's, so that they reach the host as it expects them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/zt_common.h"

namespace zt::ui {

inline constexpr int32_t kErrInvalidProcedureCall = 5;
inline constexpr int32_t kErrTypeMismatch = 13;
inline constexpr int32_t kErrNoArrayElement = 340;
inline constexpr int32_t kErrAlreadyLoaded = 360;
inline constexpr int32_t kErrInvalidPropertyValue = 380;
inline constexpr int32_t kErrInvalidPropertyIndex = 381;
inline constexpr int32_t kErrTextReadOnly = 383;
inline constexpr int32_t kErrObjectRequired = 424;
inline constexpr int32_t kErrIndexOutOfBounds = 35600;

[[noreturn]] inline void throwInvalidPropertyValue() {
    throw AutomationError(kErrInvalidPropertyValue, "Invalid property value");
}
[[noreturn]] inline void throwInvalidProcedureCall() {
    throw AutomationError(kErrInvalidProcedureCall, "Invalid procedure call or argument");
}
[[noreturn]] inline void throwIndexOutOfBounds() {
    throw AutomationError(kErrIndexOutOfBounds, "Index out of bounds");
}
[[noreturn]] inline void throwNoArrayElement(int index) {
    throw AutomationError(kErrNoArrayElement,
                          "Control array element '" + std::to_string(index) + "' doesn't exist");
}

}  // namespace zt::ui
