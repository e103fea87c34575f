// The views of the control kinds, made by makeControlView (control_views.h).
#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <string>

#include "platform/ui/combo_box.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"
#include "platform/ui/up_down.h"
#include "view/control_views.h"

namespace zt::view {

inline QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

std::unique_ptr<ControlView> makeTextView(ui::TextBox& model, QWidget* parent, ViewHost& host);
std::unique_ptr<ControlView> makeComboView(ui::ComboBox& model, QWidget* parent, ViewHost& host);
std::unique_ptr<ControlView> makeScrollView(ui::HScrollBar& model, QWidget* parent, ViewHost& host);
std::unique_ptr<ControlView> makeSpinView(ui::UpDown& model, QWidget* parent, ViewHost& host);
std::unique_ptr<ControlView> makeTabView(ui::TabStrip& model, QWidget* parent, ViewHost& host);

}  // namespace zt::view
