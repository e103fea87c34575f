// The widget of each hosted control model. A view shows its model (place, size, caption,
// enabled and visible state, colours and content) as change notifications arrive, and hands
// what a person does with the widget to the model's user actions, exactly as a test does.
#pragma once

#include <QRect>
#include <QWidget>

#include <functional>
#include <memory>

#include "platform/ui/control_base.h"

namespace zt::view {

// What a view needs of the window around it.
class ViewHost {
  public:
    virtual ~ViewHost() = default;
    // The widget's place in its parent, in pixels.
    virtual QRect placeOf(const ui::ControlBase& control) const = 0;
    // Runs a person's action on the component and lets the window catch up with its effects.
    virtual void act(const std::function<void()>& action) = 0;
    // A view holds changes to show once the component's call in progress has returned.
    virtual void scheduleFlush() = 0;
};

class ControlView : public ui::ControlObserver {
  public:
    // The view observes `model` from now on; `widget` belongs to its Qt parent.
    ControlView(ui::ControlBase& model, QWidget* widget, ViewHost& host);
    ~ControlView() override;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    ui::ControlBase& model() const { return model_; }
    QWidget* widget() const { return widget_; }

    void controlChanged(ui::ControlBase& control, ui::ControlProperty what) override;
    // Shows everything the model holds.
    void showAll();
    // Moves and sizes the widget where the model (or the window's design) puts it.
    void place();
    // Shows changes held back until the component's call returned (see ViewHost).
    virtual void flush() {}

  protected:
    virtual void showCaption() {}
    // Value, Text, List or Cells changed.
    virtual void showContent(ui::ControlProperty what) { (void)what; }
    virtual void showColors();
    void act(const std::function<void()>& action) { host_.act(action); }
    ViewHost& host() const { return host_; }

  private:
    ui::ControlBase& model_;
    QWidget* widget_;
    ViewHost& host_;
};

// The view for a model of any kind on the surface, except sheets (see sheet_view.h).
std::unique_ptr<ControlView> makeControlView(ui::ControlBase& model, QWidget* parent,
                                             ViewHost& host);

}  // namespace zt::view
