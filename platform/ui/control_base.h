// Properties every hosted control on the component's surface has. Sizes are in twips, colours
// are 0x00BBGGRR values or system colours (0x80000000 | index).
//
// A control may have one observer (the window that shows it). The properties a person sees
// are Observed values: they read and assign like the plain value, and an assignment that
// changes the value tells the observer which property changed. Without an observer a change
// costs one comparison.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>

namespace zt::ui {

inline constexpr int32_t kColorButtonFace = static_cast<int32_t>(0x8000000F);
inline constexpr int32_t kColorWindow = static_cast<int32_t>(0x80000005);
inline constexpr int32_t kColorWindowText = static_cast<int32_t>(0x80000008);

class ControlBase;

// What changed on a control.
enum class ControlProperty : uint8_t {
    Enabled,
    Visible,
    Left,
    Top,
    Width,
    Height,
    BackColor,
    ForeColor,
    ToolTipText,
    Caption,
    Value,  // check and option state, scroll and spin value or range, selected tab
    Text,   // the text of a text or combo box
    List,   // the items of a combo box, the tabs of a tab strip
    Cells,  // the whole grid of a sheet: its size, column widths, row heights or every cell
};

class ControlObserver {
  public:
    virtual ~ControlObserver() = default;
    // `what` of `control` has just changed.
    virtual void controlChanged(ControlBase& control, ControlProperty what) = 0;
    // A cell of a sheet is being written (text, colour, lock, kind); its new content is in
    // place when the call that writes it returns.
    virtual void cellChanged(ControlBase& sheet, int col, int row) {
        (void)sheet;
        (void)col;
        (void)row;
    }
};

// A property value that reports its changes to the owning control's observer.
template <typename T>
class Observed {
  public:
    Observed(ControlBase& owner, ControlProperty id, T value = T{})
        : owner_(&owner), value_(std::move(value)), id_(id) {}
    Observed(const Observed&) = delete;
    Observed& operator=(const Observed& other) { return *this = other.value_; }

    Observed& operator=(const T& value) {
        if (value_ == value) return *this;
        value_ = value;
        changed();
        return *this;
    }
    Observed& operator=(T&& value) {
        if (value_ == value) return *this;
        value_ = std::move(value);
        changed();
        return *this;
    }
    template <typename U>
    requires std::is_arithmetic_v<T> Observed& operator+=(const U& d) {
        return *this = static_cast<T>(value_ + d);
    }
    template <typename U>
    requires std::is_arithmetic_v<T> Observed& operator-=(const U& d) {
        return *this = static_cast<T>(value_ - d);
    }

    // A text property reads like the string it holds.
    void clear() requires std::same_as<T, std::string> { *this = T{}; }
    bool empty() const requires std::same_as<T, std::string> { return value_.empty(); }
    std::size_t size() const requires std::same_as<T, std::string> { return value_.size(); }
    std::size_t length() const requires std::same_as<T, std::string> { return value_.size(); }
    const char* c_str() const requires std::same_as<T, std::string> { return value_.c_str(); }
    const char* data() const requires std::same_as<T, std::string> { return value_.data(); }
    auto begin() const requires std::same_as<T, std::string> { return value_.begin(); }
    auto end() const requires std::same_as<T, std::string> { return value_.end(); }
    template <typename... A, typename S = T>
    auto find(A&&... a) const -> decltype(std::declval<const S&>().find(std::forward<A>(a)...)) {
        return value_.find(std::forward<A>(a)...);
    }
    template <typename... A, typename S = T>
    auto rfind(A&&... a) const -> decltype(std::declval<const S&>().rfind(std::forward<A>(a)...)) {
        return value_.rfind(std::forward<A>(a)...);
    }
    template <typename... A, typename S = T>
    auto substr(A&&... a) const
        -> decltype(std::declval<const S&>().substr(std::forward<A>(a)...)) {
        return value_.substr(std::forward<A>(a)...);
    }
    template <typename A, typename S = T>
    auto starts_with(A&& a) const
        -> decltype(std::declval<const S&>().starts_with(std::forward<A>(a))) {
        return value_.starts_with(std::forward<A>(a));
    }
    template <typename A, typename S = T>
    auto ends_with(A&& a) const
        -> decltype(std::declval<const S&>().ends_with(std::forward<A>(a))) {
        return value_.ends_with(std::forward<A>(a));
    }
    template <typename A, typename S = T>
    auto operator[](A i) const -> decltype(std::declval<const S&>()[i]) {
        return value_[i];
    }
    template <typename U>
    requires std::same_as<T, std::string> &&
        (!std::is_same_v<U, Observed>)&&requires(const T& t, const U& u) {
        t + u;
    }
    friend T operator+(const Observed& a, const U& b) { return a.value_ + b; }
    template <typename U>
    requires std::same_as<T, std::string> &&
        (!std::is_same_v<U, Observed>)&&requires(const T& t, const U& u) {
        u + t;
    }
    friend T operator+(const U& a, const Observed& b) { return a + b.value_; }

    operator const T&() const { return value_; }
    const T& get() const { return value_; }
    const T* operator->() const { return &value_; }

    template <typename U>
    requires(!std::is_same_v<U, Observed>) &&
        std::equality_comparable_with<T, U> friend bool operator==(const Observed& a, const U& b) {
        return a.value_ == b;
    }
    friend bool operator==(const Observed& a, const Observed& b) { return a.value_ == b.value_; }
    friend std::ostream& operator<<(std::ostream& out, const Observed& p) {
        return out << p.value_;
    }

  private:
    void changed();

    ControlBase* owner_;
    T value_;
    ControlProperty id_;
};

class ControlBase {
  public:
    ControlBase(std::string name, int index = -1) : name_(std::move(name)), index_(index) {}
    virtual ~ControlBase() = default;
    ControlBase(const ControlBase&) = delete;
    ControlBase& operator=(const ControlBase&) = delete;

    const std::string& Name() const { return name_; }
    // Index within its control array, -1 for a control that is not in one.
    int Index() const { return index_; }

    Observed<bool> Enabled{*this, ControlProperty::Enabled, true};
    Observed<bool> Visible{*this, ControlProperty::Visible, true};
    Observed<float> Left{*this, ControlProperty::Left};
    Observed<float> Top{*this, ControlProperty::Top};
    Observed<float> Width{*this, ControlProperty::Width};
    Observed<float> Height{*this, ControlProperty::Height};
    Observed<int32_t> BackColor{*this, ControlProperty::BackColor, kColorButtonFace};
    Observed<int32_t> ForeColor{*this, ControlProperty::ForeColor, kColorWindowText};
    Observed<std::string> ToolTipText{*this, ControlProperty::ToolTipText};
    int TabIndex = 0;
    bool TabStop = true;

    // A person can act on a control only while it is visible and enabled.
    bool usable() const { return Visible && Enabled; }

    // The one observer (nullptr: none). It must outlive the control or be removed first.
    void observe(ControlObserver* observer) { observer_ = observer; }
    ControlObserver* observer() const { return observer_; }
    // Tells the observer, if any, that `what` changed.
    void notify(ControlProperty what) {
        if (observer_) observer_->controlChanged(*this, what);
    }

  private:
    std::string name_;
    int index_;
    ControlObserver* observer_ = nullptr;
};

template <typename T>
void Observed<T>::changed() {
    owner_->notify(id_);
}

}  // namespace zt::ui
