// ztgraph-view's main window: the component in the main area on the simulated host, with the
// host program's commands in the menus (the line online or offline, the capture and the drive,
// faults and communication errors, the colour schemes, graph and project files). The host
// answers the component's requests on the UI thread and delivers the drive's replies from a
// timer, one reply per tick, as a serial link would.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>

#include "control/graph_control.h"
#include "sim/capture_setup.h"
#include "sim/sim_host.h"
#include "view/surface_view.h"
#include "view/view_library.h"

class QLabel;

namespace zt::view {

// A communication error the host can report instead of a reply ("no response").
inline constexpr int32_t kInjectedCommError = static_cast<int32_t>(0x80040001);

class MainWindow : public QMainWindow {
  public:
    MainWindow();
    ~MainWindow() override;

    ztGraphControl& control() { return *control_; }
    SurfaceView& surface() { return *surface_; }
    sim::SimHost& host() { return *host_; }
    ViewLibrary& library() { return library_; }
    QTimer& replyTimer() { return replies_; }

    // The host's commands.
    void goOnline(bool online);
    // Chooses channels, trigger and sampling of a capture on the sheets, as a person would,
    // and gives the simulated drive the matching run.
    void setUpCapture(sim::CaptureScenario scenario);
    // The drive trips in the next capture.
    void injectFault();
    // The next reply carries a communication error instead of samples.
    void injectCommError();
    void setScheme(int32_t mode);
    // File commands with the file already chosen; false when the component refused.
    bool importGraph(const std::string& path);
    bool exportGraph(const std::string& path);
    bool loadProject(const std::string& path);
    bool saveProject(const std::string& path);

    // Milliseconds between two replies of the link (0: as fast as the event loop runs).
    void setReplyInterval(int ms) { replies_.setInterval(ms); }
    // Delivers the remaining replies of the run at once; returns how many.
    int deliverAll(int maxReplies = 100000);
    // Called after each reply has been handed to the component.
    std::function<void()> onReply;

  protected:
    // The host asks the control whether it may go, then ends its life (Terminate).
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildMenus();
    void deliverReply();
    void hostIdle();
    void showStatus();

    ViewLibrary library_;
    std::unique_ptr<ztGraphControl> control_;
    std::unique_ptr<sim::SimHost> host_;
    SurfaceView* surface_ = nullptr;
    QLabel* status_ = nullptr;
    QTimer replies_;
    int repliesThisRun_ = 0;
    bool wasSampling_ = false;
};

}  // namespace zt::view
