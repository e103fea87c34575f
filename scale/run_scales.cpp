#include "scale/run_scales.h"

#include <algorithm>
#include <cmath>

#include "core/setting_limits.h"

namespace zt {

namespace {

constexpr double kDivisions = 10;

}  // namespace

VERTSCALE defaultVertScale(int channel, int32_t fullScale) {
    if (isAnalogChannel(channel)) {
        return {static_cast<double>(fullScale) / kDivisions, 0};
    }
    const int zero = std::clamp(kChannelCount - channel, 0, 9);
    return {2, static_cast<int16_t>(zero)};
}

void applyVertScales(const ChartRefs& refs, const GRAPHINFO& info, const PlotInputs& inputs) {
    const chart::Grid& grid = *refs.grid;
    const double height = grid.Bottom - grid.Top;
    for (int c = 1; c <= kChannelCount; ++c) {
        const auto ch = static_cast<size_t>(c);
        chart::Axis& axis = *refs.vertAxis[ch];
        if (!inputs.inUse[ch]) {
            axis.Visible = false;
            continue;
        }
        const VERTSCALE& v = info.udtVertScale[ch];
        const int z = v.intZeroPos;
        axis.Visible = true;
        if (isAnalogChannel(c)) {
            const double s = v.dblVertScale > 0 ? v.dblVertScale : 1;
            axis.Minimum = -z * s;
            axis.Maximum = (kDivisions - z) * s;
            continue;
        }
        // The band is half a division tall and ends on the zero line; a zero position beyond
        // 0 to 9 (from a file) is held at its nearest end so the band stays inside the grid.
        const int bandZero = std::clamp(z, 0, 9);
        axis.Minimum = 0;
        axis.Maximum = 1;
        chart::Area& band = *refs.area[ch];
        const double top = grid.Top + height * (2 * (kDivisions - bandZero) - 1) / 20.0;
        const double bottom = grid.Top + height * (2 * (kDivisions - bandZero)) / 20.0;
        band.Top = static_cast<int32_t>(std::lround(std::min(top, bottom)));
        band.Bottom = static_cast<int32_t>(std::lround(std::max(top, bottom)));
    }
}

HorzScaleBounds horzScaleBounds(const SAMPSETTING& setting) {
    HorzScaleBounds b{effectiveInterval(setting) * kDivisions,
                      setting.dblSamplingTime / kDivisions};
    if (b.lower > b.upper) std::swap(b.lower, b.upper);
    return b;
}

void resetHorzScale(HORZSCALE& scale, const SAMPSETTING& setting) {
    scale.sngHorzScale = static_cast<float>(horzScaleBounds(setting).upper);
    scale.lngHScrollPos = 0;
}

void applyTimeAxis(const ChartRefs& refs, const HORZSCALE& scale) {
    const double perDivision = scale.sngHorzScale;
    refs.timeAxis->Minimum = scale.lngHScrollPos * perDivision;
    refs.timeAxis->Maximum = (scale.lngHScrollPos + kDivisions) * perDivision;
}

}  // namespace zt
