// The window as a person uses it, on Qt's offscreen platform: mouse clicks and keys on the
// widgets, and what the widgets then show.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>
#include <QTimer>
#include <QtTest/QtTest>

#include <algorithm>
#include <memory>
#include <vector>

#include "config/sheet_rows.h"
#include "run/run_states.h"
#include "view/main_window.h"
#include "view/view_units.h"

using namespace zt;
using zt::view::MainWindow;

namespace {

template <typename W>
W* find(MainWindow& w, const char* name, int index = -1) {
    return qobject_cast<W*>(w.surface().widgetOf(name, index));
}

void sendMouse(QWidget* widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {}) {
    QMouseEvent e(type, at, widget->mapToGlobal(at), button, buttons, modifiers);
    QApplication::sendEvent(widget, &e);
}

// Pixels of `image` in the colour 0x00BBGGRR.
int pixelsOf(const QImage& image, int32_t color) {
    const QRgb wanted = qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
    int n = 0;
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rgb.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x)
            n += (line[x] & 0xFFFFFF) == (wanted & 0xFFFFFF);
    }
    return n;
}

void clickTab(QWidget* strip, int index) {
    auto* bar = strip->findChild<QTabBar*>();
    QVERIFY(bar);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
}

}  // namespace

class ViewWindowTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<MainWindow> window;

    // Sets up the typical capture, presses Start with the mouse and lets the link finish it.
    void capture() {
        window->setUpCapture(sim::CaptureScenario::Typical);
        window->setReplyInterval(0);
        auto* start = find<QPushButton>(*window, "cmdStart");
        QVERIFY(start && start->isEnabled());
        QTest::mouseClick(start, Qt::LeftButton);
        QVERIFY(window->host().sampling());
        QTRY_VERIFY_WITH_TIMEOUT(!window->host().sampling(), 30000);
        QCOMPARE(window->control().runState(), OnlineGraph);
    }

  private slots:
    void init() {
        window = std::make_unique<MainWindow>();
        window->resize(1100, 760);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    void cleanup() { window.reset(); }

    void startButtonCapturesAndTheChartShowsTheTraces() {
        // Start follows the model: disabled until a capture is set up on the sheets.
        window->goOnline(false);
        auto* start = find<QPushButton>(*window, "cmdStart");
        QVERIFY(start && !start->isEnabled());
        QCOMPARE(start->text().toStdString(), window->control().surface().cmdStart.Caption.get());
        window->goOnline(true);
        const int32_t ch1 = window->control().chartRoot().PlotDataCollection.at(0).LinePen.color;
        const int before = pixelsOf(window->surface().chart()->grab().toImage(), ch1);
        capture();
        QApplication::processEvents();
        const QImage shown = window->surface().chart()->grab().toImage();
        QVERIFY(shown.width() > 500);
        QVERIFY2(pixelsOf(shown, ch1) > before + 200, "channel 1's trace is drawn");
        QVERIFY(window->control().state().history.lngGraphCount >= 1);
    }

    void draggingTimeCursorAFillsTheReadouts() {
        capture();
        clickTab(window->surface().widgetOf("tbsGraphOp"), 1);
        auto* cursors = find<QCheckBox>(*window, "chkCursor");
        QVERIFY(cursors && cursors->isVisible());
        QTest::mouseClick(cursors, Qt::LeftButton, {}, QPoint(8, cursors->height() / 2));
        QCOMPARE(cursors->checkState(), Qt::Checked);
        QCOMPARE(window->control().state().graphInfo.udtCursorState.intCursorState, 1);

        QWidget* chart = window->surface().chart();
        const chart::Grid& grid = *window->control().chartRefs().grid;
        const double y = (grid.Top + grid.Bottom) / 2.0;
        const QPointF from(grid.Left + 1, y);
        const QPointF to(grid.Left + 0.4 * (grid.Right - grid.Left), y);
        sendMouse(chart, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        sendMouse(chart, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
        sendMouse(chart, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        sendMouse(chart, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        const float a = window->control().state().graphInfo.udtCursorState.sngVertCursorApos;
        QVERIFY2(a > 0.35f && a < 0.45f, "cursor A follows the mouse");

        // The readout cells of the table show what the sheet holds, and hold values.
        auto* table = find<QTableWidget>(*window, "sprChannel");
        QVERIFY(table);
        const ui::SpreadSheet& sheet = window->control().surface().sprChannel;
        for (int row = kFirstReadoutRow; row <= kLastReadoutRow; ++row) {
            QTableWidgetItem* cell = table->item(row - 1, 0);
            QVERIFY(cell);
            QCOMPARE(cell->text().toStdString(), sheet.text(1, row));
        }
        QVERIFY(table->item(kFirstReadoutRow - 1, 0)->text() != "---");
        auto* timeA = find<QLabel>(*window, "lblCursorTime", 0);
        QVERIFY(timeA && timeA->text() != "---");
    }

    void typingAVerticalScaleAndEnterRescalesTheChannel() {
        capture();
        auto* one = find<QRadioButton>(*window, "optScale", 0);
        QVERIFY(one && one->isEnabled());
        QTest::mouseClick(one, Qt::LeftButton, {}, QPoint(6, one->height() / 2));
        QVERIFY(one->isChecked());
        auto* box = find<QComboBox>(*window, "cboVertScale");
        QVERIFY(box && box->isEnabled());
        const int channel = window->control().state().graphInfo.intChNumber;
        box->lineEdit()->setFocus();
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), "200");
        QCOMPARE(box->currentText(), QString("200"));
        QTest::keyClick(box->lineEdit(), Qt::Key_Return);
        const auto& scale = window->control().state().graphInfo.udtVertScale[channel];
        QCOMPARE(scale.dblVertScale, 200.0);
        QCOMPARE(find<QLabel>(*window, "lblVertScale")->text().toStdString(),
                 window->control().surface().lblVertScale.Caption.get());
    }

    void operationTabsSwitchThePages() {
        QWidget* strip = window->surface().widgetOf("tbsGraphOp");
        QWidget* scalePage = window->surface().widgetOf("picScale");
        QWidget* cursorPage = window->surface().widgetOf("picCursor");
        QWidget* historyPage = window->surface().widgetOf("picHistory");
        QVERIFY(scalePage->geometry().left() >= 0);
        QVERIFY(cursorPage->geometry().right() < 0);
        clickTab(strip, 1);
        QCOMPARE(window->control().surface().tbsGraphOp.SelectedIndex(), 2);
        QVERIFY(scalePage->geometry().right() < 0);
        QVERIFY(cursorPage->geometry().left() >= 0);
        clickTab(strip, 2);
        QVERIFY(cursorPage->geometry().right() < 0);
        QVERIFY(historyPage->geometry().left() >= 0);
        QCOMPARE(strip->findChild<QTabBar*>()->currentIndex(), 2);
    }

    void theControlFollowsTheWindowSizeDownToItsMinimum() {
        window->resize(1300, 900);
        QTRY_COMPARE(window->control().WidthU(), view::toTwips(window->surface().width()));
        QCOMPARE(window->control().HeightU(), view::toTwips(window->surface().height()));
        QWidget* chart = window->surface().chart();
        const float chartTwips = view::toTwips(chart->width());
        QVERIFY(std::abs(chartTwips - (window->control().WidthU() - 20)) <= 20);
        window->resize(300, 250);
        QTRY_COMPARE(window->control().WidthU(), kMinControlSize);
        QCOMPARE(window->control().HeightU(), kMinControlSize);
        QVERIFY(window->surface().width() >= view::toPixels(kMinControlSize));
        QVERIFY(window->surface().height() >= view::toPixels(kMinControlSize));
    }

    void aMessageBoxOfTheComponentIsShownAndAnswered() {
        capture();
        // Clear asks before the graphs are deleted; the first answer is Cancel, then OK.
        QString seen;
        const auto answer = [&seen](QMessageBox::StandardButton button) {
            QTimer::singleShot(0, [&seen, button] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (!box) return;
                seen = box->text();
                box->button(button)->click();
            });
        };
        auto* clear = find<QPushButton>(*window, "cmdClear");
        answer(QMessageBox::Cancel);
        QTest::mouseClick(clear, Qt::LeftButton);
        QVERIFY(!seen.isEmpty());
        QCOMPARE(window->library().boxes.shown, 1);
        QCOMPARE(window->control().runState(), OnlineGraph);
        seen.clear();
        answer(QMessageBox::Ok);
        QTest::mouseClick(clear, Qt::LeftButton);
        QVERIFY(!seen.isEmpty());
        QCOMPARE(window->control().runState(), OnlineReady);
    }

    void graphAndProjectFilesGoOutAndComeBack() {
        capture();
        const QByteArray tmp = qgetenv("ZT_TEST_TMP");
        const QString dir = tmp.isEmpty() ? QDir::tempPath() : QString::fromUtf8(tmp);
        QDir().mkpath(dir);
        const std::string graph = (dir + "/view-window.gp3").toStdString();
        const std::string project = (dir + "/view-window.ztp").toStdString();
        QVERIFY(window->exportGraph(graph));
        QVERIFY(window->saveProject(project));

        MainWindow other;
        other.show();
        QVERIFY(other.importGraph(graph));
        QCOMPARE(other.control().runState(), OnlineGraph);
        QVERIFY(other.control().chartRoot().PlotDataCollection.at(0).pointCount() > 100);
        MainWindow third;
        third.show();
        QVERIFY(third.loadProject(project));
        QVERIFY(third.control().chartRoot().PlotDataCollection.at(0).pointCount() > 100);
        QVERIFY(third.surface().chart()->picture() == window->surface().chart()->picture());
    }

    void sheetCellsTakeListPicksAndTypedNumbers() {
        clickTab(window->surface().widgetOf("tabSpread"), 1);
        auto* trigger = find<QTableWidget>(*window, "sprTrigger");
        auto* sampling = find<QTableWidget>(*window, "sprSampling");
        QVERIFY(trigger && trigger->isVisible() && sampling && sampling->isVisible());
        const ui::SpreadSheet& trig = window->control().surface().sprTrigger;
        const ui::SpreadSheet& samp = window->control().surface().sprSampling;

        // The trigger type: a click drops the list down, a pick goes to the sheet.
        const QRect typeCell = trigger->visualItemRect(trigger->item(kTriggerRowType - 1, 0));
        QTest::mouseClick(trigger->viewport(), Qt::LeftButton, {}, typeCell.center());
        auto* list = trigger->findChild<QComboBox*>("cell_1_1");
        QVERIFY(list);
        const int inside = list->findText("Inside");
        QVERIFY(inside >= 0);
        emit list->activated(inside);
        QCOMPARE(trig.text(1, kTriggerRowType), std::string("Inside"));
        QCOMPARE(trigger->item(kTriggerRowType - 1, 0)->text(), QString("Inside"));

        // The sampling time: typed into the cell and committed with Enter.
        QTableWidgetItem* time = sampling->item(kSamplingRowTime - 1, 0);
        sampling->setCurrentItem(time);
        sampling->editItem(time);
        auto* line = sampling->findChild<QLineEdit*>();
        QVERIFY(line);
        line->selectAll();
        QTest::keyClicks(line, "30000");
        QTest::keyClick(line, Qt::Key_Return);
        // The table commits an edit once the event loop runs.
        QTRY_COMPARE(samp.text(1, kSamplingRowTime), std::string("30000"));
        QCOMPARE(sampling->item(kSamplingRowTime - 1, 0)->text(), QString("30000"));
        QCOMPARE(window->control().state().sampSetting.dblSamplingTime, 30000.0);
    }

    void aCommunicationErrorFromTheLinkEndsTheRun() {
        window->setUpCapture(sim::CaptureScenario::Typical);
        window->replyTimer().stop();
        window->setReplyInterval(1000000);
        window->surface().act([&] { window->control().surface().cmdStart.click(); });
        QCOMPARE(window->control().runState(), Sampling);
        window->deliverAll(3);
        window->injectCommError();
        int boxes = 0;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&boxes] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++boxes;
                box->button(QMessageBox::Ok)->click();
            }
        });
        answer.start(10);
        window->deliverAll(1);
        answer.stop();
        QVERIFY(!window->host().sampling());
        QVERIFY(window->control().runState() != Sampling);
        QCOMPARE(boxes, window->library().boxes.shown);
        QVERIFY(boxes >= 1);
    }

    void closingTheWindowEndsTheControlsLife() {
        window->setUpCapture(sim::CaptureScenario::Typical);
        QVERIFY(window->close());
        QVERIFY(window->control().terminated());
        QVERIFY(!find<QPushButton>(*window, "cmdStart")->isEnabled());
    }

    // Not a pass/fail check: the figures of a long capture, printed for the record.
    void replyToPictureTimesOfALongCapture() {
        window->setUpCapture(sim::CaptureScenario::HighSpeed);
        ui::SpreadSheet& samp = window->control().surface().sprSampling;
        window->surface().act([&] {
            window->control().surface().tabSpread.click(2);
            samp.typeIntoCell(1, kSamplingRowTime, "10000");
            samp.pressKey(ui::kKeyEnter);
            samp.leaveSheet();
            window->control().surface().tbsGraphOp.click(1);
        });
        window->replyTimer().stop();
        window->setReplyInterval(1000000);  // replies are delivered by this test, one by one
        view::ChartView* chart = window->surface().chart();
        window->surface().act([&] { window->control().surface().cmdStart.click(); });
        QVERIFY(window->host().sampling());
        std::vector<double> toPicture;  // reply handed over .. its picture painted
        std::vector<double> busy;       // reply handed over .. the component and widgets done
        QElapsedTimer clock;
        const auto ms = [&] { return static_cast<double>(clock.nsecsElapsed()) / 1e6; };
        while (window->host().sampling() && toPicture.size() < 5000) {
            clock.start();
            window->deliverAll(1);  // one reply, handled as the timer's tick handles it
            busy.push_back(ms());
            QApplication::processEvents();
            chart->repaint();  // the picture reaches the screen
            toPicture.push_back(ms());
        }
        QVERIFY(!window->host().sampling());
        const auto report = [](const char* what, std::vector<double> v) {
            std::sort(v.begin(), v.end());
            double sum = 0;
            for (double x : v)
                sum += x;
            const auto at = [&](double q) {
                return v[static_cast<size_t>(q * static_cast<double>(v.size() - 1))];
            };
            qInfo("%s: mean %.3f ms, median %.3f ms, 99th percentile %.3f ms, longest %.3f ms",
                  what, sum / static_cast<double>(v.size()), at(0.5), at(0.99), v.back());
        };
        qInfo("long capture: %zu replies of 10 records, %d points on channel 1's trace",
              busy.size(), window->control().chartRoot().PlotDataCollection.at(0).pointCount());
        report("UI thread busy per reply", busy);
        report("reply to picture on screen", toPicture);
    }
};

QTEST_MAIN(ViewWindowTest)
#include "view_window_test.moc"
