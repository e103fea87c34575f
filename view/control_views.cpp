#include "view/control_views.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "platform/ui/check_box.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/option_button.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/spread_sheet.h"
#include "platform/ui/static_controls.h"
#include "platform/ui/surface.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"
#include "platform/ui/up_down.h"
#include "view/key_forwarder.h"
#include "view/sheet_view.h"
#include "view/view_units.h"

namespace zt::view {

using ui::ControlProperty;

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// ---- Push button -------------------------------------------------------------------------

class ButtonView : public ControlView {
  public:
    ButtonView(ui::CommandButton& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QPushButton(parent), host), m_(m) {
        auto* button = static_cast<QPushButton*>(widget());
        button->setFocusPolicy(Qt::StrongFocus);
        QObject::connect(button, &QPushButton::clicked, button,
                         [this] { act([this] { m_.click(); }); });
    }

  protected:
    void showCaption() override { static_cast<QPushButton*>(widget())->setText(qs(m_.Caption)); }

  private:
    ui::CommandButton& m_;
};

// ---- Label, frame, panel -------------------------------------------------------------------

class LabelView : public ControlView {
  public:
    LabelView(ui::Label& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QLabel(parent), host), m_(m) {}

  protected:
    void showCaption() override {
        auto* label = static_cast<QLabel*>(widget());
        label->setText(qs(m_.Caption));
        const Qt::Alignment h = m_.Alignment == ui::kAlignRight    ? Qt::AlignRight
                                : m_.Alignment == ui::kAlignCenter ? Qt::AlignHCenter
                                                                   : Qt::AlignLeft;
        label->setAlignment(h | Qt::AlignVCenter);
    }

  private:
    ui::Label& m_;
};

class FrameView : public ControlView {
  public:
    FrameView(ui::Frame& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QGroupBox(parent), host), m_(m) {}

  protected:
    void showCaption() override { static_cast<QGroupBox*>(widget())->setTitle(qs(m_.Caption)); }
    void showColors() override {}  // a frame shows the window's own background

  private:
    ui::Frame& m_;
};

class PanelView : public ControlView {
  public:
    PanelView(ui::PictureBox& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QWidget(parent), host) {
        widget()->setAutoFillBackground(true);
    }
};

// ---- Check box and option button ----------------------------------------------------------

class CheckView : public ControlView {
  public:
    CheckView(ui::CheckBox& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QCheckBox(parent), host), m_(m) {
        auto* box = static_cast<QCheckBox*>(widget());
        box->setTristate(true);
        // The model decides the new state; the widget only shows it.
        QObject::connect(box, &QCheckBox::clicked, box, [this] {
            act([this] { m_.click(); });
            showContent(ControlProperty::Value);
        });
    }

  protected:
    void showCaption() override { static_cast<QCheckBox*>(widget())->setText(qs(m_.Caption)); }
    void showContent(ControlProperty) override {
        auto* box = static_cast<QCheckBox*>(widget());
        const QSignalBlocker quiet(box);
        box->setCheckState(m_.value() == ui::kChecked  ? Qt::Checked
                           : m_.value() == ui::kGrayed ? Qt::PartiallyChecked
                                                       : Qt::Unchecked);
    }

  private:
    ui::CheckBox& m_;
};

class OptionView : public ControlView {
  public:
    OptionView(ui::OptionButton& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QRadioButton(parent), host), m_(m) {
        auto* button = static_cast<QRadioButton*>(widget());
        button->setAutoExclusive(false);
        QObject::connect(button, &QRadioButton::clicked, button, [this] {
            act([this] { m_.click(); });
            showContent(ControlProperty::Value);
        });
    }

  protected:
    void showCaption() override { static_cast<QRadioButton*>(widget())->setText(qs(m_.Caption)); }
    void showContent(ControlProperty) override {
        auto* button = static_cast<QRadioButton*>(widget());
        const QSignalBlocker quiet(button);
        button->setChecked(m_.value());
    }

  private:
    ui::OptionButton& m_;
};

// ---- Text box and combo box ----------------------------------------------------------------

// Puts the model's text and caret into a line edit.
void showEditText(QLineEdit* edit, const std::string& text, int selStart, int selLength) {
    const QSignalBlocker quiet(edit);
    const QString shown = qs(text);
    if (edit->text() != shown) edit->setText(shown);
    if (selLength > 0) {
        edit->setSelection(selStart, selLength);
    } else {
        edit->setCursorPosition(selStart);
    }
}

class TextView : public ControlView {
  public:
    TextView(ui::TextBox& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QLineEdit(parent), host), m_(m) {
        auto* edit = static_cast<QLineEdit*>(widget());
        new KeyForwarder(edit, {[this](const std::string& t) { act([&] { m_.type(t); }); },
                                [this](int k) { act([&] { m_.pressKey(k); }); },
                                [this] { act([this] { m_.focus(); }); },
                                [this] { act([this] { m_.leave(); }); }});
        // Clicks and arrow keys move the caret; the model keeps where the next key goes.
        QObject::connect(edit, &QLineEdit::cursorPositionChanged, edit, [this, edit](int, int at) {
            if (!edit->hasSelectedText()) {
                m_.setSelStart(at);
                m_.setSelLength(0);
            }
        });
        QObject::connect(edit, &QLineEdit::selectionChanged, edit, [this, edit] {
            if (!edit->hasSelectedText()) return;
            m_.setSelStart(edit->selectionStart());
            m_.setSelLength(static_cast<int>(edit->selectedText().size()));
        });
    }

  protected:
    void showContent(ControlProperty) override {
        showEditText(static_cast<QLineEdit*>(widget()), m_.text(), m_.SelStart(), m_.SelLength());
    }
    void showColors() override {
        ControlView::showColors();
        static_cast<QLineEdit*>(widget())->setReadOnly(m_.Locked);
    }

