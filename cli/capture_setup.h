// The captures the command-line tools set up: those of the simulated host (sim/capture_setup.h).
#pragma once

#include "sim/capture_setup.h"

namespace zt::cli {

using sim::CaptureScenario;
using sim::CaptureTiming;
using sim::configureCapture;
using sim::connectToLink;
using sim::kDemoBaudRate;
using sim::kDemoStation;
using sim::parseCaptureScenario;
using sim::scenarioName;
using sim::scenarioTiming;

}  // namespace zt::cli
