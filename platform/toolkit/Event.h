#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

// Ends a connection when it goes.
using Subscription = std::shared_ptr<void>;

// Something that happens, and those who wish to know of it. They are called in the order in which they connected; one
// that connects or leaves while the event is being told is not called this time.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  // For as long as the event lives.
  void Connect(Handler handler) { permanent_.push_back(std::make_shared<Handler>(std::move(handler))); }

  // For as long as the result is kept.
  [[nodiscard]] Subscription Subscribe(Handler handler) {
    auto kept = std::make_shared<Handler>(std::move(handler));
    std::erase_if(watching_, [](const std::weak_ptr<Handler>& one) { return one.expired(); });
    watching_.push_back(kept);
    return kept;
  }

  void Raise(Args... args) const {
    if (permanent_.empty() && watching_.empty()) return;
    const auto own = permanent_;
    const auto others = watching_;
    for (const auto& handler : own) (*handler)(args...);
    for (const auto& watcher : others) {
      if (const auto handler = watcher.lock()) (*handler)(args...);
    }
  }

 private:
  std::vector<std::shared_ptr<Handler>> permanent_;
  std::vector<std::weak_ptr<Handler>> watching_;
};