  private:
    ui::TextBox& m_;
};

class ComboView : public ControlView {
  public:
    ComboView(ui::ComboBox& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QComboBox(parent), host), m_(m) {
        auto* combo = static_cast<QComboBox*>(widget());
        const bool editable = m_.Style() != ui::ComboStyle::DropDownList;
        combo->setEditable(editable);
        combo->setInsertPolicy(QComboBox::NoInsert);
        QObject::connect(combo, &QComboBox::activated, combo, [this](int index) {
            act([this, index] { m_.select(index); });
            showContent(ControlProperty::Text);
        });
        QObject* keys = editable ? static_cast<QObject*>(combo->lineEdit()) : combo;
        new KeyForwarder(keys, {[this](const std::string& t) { act([&] { m_.type(t); }); },
                                [this](int k) { act([&] { m_.pressKey(k); }); },
                                [this] { act([this] { m_.focus(); }); },
                                [this] { act([this] { m_.leave(); }); }});
        if (editable) {
            QLineEdit* edit = combo->lineEdit();
            QObject::connect(edit, &QLineEdit::cursorPositionChanged, edit,
                             [this, edit](int, int at) {
                                 if (edit->hasSelectedText()) return;
                                 m_.setSelStart(at);
                                 m_.setSelLength(0);
                             });
            QObject::connect(edit, &QLineEdit::selectionChanged, edit, [this, edit] {
                if (!edit->hasSelectedText()) return;
                m_.setSelStart(edit->selectionStart());
                m_.setSelLength(static_cast<int>(edit->selectedText().size()));
            });
        }
    }

  protected:
    void showContent(ControlProperty what) override {
        auto* combo = static_cast<QComboBox*>(widget());
        const QSignalBlocker quiet(combo);
        const QSignalBlocker quietEdit(combo->lineEdit());
        if (what == ControlProperty::List || combo->count() != m_.ListCount()) {
            combo->clear();
            for (int i = 0; i < m_.ListCount(); ++i)
                combo->addItem(qs(m_.List(i)));
        }
        if (combo->currentIndex() != m_.ListIndex()) combo->setCurrentIndex(m_.ListIndex());
        if (combo->isEditable()) {
            showEditText(combo->lineEdit(), m_.text(), m_.SelStart(), m_.SelLength());
        }
    }

  private:
    ui::ComboBox& m_;
};

// ---- Scroll bar and spin control ------------------------------------------------------------

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

// ---- Tab strip -------------------------------------------------------------------------------

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

// ---- The common part ---------------------------------------------------------------------------

ControlView::ControlView(ui::ControlBase& model, QWidget* widget, ViewHost& host)
    : model_(model), widget_(widget), host_(host) {
    widget_->setObjectName(QString::fromStdString(ui::displayName(model)));
    model_.observe(this);
}

ControlView::~ControlView() {
    if (model_.observer() == this) model_.observe(nullptr);
}

void ControlView::controlChanged(ui::ControlBase&, ControlProperty what) {
    switch (what) {
        case ControlProperty::Left:
        case ControlProperty::Top:
        case ControlProperty::Width:
        case ControlProperty::Height:
            place();
            break;
        case ControlProperty::Enabled:
            widget_->setEnabled(model_.Enabled);
            break;
        case ControlProperty::Visible:
            widget_->setVisible(model_.Visible);
            break;
        case ControlProperty::BackColor:
        case ControlProperty::ForeColor:
            showColors();
            break;
        case ControlProperty::ToolTipText:
            widget_->setToolTip(QString::fromStdString(model_.ToolTipText));
            break;
        case ControlProperty::Caption:
            showCaption();
            break;
        default:
            showContent(what);
            break;
    }
}

void ControlView::place() {
    widget_->setGeometry(host_.placeOf(model_));
}

void ControlView::showColors() {
    QPalette palette = widget_->palette();
    const QPalette base = widget_->parentWidget() ? widget_->parentWidget()->palette() : palette;
    // A disabled control keeps the style's greyed look.
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, widget_->backgroundRole(), toQColor(model_.BackColor, base));
        palette.setColor(group, widget_->foregroundRole(), toQColor(model_.ForeColor, base));
    }
    widget_->setPalette(palette);
}

void ControlView::showAll() {
    place();
    widget_->setEnabled(model_.Enabled);
    widget_->setToolTip(QString::fromStdString(model_.ToolTipText));
    showColors();
    showCaption();
    showContent(ControlProperty::List);
    widget_->setVisible(model_.Visible);
}

std::unique_ptr<ControlView> makeControlView(ui::ControlBase& model, QWidget* parent,
                                             ViewHost& host) {
    if (auto* m = dynamic_cast<ui::CommandButton*>(&model))
        return std::make_unique<ButtonView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::Label*>(&model))
        return std::make_unique<LabelView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::Frame*>(&model))
        return std::make_unique<FrameView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::PictureBox*>(&model))
        return std::make_unique<PanelView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::CheckBox*>(&model))
        return std::make_unique<CheckView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::OptionButton*>(&model))
        return std::make_unique<OptionView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::TextBox*>(&model))
        return std::make_unique<TextView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::ComboBox*>(&model))
        return std::make_unique<ComboView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::HScrollBar*>(&model))
        return std::make_unique<ScrollView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::UpDown*>(&model))
        return std::make_unique<SpinView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::TabStrip*>(&model))
        return std::make_unique<TabView>(*m, parent, host);
    if (auto* m = dynamic_cast<ui::SpreadSheet*>(&model)) return makeSheetView(*m, parent, host);
    return nullptr;
}

}  // namespace zt::view
