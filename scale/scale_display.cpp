#include "scale/scale_display.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/settings_model.h"
#include "platform/chart/chart_design.h"
#include "platform/text/number_text.h"
#include "scale/vert_scale.h"

namespace zt {

namespace {

constexpr int kColumns = 4;

bool overlaps(const chart::Area& a, const chart::Area& b) {
    return std::max(a.Top, b.Top) < std::min(a.Bottom, b.Bottom);
}

void placeAxis(chart::Axis& axis, int column, const std::string& unit) {
    axis.Left = column * chart::design::kScaleColumnWidth;
    axis.Length = chart::design::kScaleColumnWidth;
    axis.Title = unit;
}

}  // namespace

void placeScaleColumns(const ChartRefs& refs, const GRAPHINFO& info, const PlotInputs& inputs,
                       const ChannelTexts& units) {
    const int selected = info.intChNumber;
    if (selected >= 1 && selected <= kChannelCount) {
        for (int c = 1; c <= kChannelCount; ++c) {
            chart::Axis& axis = *refs.vertAxis[static_cast<size_t>(c)];
            if (c != selected) {
                axis.Visible = false;
                continue;
            }
            axis.Visible = inputs.inUse[static_cast<size_t>(c)];
            placeAxis(axis, 0, isAnalogChannel(c) ? units[static_cast<size_t>(c)] : "");
        }
        return;
    }
    std::array<bool, kColumns> analogHeld{};
    std::array<std::vector<const chart::Area*>, kColumns> bands;
    for (int c = 1; c <= kAnalogChannels; ++c) {
        chart::Axis& axis = *refs.vertAxis[static_cast<size_t>(c)];
        if (!inputs.inUse[static_cast<size_t>(c)]) continue;
        analogHeld[static_cast<size_t>(c - 1)] = true;
        placeAxis(axis, c - 1, units[static_cast<size_t>(c)]);
    }
    for (int c = kAnalogChannels + 1; c <= kChannelCount; ++c) {
        chart::Axis& axis = *refs.vertAxis[static_cast<size_t>(c)];
        if (!inputs.inUse[static_cast<size_t>(c)]) continue;
        const chart::Area& band = *refs.area[static_cast<size_t>(c)];
        int column = -1;
        for (int k = 0; k < kColumns && column < 0; ++k) {
            const auto& taken = bands[static_cast<size_t>(k)];
            const bool free = !analogHeld[static_cast<size_t>(k)] &&
                              std::none_of(taken.begin(), taken.end(), [&](const chart::Area* a) {
                                  return overlaps(*a, band);
                              });
            if (free) column = k;
        }
        if (column < 0) {
            axis.Visible = false;
            continue;
        }
        bands[static_cast<size_t>(column)].push_back(&band);
        placeAxis(axis, column, "");
    }
}

void showScaleLabels(GraphSurface& s, const GRAPHINFO& info, const ChannelTexts& units,
                     const HostLocale& locale) {
    const int c = info.intChNumber;
    if (c < 1 || c > kChannelCount) {
        s.lblCh.Caption.clear();
        s.lblUnit.Caption.clear();
        s.lblVertScale.Caption.clear();
        s.lblZeroPos.Caption.clear();
        return;
    }
    const VERTSCALE& v = info.udtVertScale[static_cast<size_t>(c)];
    s.lblCh.Caption = "CH" + std::to_string(c);
    s.lblUnit.Caption = isAnalogChannel(c) ? units[static_cast<size_t>(c)] : "";
    s.lblVertScale.Caption = vertScaleText(v.dblVertScale, locale);
    s.lblZeroPos.Caption = text::integerText(v.intZeroPos);
}

}  // namespace zt
