#include "core/host_services.h"

namespace zt {

ztCommon& HostServices::common() {
    if (common_ == nullptr) {
        common_ = &library_.common();
        common_->SetFont(font_);
    }
    return *common_;
}

ztMessageBox& HostServices::messageBox() {
    return library_.messageBox();
}

std::string HostServices::text(const msg::Message& message) {
    return common().GetMessageText(message.number, std::string(message.defaultText));
}

int32_t HostServices::showMessage(const std::string& text, int32_t style) {
    std::string boxText = text;
    std::string title = this->text(msg::kGraph);
    int32_t boxStyle = style;
    // Fixed arguments the host's message box expects after the title.
    int32_t a4 = 0, a5 = 2, a6 = 0, a7 = 0, a8 = 0, a9 = -1, a10 = 0;
    int32_t result = 0;
    messageBox().ShowMessage(boxText, boxStyle, title, a4, a5, a6, a7, a8, a9, a10, result);
    return result;
}

}  // namespace zt
