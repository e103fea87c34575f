// Tab strip: its tabs along the top and a frame around the page below them.
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>
#include <QTabBar>

#include <algorithm>
#include <functional>

#include "view/control_kinds.h"
#include "view/view_units.h"

namespace zt::view {

using ui::ControlProperty;

namespace {

// The strip: its tabs along the top and a frame around the page below them. Pointer movement
// over it is reported in twips, as the hosted strip does.
class TabStripWidget : public QWidget {
  public:
    explicit TabStripWidget(QWidget* parent) : QWidget(parent), bar(new QTabBar(this)) {
        setMouseTracking(true);
        bar->setMouseTracking(true);
        bar->setExpanding(false);
        bar->setDrawBase(false);
        bar->installEventFilter(this);
    }
    QTabBar* bar;
    std::function<void(int16_t, int16_t, float, float)> moved;

  protected:
    void resizeEvent(QResizeEvent*) override { bar->setGeometry(0, 0, width(), tabHeight()); }
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent* e) override { report(e, e->position().toPoint()); }
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (watched == bar && e->type() == QEvent::MouseMove) {
            auto* m = static_cast<QMouseEvent*>(e);
            report(m, bar->mapTo(this, m->position().toPoint()));
        }
        return QWidget::eventFilter(watched, e);
    }

  public:
    int tabHeight() const { return std::max(bar->sizeHint().height(), 20); }

  private:
    void report(QMouseEvent* e, QPoint at) {
        if (!moved) return;
        int16_t button = 0;
        if (e->buttons() & Qt::LeftButton) button |= 1;
        if (e->buttons() & Qt::RightButton) button |= 2;
        if (e->buttons() & Qt::MiddleButton) button |= 4;
        int16_t shift = 0;
        if (e->modifiers() & Qt::ShiftModifier) shift |= 1;
        if (e->modifiers() & Qt::ControlModifier) shift |= 2;
        if (e->modifiers() & Qt::AltModifier) shift |= 4;
        moved(button, shift, toTwips(at.x()), toTwips(at.y()));
    }
};

void TabStripWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    QStyleOptionTabWidgetFrame frame;
    frame.initFrom(this);
    frame.rect = QRect(0, tabHeight() - 1, width(), height() - tabHeight() + 1);
    style()->drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &p, this);
}

class TabView : public ControlView {
  public:
    TabView(ui::TabStrip& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new TabStripWidget(parent), host), m_(m) {
        auto* strip = static_cast<TabStripWidget*>(widget());
        QObject::connect(strip->bar, &QTabBar::tabBarClicked, strip, [this](int index) {
            if (index < 0) return;
            act([this, index] { m_.click(index + 1); });
            showContent(ControlProperty::Value);
        });
        strip->moved = [this](int16_t button, int16_t shift, float x, float y) {
            act([&] { m_.moveMouse(button, shift, x, y); });
        };
    }

  protected:
    void showContent(ControlProperty) override {
        QTabBar* bar = static_cast<TabStripWidget*>(widget())->bar;
        const QSignalBlocker quiet(bar);
        while (bar->count() > m_.Tabs.Count())
            bar->removeTab(bar->count() - 1);
        for (int i = 1; i <= m_.Tabs.Count(); ++i) {
            const QString caption = qs(m_.Tabs(i).Caption);
            if (i > bar->count()) {
                bar->addTab(caption);
            } else if (bar->tabText(i - 1) != caption) {
                bar->setTabText(i - 1, caption);
            }
            bar->setTabToolTip(i - 1, qs(m_.Tabs(i).ToolTipText));
        }
        bar->setCurrentIndex(m_.SelectedIndex() - 1);
    }
    void showColors() override {}

  private:
    ui::TabStrip& m_;
};

}  // namespace

std::unique_ptr<ControlView> makeTabView(ui::TabStrip& model, QWidget* parent, ViewHost& host) {
    return std::make_unique<TabView>(model, parent, host);
}

}  // namespace zt::view
