// A control array: controls of one kind sharing one name, told apart by their index. Indexes
// need not be contiguous. Each element has its own events; a handler that needs the index
// takes it by capture when it is connected.
//
// Elements of a kind that declares an ArrayGroup (option buttons) share one group owned by
// the array.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/ui/control_error.h"

namespace zt::ui {

namespace detail {
struct NoArrayGroup {};
template <typename T>
struct ArrayGroupOf {
    using type = NoArrayGroup;
};
template <typename T>
requires requires {
    typename T::ArrayGroup;
}
struct ArrayGroupOf<T> {
    using type = typename T::ArrayGroup;
};
}  // namespace detail

template <typename T>
class ControlArray {
    using Group = typename detail::ArrayGroupOf<T>::type;
    using Map = std::map<int, std::unique_ptr<T>>;

  public:
    // Elements 0 .. count - 1.
    ControlArray(std::string name, int count) : name_(std::move(name)) {
        for (int i = 0; i < count; ++i)
            load(i);
    }
    ControlArray(const ControlArray&) = delete;
    ControlArray& operator=(const ControlArray&) = delete;

    const std::string& Name() const { return name_; }

    // Creates element `index`; an existing index is refused with "Object already loaded".
    T& load(int index) {
        if (elements_.count(index)) {
            throw AutomationError(kErrAlreadyLoaded, "Object already loaded");
        }
        std::unique_ptr<T> element;
        if constexpr (std::is_same_v<Group, detail::NoArrayGroup>) {
            element = std::make_unique<T>(name_, index);
        } else {
            element = std::make_unique<T>(name_, index, *group_);
        }
        return *elements_.emplace(index, std::move(element)).first->second;
    }

    // A missing element is refused with "Control array element 'N' doesn't exist".
    T& operator[](int index) { return at(index); }
    const T& operator[](int index) const { return at(index); }
    T& at(int index) const {
        auto it = elements_.find(index);
        if (it == elements_.end()) throwNoArrayElement(index);
        return *it->second;
    }
    bool contains(int index) const { return elements_.count(index) != 0; }
    int size() const { return static_cast<int>(elements_.size()); }
    // Lowest and highest index; 0 for an empty array.
    int LBound() const { return elements_.empty() ? 0 : elements_.begin()->first; }
    int UBound() const { return elements_.empty() ? 0 : elements_.rbegin()->first; }

    Group& group() const requires(!std::is_same_v<Group, detail::NoArrayGroup>) { return *group_; }

    // Iterates over the elements in index order.
    class iterator {
      public:
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        iterator() = default;
        explicit iterator(typename Map::const_iterator it) : it_(it) {}
        T& operator*() const { return *it_->second; }
        T* operator->() const { return it_->second.get(); }
        iterator& operator++() {
            ++it_;
            return *this;
        }
        iterator operator++(int) {
            iterator old = *this;
            ++it_;
            return old;
        }
        bool operator==(const iterator&) const = default;

      private:
        typename Map::const_iterator it_;
    };
    iterator begin() const { return iterator(elements_.begin()); }
    iterator end() const { return iterator(elements_.end()); }

  private:
    std::string name_;
    // Declared before the elements so that it outlives them.
    std::unique_ptr<Group> group_ = std::make_unique<Group>();
    Map elements_;
};

}  // namespace zt::ui
