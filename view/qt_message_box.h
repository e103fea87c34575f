// The common library's message box shown as a real message box: the component's notices with
// an OK button, its confirmations with OK and Cancel (Cancel the default).
#pragma once

#include <QWidget>

#include <string>

#include "platform/zt_common.h"

namespace zt::view {

class QtMessageBox : public ztMessageBox {
  public:
    void ShowMessage(std::string& text, int32_t& style, std::string& title, int32_t& arg4,
                     int32_t& arg5, int32_t& arg6, int32_t& arg7, int32_t& arg8, int32_t& arg9,
                     int32_t& arg10, int32_t& result) override;

    // The window the boxes belong to (nullptr: none).
    QWidget* owner = nullptr;
    // How many boxes were shown.
    int shown = 0;
};

}  // namespace zt::view
