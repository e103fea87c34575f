#include "view/control_views.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "platform/ui/check_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/option_button.h"
#include "platform/ui/spread_sheet.h"
#include "platform/ui/static_controls.h"
#include "platform/ui/surface.h"
#include "view/control_kinds.h"
#include "view/sheet_view.h"
#include "view/view_units.h"

namespace zt::view {

using ui::ControlProperty;

namespace {

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
    if (auto* m = dynamic_cast<ui::TextBox*>(&model)) return makeTextView(*m, parent, host);
    if (auto* m = dynamic_cast<ui::ComboBox*>(&model)) return makeComboView(*m, parent, host);
    if (auto* m = dynamic_cast<ui::HScrollBar*>(&model)) return makeScrollView(*m, parent, host);
    if (auto* m = dynamic_cast<ui::UpDown*>(&model)) return makeSpinView(*m, parent, host);
    if (auto* m = dynamic_cast<ui::TabStrip*>(&model)) return makeTabView(*m, parent, host);
    if (auto* m = dynamic_cast<ui::SpreadSheet*>(&model)) return makeSheetView(*m, parent, host);
    return nullptr;
}

}  // namespace zt::view