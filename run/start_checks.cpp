#include "run/start_checks.h"

#include <cmath>

#include "core/comm_error_text.h"
#include "core/setting_limits.h"

namespace zt {

namespace {

constexpr double kLevelLimit = 99999999.9;

bool isSet(const StartCheckContext& ctx, int channel) {
    return ctx.hooks.channelIsSet && ctx.hooks.channelIsSet(channel);
}

bool fail(const StartCheckContext& ctx, const msg::Message& message) {
    ctx.host.notify(message);
    return false;
}

const STATION_RECORD* stationEntry(const GraphState& state, int32_t station) {
    if (station < 0 || station >= kStationCount) return nullptr;
    return &state.stations[static_cast<std::size_t>(station)];
}

bool positionCheck(const StartCheckContext& ctx) {
    if (triggerPositionValid(ctx.state.sampSetting.sngTriggerPosition)) return true;
    return fail(ctx, msg::kTriggerPositionOutOfRange);
}

bool highSpeedAbilityCheck(const StartCheckContext& ctx) {
    const GraphState& s = ctx.state;
    const auto station = static_cast<int16_t>(s.chSetting[1].lngTargetNo);
    const STATION_RECORD* entry = stationEntry(s, station);
    const int32_t modelCode = entry ? entry->lngModelCode : 0;
    ztCommon& common = ctx.host.common();
    const std::string series = entry ? common.GetModelSeries(modelCode) : std::string();
    const bool queryDrive = (series == "A" || series == "E") && s.iniFileItem.lngData[9] == 1 &&
                            s.iniFileItem.lngData[10] == 0 &&
                            (static_cast<uint32_t>(modelCode) & 0xFFF00000u) == 0x01700000u;
    if (queryDrive) {
        int32_t ability = 0, operatingState = 0;
        const int32_t error = common.QueryDriveAbility(station, ability, operatingState);
        if (error != 0) {
            showComErrDlg(ctx.host, station, error);
            return false;
        }
        if ((ability & 0x20) == 0) return fail(ctx, msg::kNoHighSpeedSampling);
        if (operatingState >= 4 && operatingState <= 6)
            return fail(ctx, msg::kProgrammableController);
        return true;
    }
    if (common.CheckHighSpeedSampling(station) != 0) return fail(ctx, msg::kHighSpeedCheckResult);
    return true;
}

}  // namespace

bool triggerPositionValid(float position) {
    const double p = position;
    return p >= 10 && p <= 90 && std::floor(p) == p && static_cast<int>(p) % 10 == 0;
}

bool checkTriggerSetting(const StartCheckContext& ctx) {
    const SAMPSETTING& t = ctx.state.sampSetting;
    if (t.intTriggerType == 2) {
        const STATION_RECORD* entry = stationEntry(ctx.state, t.intTriggerTarget);
        if (!entry) return fail(ctx, msg::kTriggerStationNotConnected);
        if (!entry->present()) return fail(ctx, msg::kTriggerStationNotPresent);
        if (t.intTriggerBoot != 0) return fail(ctx, msg::kFallUnavailable);
        return positionCheck(ctx);
    }
    if (t.intTriggerType == 1) {
        const int ch = t.intTriggerTarget;
        if (!isSet(ctx, ch)) return fail(ctx, msg::kTriggerChannelNotSet);
        if (ctx.state.chSetting[static_cast<std::size_t>(ch)].intAD != 0) return true;
        const bool isSigned = ctx.hooks.itemSigned && ctx.hooks.itemSigned(ch);
        const double lower = isSigned ? -kLevelLimit : 0.0;
        if (!(t.dblTriggerLevel >= lower && t.dblTriggerLevel <= kLevelLimit))
            return fail(ctx, msg::kTriggerLevelOutOfRange);
        return positionCheck(ctx);
    }
    return true;
}

bool checkSamplingSetting(const StartCheckContext& ctx) {
    const GraphState& s = ctx.state;
    const int count = ctx.hooks.channelCount ? ctx.hooks.channelCount() : 0;
    const Limits bounds =
        intervalLimits(s.sampSetting.intSamplingSpeed, count, s.sampSetting.intTriggerType,
                       s.sampSetting.intTriggerTarget, s.iniFileItem);
    if (s.sampSetting.intSamplingSpeed == 1 && !highSpeedAbilityCheck(ctx)) return false;

    const double e = effectiveInterval(s.sampSetting);
    bool ok = true;
    if (!(e >= bounds.min && e <= bounds.max)) ok = fail(ctx, msg::kIntervalOutOfRange);
    const double lowest = e * 100;
    const double highest = e * 10000;
    const double time = s.sampSetting.dblSamplingTime;
    if (!(time >= lowest && time <= highest)) ok = fail(ctx, msg::kTimeOutOfRange);
    return ok;
}

bool checkSamplingItems(const StartCheckContext& ctx) {
    const int16_t speed = ctx.state.sampSetting.intSamplingSpeed;
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        if (!isSet(ctx, ch)) continue;
        if (ctx.hooks.samplingItemOffered && !ctx.hooks.samplingItemOffered(ch, speed))
            return fail(ctx, speed == 1 ? msg::kSelectHighSpeedItem : msg::kSelectMonitorItem);
    }
    return true;
}

bool checkChannelOrder(const StartCheckContext& ctx) {
    return !ctx.hooks.checkChannelOrder || ctx.hooks.checkChannelOrder();
}

bool runStartChecks(const StartCheckContext& ctx) {
    return checkTriggerSetting(ctx) && checkSamplingSetting(ctx) && checkSamplingItems(ctx) &&
           checkChannelOrder(ctx);
}

}  // namespace zt
