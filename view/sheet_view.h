// The widget of a spreadsheet model: a table whose cells show the sheet's text, colours,
// alignment and locking, whose headers and sizes follow the sheet, and whose clicks, list
// picks, typing and keys go to the sheet's user actions.
#pragma once

#include <QWidget>

#include <memory>

#include "platform/ui/spread_sheet.h"
#include "view/control_views.h"

namespace zt::view {

std::unique_ptr<ControlView> makeSheetView(ui::SpreadSheet& sheet, QWidget* parent, ViewHost& host);

}  // namespace zt::view
