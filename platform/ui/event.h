// One event of a hosted control. Like the controls it models, an event has at most one
// handler: the component's. Raising an event with no handler does nothing.
#pragma once

#include <functional>
#include <utility>

namespace zt::ui {

template <typename... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;

    void connect(Handler handler) { handler_ = std::move(handler); }
    void disconnect() { handler_ = nullptr; }
    bool connected() const { return static_cast<bool>(handler_); }

    template <typename... A>
    void raise(A&&... args) const {
        if (handler_) handler_(std::forward<A>(args)...);
    }

  private:
    Handler handler_;
};

}  // namespace zt::ui
