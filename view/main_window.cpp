#include "view/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QStatusBar>

#include <vector>

#include "control/graph_control_interface.h"
#include "core/conversion_table.h"

namespace zt::view {

namespace {

struct ScenarioChoice {
    sim::CaptureScenario scenario;
    const char* title;
};

constexpr ScenarioChoice kScenarios[] = {
    {sim::CaptureScenario::Typical, "&Typical run, triggered on the frequency"},
    {sim::CaptureScenario::Fault, "&Fault trip, triggered by the fault"},
    {sim::CaptureScenario::HighSpeed, "&High-speed sampling"},
    {sim::CaptureScenario::Continuous, "&Continuous sweeps"},
};

// Samples per reply, as a serial link delivers them.
constexpr int kRecordsPerReply = 10;

}  // namespace

MainWindow::MainWindow() {
    setWindowTitle("ztgraph");
    library_.boxes.owner = this;
    control_ = std::make_unique<ztGraphControl>(library_);
    host_ = std::make_unique<sim::SimHost>(
        [this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
            return dispatch(*control_, id, kind, args);
        });
    host_->recordsPerBlock = kRecordsPerReply;
    host_->countsPerUnit = [this](int channel) {
        const Conversion c = control_->conversionTable()[static_cast<size_t>(channel)];
        const double unit = c.gain * static_cast<double>(c.decimalFactor);
        return unit != 0 ? 1 / unit : 1.0;
    };
    control_->advise(host_.get());

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    surface_ = new SurfaceView(*control_);
    surface_->setMinimumSize(surface_->minimumSizeHint());
    scroll->setWidget(surface_);
    setCentralWidget(scroll);
    surface_->afterAction = [this] { hostIdle(); };
    surface_->onError = [this](const std::string& what) {
        statusBar()->showMessage(QString::fromStdString("Error: " + what), 5000);
    };
    status_ = new QLabel(this);
    statusBar()->addPermanentWidget(status_);

    replies_.setInterval(20);
    connect(&replies_, &QTimer::timeout, this, [this] { deliverReply(); });
    buildMenus();
    goOnline(true);
    resize(1100, 760);
}

MainWindow::~MainWindow() {
    replies_.stop();
    control_->advise(nullptr);
    // The widgets go first: they observe the control.
    delete takeCentralWidget();
    surface_ = nullptr;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    int16_t cancel = 0;
    surface_->act([&] { control_->QueryUnLoadU(cancel, 0); });
    if (cancel != 0) {
        event->ignore();
        return;
    }
    replies_.stop();
    surface_->act([&] {
        if (host_->sampling()) control_->surface().cmdStop.click();
        control_->Terminate();
    });
    event->accept();
}

void MainWindow::buildMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    const QString graphFilter = "Graph files (*.gp3 *.gpi3);;All files (*)";
    const QString projectFilter = "Project files (*.ztp);;All files (*)";
    file->addAction("&Open graph file...", this, [this, graphFilter] {
        const QString path = QFileDialog::getOpenFileName(this, "Open graph file", {}, graphFilter);
        if (!path.isEmpty()) importGraph(path.toStdString());
    });
    file->addAction("&Export graph file...", this, [this, graphFilter] {
        const QString path =
            QFileDialog::getSaveFileName(this, "Export graph file", "graph.gp3", graphFilter);
        if (!path.isEmpty()) exportGraph(path.toStdString());
    });
    file->addSeparator();
    file->addAction("&Load project...", this, [this, projectFilter] {
        const QString path = QFileDialog::getOpenFileName(this, "Load project", {}, projectFilter);
        if (!path.isEmpty()) loadProject(path.toStdString());
    });
    file->addAction("&Save project...", this, [this, projectFilter] {
        const QString path =
            QFileDialog::getSaveFileName(this, "Save project", "project.ztp", projectFilter);
        if (!path.isEmpty()) saveProject(path.toStdString());
    });
    file->addSeparator();
    file->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });

    QMenu* link = menuBar()->addMenu("&Link");
    link->addAction("Go &online", this, [this] { goOnline(true); });
    link->addAction("Go o&ffline", this, [this] { goOnline(false); });
    link->addSeparator();
    QMenu* capture = link->addMenu("Set up a &capture");
    for (const ScenarioChoice& s : kScenarios) {
        const sim::CaptureScenario scenario = s.scenario;
        capture->addAction(s.title, this, [this, scenario] { setUpCapture(scenario); });
    }
    link->addAction("&Trip the drive in the next capture", this, [this] { injectFault(); });
    link->addAction("Report a communication &error", this, [this] { injectCommError(); });
    QMenu* speed = link->addMenu("Reply &rate");
    auto* rates = new QActionGroup(this);
    for (const auto& [title, ms] :
         {std::pair{"Fast (every 20 ms)", 20}, std::pair{"Serial link (every 100 ms)", 100},
          std::pair{"Slow (every 500 ms)", 500}}) {
        QAction* a = speed->addAction(title, this, [this, ms = ms] { setReplyInterval(ms); });
        a->setCheckable(true);
        a->setChecked(ms == 20);
        rates->addAction(a);
    }

    QMenu* view = menuBar()->addMenu("&View");
    view->addAction("&Dark scheme", this, [this] { setScheme(0); });
    view->addAction("&Light scheme", this, [this] { setScheme(1); });
}

