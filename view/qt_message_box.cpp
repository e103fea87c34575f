#include "view/qt_message_box.h"

#include <QMessageBox>
#include <QPushButton>

namespace zt::view {

namespace {

// The host's style word: buttons in the low bits, the icon at 16 to 64, the default button at
// 256 and 512.
constexpr int32_t kButtonsMask = 0x7;
constexpr int32_t kOkCancel = 1;
constexpr int32_t kIconMask = 0x70;
constexpr int32_t kIconStop = 16;
constexpr int32_t kIconQuestion = 32;
constexpr int32_t kIconExclamation = 48;
constexpr int32_t kIconInformation = 64;
constexpr int32_t kDefaultSecond = 256;

}  // namespace

void QtMessageBox::ShowMessage(std::string& text, int32_t& style, std::string& title, int32_t&,
                               int32_t&, int32_t&, int32_t&, int32_t&, int32_t&, int32_t&,
                               int32_t& result) {
    ++shown;
    QMessageBox box(owner);
    box.setWindowTitle(QString::fromStdString(title));
    box.setText(QString::fromStdString(text));
    switch (style & kIconMask) {
        case kIconStop:
            box.setIcon(QMessageBox::Critical);
            break;
        case kIconQuestion:
            box.setIcon(QMessageBox::Question);
            break;
        case kIconExclamation:
            box.setIcon(QMessageBox::Warning);
            break;
        case kIconInformation:
            box.setIcon(QMessageBox::Information);
            break;
        default:
            break;
    }
    QPushButton* ok = box.addButton(QMessageBox::Ok);
    QPushButton* cancel = nullptr;
    if ((style & kButtonsMask) == kOkCancel) {
        cancel = box.addButton(QMessageBox::Cancel);
        box.setEscapeButton(cancel);
        box.setDefaultButton((style & kDefaultSecond) ? cancel : ok);
    } else {
        box.setEscapeButton(ok);
        box.setDefaultButton(ok);
    }
    box.exec();
    result = cancel && box.clickedButton() != ok ? kResultCancel : kResultOk;
}

}  // namespace zt::view
