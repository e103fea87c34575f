#include "sim/sim_message_box.h"

namespace zt::sim {

void SimMessageBox::ShowMessage(std::string& text, int32_t& style, std::string& title,
                                int32_t& arg4, int32_t& arg5, int32_t& arg6, int32_t& arg7,
                                int32_t& arg8, int32_t& arg9, int32_t& arg10, int32_t& result) {
    result = kResultOk;
    if (!script_.empty()) {
        result = script_.front();
        script_.pop_front();
    }
    boxes_.push_back(
        ShownBox{text, style, title, {arg4, arg5, arg6, arg7, arg8, arg9, arg10}, result});
}

void SimMessageBox::clear() {
    boxes_.clear();
    script_.clear();
}

}  // namespace zt::sim
