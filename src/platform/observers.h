#pragma once

#include <functional>
#include <list>
#include <utility>

#include "platform/at_exit.h"

namespace awizo {

/// Observers, notified in the order in which they were added. While it is notified, an observer may
/// remove itself or others, which then aren't notified any more; one added meanwhile is notified
/// from the next time on.
template <class News>
class Observers {
 public:
  using Observer = std::function<void(News)>;

  /// Returns the number by which the observer is removed.
  int add(Observer observer) {
    entries_.push_back({++lastNumber_, std::move(observer)});
    return lastNumber_;
  }

  void remove(int number) {
    for (Entry& entry : entries_) {
      if (entry.number == number) entry.number = removed;
    }
    if (calls_ == 0) dropRemoved();
  }

  void tell(News news) {
    if (entries_.empty()) return;
    const int newest = lastNumber_;
    ++calls_;
    const AtExit end([this] {
      if (--calls_ == 0) dropRemoved();
    });
    for (const Entry& entry : entries_) {
      if (entry.number != removed && entry.number <= newest) entry.observer(news);
    }
  }

 private:
  static constexpr int removed = 0;
  struct Entry {
    int number;
    Observer observer;
  };

  /// A procedure that runs must stay where it is, so nothing is erased before all have returned.
  void dropRemoved() {
    std::erase_if(entries_, [](const Entry& entry) { return entry.number == removed; });
  }

  std::list<Entry> entries_;
  int lastNumber_ = 0;
  int calls_ = 0;
};

}  // namespace awizo
