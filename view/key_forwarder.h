// Takes the keys and focus changes of a text field away from Qt and hands them to the model
// of the box the field shows, so that the model alone decides what the field holds.
#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QObject>

#include <functional>
#include <string>

namespace zt::view {

class KeyForwarder : public QObject {
  public:
    struct Actions {
        std::function<void(const std::string&)> type;  // printable text
        std::function<void(int)> key;                  // 8 backspace, 13 Enter
        std::function<void()> focusIn;
        std::function<void()> focusOut;
    };
    KeyForwarder(QObject* watched, Actions actions);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Actions actions_;
};

}  // namespace zt::view