void MainWindow::goOnline(bool online) {
    surface_->act([&] {
        if (online) {
            sim::connectToLink(*control_, library_.sim);
        } else {
            control_->ChgLineStatus(0);
        }
    });
}

void MainWindow::setUpCapture(sim::CaptureScenario scenario) {
    host_->scenario = scenario == sim::CaptureScenario::Fault ? sim::DriveScenario::Fault
                                                              : sim::DriveScenario::Typical;
    host_->faultAtMs.reset();
    switch (scenario) {
        case sim::CaptureScenario::Typical:
            host_->runRecords = 700;
            break;
        case sim::CaptureScenario::Fault:
            host_->runRecords = 1000;
            host_->faultAtMs = 60000;
            break;
        case sim::CaptureScenario::HighSpeed:
            host_->runRecords = 5000;
            break;
        case sim::CaptureScenario::Continuous:
            host_->runRecords = 600;
            break;
    }
    surface_->act([&] { sim::configureCapture(*control_, scenario); });
}

void MainWindow::injectFault() {
    host_->scenario = sim::DriveScenario::Fault;
    host_->runRecords = 1000;
    host_->faultAtMs = 30000;
    statusBar()->showMessage("The drive trips 30 s into the next capture", 5000);
}

void MainWindow::injectCommError() {
    host_->failAtBlock(host_->sampling() ? repliesThisRun_ : 0, kInjectedCommError);
    statusBar()->showMessage("The next reply reports a communication error", 5000);
}

void MainWindow::setScheme(int32_t mode) {
    surface_->act([&] { control_->SetGraphColor(mode); });
}

bool MainWindow::importGraph(const std::string& path) {
    int16_t status = -1;
    SYS_INFO sysInfo = library_.sim.sim().link().sysInfo();
    surface_->act([&] { status = control_->ImportFile(path, sysInfo); });
    return status == 0;
}

bool MainWindow::exportGraph(const std::string& path) {
    int16_t status = -1;
    surface_->act([&] { status = control_->ExportFile(path); });
    return status == 0;
}

bool MainWindow::loadProject(const std::string& path) {
    int16_t status = -1;
    VERSION_INFO version;
    PROGRAM_VERSION program;
    surface_->act([&] { status = control_->LoadKivFile(path, version, program); });
    return status == 0;
}

bool MainWindow::saveProject(const std::string& path) {
    int16_t status = -1;
    VERSION_INFO version;
    surface_->act([&] { status = control_->SaveKivFile(path, version); });
    return status == 0;
}

void MainWindow::deliverReply() {
    if (!host_->sampling()) {
        replies_.stop();
        return;
    }
    surface_->act([this] { host_->deliverBlock(); });
    ++repliesThisRun_;
    if (onReply) onReply();
}

int MainWindow::deliverAll(int maxReplies) {
    int n = 0;
    while (host_->sampling() && n < maxReplies) {
        deliverReply();
        ++n;
    }
    return n;
}

// After every action: a run that has just started gets its replies from now on.
void MainWindow::hostIdle() {
    const bool sampling = host_->sampling();
    if (sampling && !wasSampling_) repliesThisRun_ = 0;
    wasSampling_ = sampling;
    if (sampling && !replies_.isActive()) replies_.start();
    if (!sampling) replies_.stop();
    showStatus();
}

void MainWindow::showStatus() {
    static const char* const kStates[] = {
        "online, no channel", "online, ready",  "online, graph", "offline, no channel",
        "offline, ready",     "offline, graph", "sampling"};
    const int16_t state = control_->runState();
    const char* text = state >= 0 && state < 7 ? kStates[state] : "";
    status_->setText(QString("Run state %1: %2").arg(state).arg(text));
}

}  // namespace zt::view
