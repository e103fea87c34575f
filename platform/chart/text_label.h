// A free text on the chart, centred on its position in chart pixels.
#pragma once

#include <cstdint>
#include <string>

#include "platform/chart/chart_types.h"

namespace zt::chart {

class Label {
  public:
    explicit Label(std::string name) : name_(std::move(name)) {}
    Label(const Label&) = delete;
    Label& operator=(const Label&) = delete;

    const std::string& name() const { return name_; }

    bool Visible = false;
    std::string Text;
    Color TextColor = 0xFFFFFF;
    // In points.
    float FontSize = 9.0f;
    // Centre of the text in chart pixels.
    int32_t X = 0;
    int32_t Y = 0;

  private:
    std::string name_;
};

}  // namespace zt::chart
