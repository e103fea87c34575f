// The component's access to its common-library objects: message texts and message boxes.
// The objects are created on first use and kept for the life of the control.
#pragma once

#include <cstdint>
#include <string>

#include "core/message_catalogue.h"
#include "platform/common_library.h"
#include "platform/font.h"

namespace zt {

class HostServices {
  public:
    HostServices(CommonLibrary& library, Font font) : library_(library), font_(std::move(font)) {}

    ztCommon& common();
    ztMessageBox& messageBox();

    // The host's text for a message, or its built-in default.
    std::string text(const msg::Message& message);

    // Shows a box titled "Graph" and returns the user's answer (1 OK, 2 Cancel).
    int32_t showMessage(const std::string& text, int32_t style);
    // Shows a notice (exclamation icon, OK) with the text of a message.
    void notify(const msg::Message& message) { showMessage(text(message), kStyleNotice); }

  private:
    CommonLibrary& library_;
    Font font_;
    ztCommon* common_ = nullptr;
};

}  // namespace zt
