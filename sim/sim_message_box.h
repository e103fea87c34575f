// A message box that shows nothing: it records every box in order and answers from a script,
// OK when the script is empty.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/zt_common.h"

namespace zt::sim {

struct ShownBox {
    std::string text;
    int32_t style = 0;
    std::string title;
    std::array<int32_t, 7> args{};  // the seven fixed arguments, in call order
    int32_t result = 0;             // the answer given
};

class SimMessageBox : public zt::ztMessageBox {
  public:
    void ShowMessage(std::string& text, int32_t& style, std::string& title, int32_t& arg4,
                     int32_t& arg5, int32_t& arg6, int32_t& arg7, int32_t& arg8, int32_t& arg9,
                     int32_t& arg10, int32_t& result) override;

    // Every box shown so far, oldest first.
    const std::vector<ShownBox>& boxes() const { return boxes_; }
    // Forgets the recorded boxes and any scripted answers.
    void clear();
    // Queues the answer for the next box (1 OK, 2 Cancel).
    void answerNext(int32_t result) { script_.push_back(result); }

  private:
    std::vector<ShownBox> boxes_;
    std::deque<int32_t> script_;
};

}  // namespace zt::sim
