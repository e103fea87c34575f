// A seeded random host that plays host and user at once: line changes, station hand-overs,
// Start/Stop/Clear, replies of any size with occasional error codes and late replies, sheet
// edits, scale, cursor and history actions by user actions, colour schemes, file export,
// import, project save and load in a scratch folder, and a sink that sometimes misbehaves
// inside ReqCommand. After every
// step the invariants a host and a user rely on are checked. A failing run prints its seed and
// its last steps; the same seed and step count replay it.
//
// The normal suite runs a few short seeds. The soak (one command):
//   ZT_RANDOM_HOST_STEPS=1000000 ZT_RANDOM_HOST_SEEDS=1,2,3,4 ./build/ztgraph_tests
//   --gtest_filter='RandomHost*'
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "config/sheet_rows.h"
#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "core/graph_history.h"
#include "core/setting_limits.h"
#include "run/run_states.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

// How many steps and which seeds: from the environment for a soak, else a short run.
int stepsToRun() {
    const char* v = std::getenv("ZT_RANDOM_HOST_STEPS");
    return v ? std::atoi(v) : 3000;
}

std::vector<uint64_t> seedsToRun() {
    std::vector<uint64_t> seeds;
    const char* v = std::getenv("ZT_RANDOM_HOST_SEEDS");
    std::stringstream list(v ? v : "1,2,3");
    for (std::string s; std::getline(list, s, ',');)
        seeds.push_back(std::stoull(s));
    return seeds;
}

class RandomHost : public GraphHostSink {
  public:
    explicit RandomHost(uint64_t seed) : rng_(seed) {
        folder_ = std::filesystem::temp_directory_path() /
                  ("zt_random_host_" + std::to_string(::getpid()) + "_" + std::to_string(seed));
        std::filesystem::create_directories(folder_);
        control_.advise(this);
        connect();
    }
    ~RandomHost() override {
        std::error_code ec;
        std::filesystem::remove_all(folder_, ec);
    }
    RandomHost(const RandomHost&) = delete;
    RandomHost& operator=(const RandomHost&) = delete;

    // One random step; false with a description in `failure` when an invariant broke.
    bool step(std::string& failure) {
        const int roll = pick(100);
        if (roll < 30) {
            deliverReply();
        } else if (roll < 40) {
            clickRunButton();
        } else if (roll < 58) {
            editChannelSheet();
        } else if (roll < 64) {
            editTriggerOrSampling();
        } else if (roll < 76) {
            displayAction();
        } else if (roll < 78) {
            fileAction();
        } else if (roll < 84) {
            changeLine();
        } else if (roll < 88) {
            handOverStations();
        } else if (roll < 92) {
            note("EventResCommand");
            control_.EventResCommand(pick(3));
        } else if (roll < 96) {
            lateOrOddReply();
        } else {
            note("GetGraphRequest/SetGraphRequest");
            GRAPH_REQUEST r = control_.GetGraphRequest();
            r.intUnit[0] = static_cast<int16_t>(pick(20));
            control_.SetGraphRequest(r);
        }
        return checkInvariants(failure);
    }

    // How many steps ended in each run state: a run that never samples tests little.
    const std::array<int, 7>& statesSeen() const { return statesSeen_; }

    std::string recentSteps() const {
        std::string out;
        for (const auto& s : log_)
            out += "  " + s + "\n";
        return out;
    }

    void ReqCommand(int32_t command) override {
        note("  ReqCommand(" + std::to_string(command) + ")");
        if (command == 77) {
            GRAPH_REQUEST r = control_.GetGraphRequest();
            for (int k = 0; k < 4; ++k) {
                r.intUnit[static_cast<size_t>(k)] = 1;
                r.intDecPoint[static_cast<size_t>(k)] = static_cast<int16_t>(pick(3));
                r.lngBaseValue[static_cast<size_t>(k)] = 1000 + pick(50000);
            }
            control_.SetGraphRequest(r);
            if (pick(12) == 0) {
                note("  host refuses the start");
                control_.m_blnStartErr(true);
                startRefused_ = true;
            } else {
                sampling_ = true;
            }
        } else if (command == 78) {
            sampling_ = false;
            // A host that frees its reply buffer as soon as it is told to stop.
            if (reply_ && pick(3) == 0) {
                note("  host empties its reply record");
                reply_->udtSample.clear();
            }
        }
        misbehave();
    }

