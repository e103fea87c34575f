// A named collection of chart objects. The chart creates its objects once; they never move, so
// references taken from a collection stay valid for the chart's whole life.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/chart/chart_types.h"
#include "platform/zt_common.h"

namespace zt::chart {

template <typename T>
class Collection {
  public:
    explicit Collection(std::string name) : name_(std::move(name)) {}
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    const std::string& name() const { return name_; }
    int count() const { return static_cast<int>(items_.size()); }

    // The object named `key` (exact, case-sensitive); throws AutomationError when there is none.
    T& operator[](std::string_view key) { return *find(key); }
    const T& operator[](std::string_view key) const { return *find(key); }
    bool contains(std::string_view key) const { return lookup(key) != nullptr; }

    // Objects in the order they were created (the drawing order).
    T& at(int index) { return *items_.at(static_cast<size_t>(index)); }
    const T& at(int index) const { return *items_.at(static_cast<size_t>(index)); }

    T& add(std::unique_ptr<T> item) {
        items_.push_back(std::move(item));
        return *items_.back();
    }

  private:
    T* lookup(std::string_view key) const {
        for (const auto& item : items_) {
            if (item->name() == key) return item.get();
        }
        return nullptr;
    }
    T* find(std::string_view key) const {
        T* item = lookup(key);
        if (!item) {
            throw AutomationError(kErrorNoSuchObject,
                                  "\"" + std::string(key) + "\" is not in " + name_);
        }
        return item;
    }

    std::string name_;
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace zt::chart
