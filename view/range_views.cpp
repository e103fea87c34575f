// Scroll bar and spin control: a person's steps and drags go to the model, which decides
// where the value goes.
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "view/control_kinds.h"

namespace zt::view {

using ui::ControlProperty;

namespace {

class ScrollView : public ControlView {
  public:
    ScrollView(ui::HScrollBar& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QScrollBar(Qt::Horizontal, parent), host), m_(m) {
        auto* bar = static_cast<QScrollBar*>(widget());
        QObject::connect(bar, &QScrollBar::actionTriggered, bar, [this](int action) {
            switch (action) {
                case QAbstractSlider::SliderSingleStepAdd:
                    act([this] { inverted() ? m_.lineLeft() : m_.lineRight(); });
                    break;
                case QAbstractSlider::SliderSingleStepSub:
                    act([this] { inverted() ? m_.lineRight() : m_.lineLeft(); });
                    break;
                case QAbstractSlider::SliderPageStepAdd:
                    act([this] { inverted() ? m_.pageLeft() : m_.pageRight(); });
                    break;
                case QAbstractSlider::SliderPageStepSub:
                    act([this] { inverted() ? m_.pageRight() : m_.pageLeft(); });
                    break;
                case QAbstractSlider::SliderMove: {
                    // The wheel or keys moved the thumb (a drag ends in sliderReleased).
                    auto* b = static_cast<QScrollBar*>(widget());
                    if (b->isSliderDown()) return;
                    const int to = inverted() ? m_.Min() + m_.Max() - b->sliderPosition()
                                              : b->sliderPosition();
                    act([this, to] { m_.dragTo(to); });
                    break;
                }
                default:
                    return;
            }
            // The model moved (or refused); the bar shows where it is.
            auto* b = static_cast<QScrollBar*>(widget());
            b->setSliderPosition(shownValue());
        });
        QObject::connect(bar, &QScrollBar::sliderReleased, bar, [this, bar] {
            const int at =
                inverted() ? m_.Min() + m_.Max() - bar->sliderPosition() : bar->sliderPosition();
            act([this, at] { m_.dragTo(at); });
            showContent(ControlProperty::Value);
        });
    }

  protected:
    void showContent(ControlProperty) override {
        auto* bar = static_cast<QScrollBar*>(widget());
        const QSignalBlocker quiet(bar);
        bar->setRange(std::min(m_.Min(), m_.Max()), std::max(m_.Min(), m_.Max()));
        bar->setSingleStep(std::max(1, m_.SmallChange));
        bar->setPageStep(std::max(1, m_.LargeChange));
        bar->setValue(shownValue());
    }

  private:
    // Min above Max: values fall from left to right.
    bool inverted() const { return m_.Min() > m_.Max(); }
    int shownValue() const { return inverted() ? m_.Min() + m_.Max() - m_.value() : m_.value(); }

    ui::HScrollBar& m_;
};

class SpinView : public ControlView {
  public:
    SpinView(ui::UpDown& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QWidget(parent), host), m_(m) {
        auto* layout = new QVBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        auto* up = new QToolButton(widget());
        auto* down = new QToolButton(widget());
        up->setObjectName("up");
        down->setObjectName("down");
        up->setArrowType(Qt::UpArrow);
        down->setArrowType(Qt::DownArrow);
        for (QToolButton* b : {up, down}) {
            b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            layout->addWidget(b);
        }
        QObject::connect(up, &QToolButton::clicked, up, [this] { act([this] { m_.clickUp(); }); });
        QObject::connect(down, &QToolButton::clicked, down,
                         [this] { act([this] { m_.clickDown(); }); });
    }

  protected:
    void showColors() override {}

  private:
    ui::UpDown& m_;
};

}  // namespace

std::unique_ptr<ControlView> makeScrollView(ui::HScrollBar& model, QWidget* parent,
                                            ViewHost& host) {
    return std::make_unique<ScrollView>(model, parent, host);
}

std::unique_ptr<ControlView> makeSpinView(ui::UpDown& model, QWidget* parent, ViewHost& host) {
    return std::make_unique<SpinView>(model, parent, host);
}

}  // namespace zt::view