  private:
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng_); }

    void note(std::string s) {
        log_.push_back(std::move(s));
        if (log_.size() > 60) log_.pop_front();
    }

    void connect() {
        SYS_INFO sys = library_.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control_.SetSysInfo(1, sys, parameter);
        control_.ChgLineStatus(1);
    }

    // Now and then the host calls back into the control from inside its event handler.
    void misbehave() {
        if (depth_ > 1 || pick(10) != 0) return;
        ++depth_;
        switch (pick(4)) {
            case 0:
                note("  inside ReqCommand: Stop");
                control_.surface().cmdStop.click();
                break;
            case 1:
                note("  inside ReqCommand: Start");
                control_.surface().cmdStart.click();
                break;
            case 2:
                note("  inside ReqCommand: offline");
                control_.ChgLineStatus(0);
                break;
            default:
                note("  inside ReqCommand: reply");
                deliverReply();
                break;
        }
        --depth_;
    }

    void deliverReply() {
        GRAPH_RESULT_INFO reply;
        const int n = pick(4) == 0 ? pick(1200) : pick(40);
        reply.udtSample.resize(static_cast<size_t>(n));
        for (auto& r : reply.udtSample) {
            r.lngDiffTime = pick(20) == 0 ? pick(100000) : 1000;
            phase_ += 0.05;
            r.lngAnalogData = {static_cast<int32_t>(3000 * std::sin(phase_)), pick(2000),
                               pick(65536) - 32768, 0};
            r.intDigitalData = static_cast<int16_t>(pick(16));
            r.intFaultData = static_cast<int16_t>(pick(50) == 0 ? pick(256) : 0);
        }
        const int32_t error = pick(60) == 0 ? 1 + pick(5) : 0;
        note("SetSamplingData(" + std::to_string(n) + " records, error " + std::to_string(error) +
             ")");
        GRAPH_RESULT_INFO* outer = reply_;
        reply_ = &reply;
        control_.SetSamplingData(reply, error);
        reply_ = outer;
    }

    void lateOrOddReply() {
        GRAPH_RESULT_INFO reply;
        reply.udtSample.resize(static_cast<size_t>(pick(3)));
        note("odd SetSamplingData(" + std::to_string(reply.udtSample.size()) + ")");
        control_.SetSamplingData(reply, pick(2) == 0 ? 0 : -1);
    }

    void clickRunButton() {
        GraphSurface& s = control_.surface();
        // A confirmation answered OK or Cancel.
        library_.boxes().answerNext(pick(2) == 0 ? 1 : 2);
        // Start most often (half the clicks): a run that samples reaches the most code.
        const int button = pick(6);
        if (button < 3) {
            note("click Start");
            s.cmdStart.click();
        } else if (button < 5) {
            note("click Stop");
            s.cmdStop.click();
        } else {
            note("click Clear");
            s.cmdClear.click();
        }
    }

    void editChannelSheet() {
        ui::SpreadSheet& sheet = control_.surface().sprChannel;
        // Low channels more often: analog channels are set in order from CH1.
        const int ch = 1 + std::min(pick(kChannelCount), pick(kChannelCount));
        const int row = pick(3) == 0 ? kRowStation : kRowName;
        const auto& items = sheet.listItems(ch, row);
        if (items.empty()) return;
        const std::string choice = items[static_cast<size_t>(pick(static_cast<int>(items.size())))];
        note("channel sheet: CH" + std::to_string(ch) + " row " + std::to_string(row) + " <- " +
             choice);
        sheet.chooseListItem(ch, row, choice);
        if (pick(4) == 0) sheet.pressKey(pick(2) == 0 ? ui::kKeyLeft : ui::kKeyRight);
        if (pick(3) == 0) sheet.leaveSheet();
    }

    void editTriggerOrSampling() {
        GraphSurface& s = control_.surface();
        const bool trigger = pick(2) == 0;
        ui::SpreadSheet& sheet = trigger ? s.sprTrigger : s.sprSampling;
        const int row = 1 + pick(trigger ? 5 : 4);
        const auto& items = sheet.listItems(1, row);
        if (!items.empty()) {
            const std::string choice =
                items[static_cast<size_t>(pick(static_cast<int>(items.size())))];
            note(std::string(trigger ? "trigger" : "sampling") + " row " + std::to_string(row) +
                 " <- " + choice);
            sheet.chooseListItem(1, row, choice);
        } else {
            static const char* texts[] = {"0",   "10",       "55", "100",  "1e3",  "-5",
                                          "abc", "99999999", "20", "5000", "  7 ", "1,5"};
            const std::string text = texts[pick(12)];
            note(std::string(trigger ? "trigger" : "sampling") + " row " + std::to_string(row) +
                 " typed '" + text + "'");
            sheet.typeIntoCell(1, row, text);
            sheet.pressKey(ui::kKeyEnter);
        }
        if (pick(2) == 0) sheet.leaveSheet();
    }

    // What a user does on the operation panel and the chart: scales, scrolling, cursors,
    // history selection, overlay and comments, and the host's colour schemes.
    void displayAction() {
        GraphSurface& s = control_.surface();
        switch (pick(12)) {
            case 0: {
                static const char* scales[] = {"10", "0.5", "abc", "-3", "1e9", "", "200", "7,5"};
                const std::string text = scales[pick(8)];
                note("vertical scale '" + text + "'");
                s.cboVertScale.enter(text);
                break;
            }
            case 1: {
                static const char* spans[] = {"100", "50", "0", "x", "100000", "2.5", "-1"};
                const std::string text = spans[pick(7)];
                note("horizontal scale '" + text + "'");
                s.cboHorzScale.enter(text);
                break;
            }
            case 2:
                note("zero position up/down");
                if (pick(2) == 0)
                    s.updZero.clickUp();
                else
                    s.updZero.clickDown();
                break;
            case 3: {
                const int to = pick(2000) - 100;
                note("scroll to " + std::to_string(to));
                if (pick(3) == 0)
                    s.hsbGraph.pageRight();
                else
                    s.hsbGraph.dragTo(to);
                break;
            }
            case 4:
                note("cursor box");
                s.chkCursor.click();
                break;
            case 5:
                note("cursor option");
                s.optCursor[pick(2)].click();
                break;
            case 6: {
                // A drag on the chart, in twips, with the left button and now and then Shift.
                const float x0 = static_cast<float>(pick(12000));
                const float y0 = static_cast<float>(pick(6000));
                const auto shift = static_cast<int16_t>(pick(3) == 0 ? 1 : 0);
                note("chart drag from " + std::to_string(x0));
                chart::ChartRoot& chart = control_.chartRoot();
                chart.MouseDown.raise(int16_t{1}, shift, x0, y0);
                for (int i = 0; i < 3; ++i)
                    chart.MouseMove.raise(int16_t{1}, shift, x0 + static_cast<float>(pick(3000)),
                                          y0 + static_cast<float>(pick(900)));
                chart.MouseUp.raise(int16_t{1}, shift, x0, y0);
                break;
            }
            case 7:
                note("history option");
                s.optHistory[pick(kHistoryButtons)].click();
                break;
            case 8:
                note("overwrite box");
                s.chkOverWrite[pick(kHistoryButtons)].click();
                break;
            case 9: {
                static const char* comments[] = {"run 1", "a,b\"c", "\xe3\x81\x82\xe3\x81\x84"};
                const std::string text = comments[pick(3)];
                note("comment '" + text + "'");
                s.txtComment.focus();
                s.txtComment.type(pick(4) == 0 ? std::string(140, 'y') : text);
                s.txtComment.leave();
                break;
            }
            case 10:
                note("operation tab");
                s.tbsGraphOp.select(1 + pick(3));
                break;
            default: {
                const int32_t mode = pick(3);
                note("SetGraphColor(" + std::to_string(mode) + ")");
                control_.SetGraphColor(mode);
                break;
            }
        }
    }

    // File members on files in the scratch folder: what the host's menus do.
    void fileAction() {
        const std::string graph = (folder_ / "g.gp3").string();
        const std::string project = (folder_ / "p.ztp").string();
        library_.boxes().answerNext(pick(2) == 0 ? 1 : 2);
        SYS_INFO sys = library_.sim().link().sysInfo();
        VERSION_INFO version;
        PROGRAM_VERSION program;
        switch (pick(4)) {
            case 0:
                note("ExportFile");
                control_.ExportFile(graph);
                break;
            case 1:
                note("ImportFile");
                control_.ImportFile(graph, sys);
                break;
            case 2:
                note("SaveKivFile");
                control_.SaveKivFile(project, version);
                break;
            default:
                note("LoadKivFile");
                control_.LoadKivFile(project, version, program);
                break;
        }
    }

    void changeLine() {
        const int16_t status = static_cast<int16_t>(pick(6) == 0 ? pick(5) - 1 : pick(2));
        note("ChgLineStatus(" + std::to_string(status) + ")");
        control_.ChgLineStatus(status);
    }

    void handOverStations() {
        SYS_INFO sys = library_.sim().link().sysInfo();
        if (pick(4) == 0 && !sys.udtStation.empty()) {
            sys.udtStation[static_cast<size_t>(pick(static_cast<int>(sys.udtStation.size())))]
                .lngModelCode = kStationNotPresent;
        }
        PARAMETER_INFO parameter;
        const int16_t node = static_cast<int16_t>(pick(34) - 1);
        note("SetSysInfo(node " + std::to_string(node) + ")");
        control_.SetSysInfo(node, sys, parameter);
    }

    // The invariants of the run-state table, the history and the chart.
    bool checkInvariants(std::string& failure) {
        const int16_t state = control_.runState();
        const GraphSurface& s = control_.surface();
        std::ostringstream why;
        if (state < 0 || state > 6) {
            why << "run state " << state << " outside 0 to 6; ";
        } else {
            ++statesSeen_[static_cast<size_t>(state)];
        }
        if (state != lastState_) {
            startRefused_ = false;
            lastState_ = state;
        }
        if (state == 6 && control_.StatusU() != 1) why << "StatusU 0 while sampling; ";
        if (state != 6 && control_.StatusU() == 1 && !startRefused_)
            why << "StatusU 1 in state " << state << " without a refused start; ";
        const bool startAllowed = state == 1 || state == 2;
        if (s.cmdStart.Enabled && !startAllowed) why << "Start enabled in state " << state << "; ";
        if (s.cmdStop.Enabled != (state == 6))
            why << "Stop enabled wrong in state " << state << "; ";
        if (s.cmdClear.Enabled != (state != 6))
            why << "Clear enabled wrong in state " << state << "; ";
        const bool locked = state == 2 || state == 5 || state == 6;
        const bool sheetLocked = s.sprChannel.locked(1, kRowStation);
        if (sheetLocked != locked) why << "channel sheet lock wrong in state " << state << "; ";
        const auto& history = control_.state().history;
        const HISTORYSTATE& shown = control_.state().graphInfo.udtHistoryState;
        if (shown.lngGraphTotal < 0 || shown.lngGraphTotal > 5)
            why << "graph total " << shown.lngGraphTotal << "; ";
        if (shown.lngCurrentGraph < 0 || shown.lngCurrentGraph > 5)
            why << "current graph " << shown.lngCurrentGraph << "; ";
        const int32_t overlay = shown.lngOverWriteState;
        if (overlay < 0 || overlay >= 32 || (overlay & (overlay - 1)) != 0)
            why << "overwrite bits " << overlay << "; ";
        for (const auto& slot : history.udtGraphResultInfo) {
            if (slot.udtSample.size() != static_cast<size_t>(kGraphRecords))
                why << "a history slot holds " << slot.udtSample.size() << " records; ";
        }
        const chart::ChartRoot& chart = control_.chartRoot();
        for (const auto* collection : {&chart.PlotDataCollection, &chart.PulseDataCollection}) {
            for (int i = 0; i < collection->count(); ++i) {
                if (collection->at(i).pointCount() > kGraphRecords)
                    why << collection->at(i).name() << " holds " << collection->at(i).pointCount()
                        << " points; ";
            }
        }
        failure = why.str();
        return failure.empty();
    }

    std::mt19937_64 rng_;
    std::filesystem::path folder_;
    sim::SimCommonLibrary library_;
    ztGraphControl control_{library_};
    std::deque<std::string> log_;
    GRAPH_RESULT_INFO* reply_ = nullptr;
    bool sampling_ = false;
    bool startRefused_ = false;
    int16_t lastState_ = -1;
    int depth_ = 0;
    double phase_ = 0;
    std::array<int, 7> statesSeen_{};
};

