// Text box and combo box: the model holds the text and the caret, the line edit shows them.
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "view/control_kinds.h"
#include "view/key_forwarder.h"

namespace zt::view {

using ui::ControlProperty;

namespace {

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

// Clicks and arrow keys move the caret or select; the model (a text or combo box) keeps where
// the next key goes.
template <typename Model>
void followCaret(QLineEdit* edit, Model& m) {
    QObject::connect(edit, &QLineEdit::cursorPositionChanged, edit, [&m, edit](int, int at) {
        if (edit->hasSelectedText()) return;
        m.setSelStart(at);
        m.setSelLength(0);
    });
    QObject::connect(edit, &QLineEdit::selectionChanged, edit, [&m, edit] {
        if (!edit->hasSelectedText()) return;
        m.setSelStart(edit->selectionStart());
        m.setSelLength(static_cast<int>(edit->selectedText().size()));
    });
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
        followCaret(edit, m_);
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
        if (editable) followCaret(combo->lineEdit(), m_);
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

}  // namespace

std::unique_ptr<ControlView> makeTextView(ui::TextBox& model, QWidget* parent, ViewHost& host) {
    return std::make_unique<TextView>(model, parent, host);
}

std::unique_ptr<ControlView> makeComboView(ui::ComboBox& model, QWidget* parent, ViewHost& host) {
    return std::make_unique<ComboView>(model, parent, host);
}

}  // namespace zt::view