TEST(RandomHost, KeepsEveryInvariantOverALongSequence) {
    const int steps = stepsToRun();
    for (const uint64_t seed : seedsToRun()) {
        RandomHost host(seed);
        for (int i = 0; i < steps; ++i) {
            std::string failure;
            if (!host.step(failure)) {
                FAIL() << "seed " << seed << ", step " << i << ": " << failure
                       << "\nreplay: ZT_RANDOM_HOST_SEEDS=" << seed
                       << " ZT_RANDOM_HOST_STEPS=" << i + 1
                       << " ./build/ztgraph_tests --gtest_filter='RandomHost*'\nlast steps:\n"
                       << host.recentSteps();
            }
        }
        std::string seen;
        for (const int n : host.statesSeen())
            seen += " " + std::to_string(n);
        std::printf("seed %llu: %d steps; steps ending in states 0 to 6:%s\n",
                    static_cast<unsigned long long>(seed), steps, seen.c_str());
        EXPECT_GT(host.statesSeen()[Sampling], 0) << "seed " << seed << " never sampled";
        EXPECT_GT(host.statesSeen()[OnlineGraph] + host.statesSeen()[OfflineGraph], 0)
            << "seed " << seed << " never showed a graph";
    }
}

}  // namespace
}  // namespace zt
