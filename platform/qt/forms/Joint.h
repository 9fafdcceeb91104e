#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/toolkit/Event.h"

// Everything that joins one form with the widgets of its window. What an operator does may unload the form, and with it
// the joint and the window, while the widget that he touched is still at work; so the widgets go only when no act of
// his is under way, and a handler calls the toolkit as its last step and touches nothing of its own after it.
class Joint {
 public:
  // `window` belongs to the joint from now on.
  explicit Joint(QWidget* window);
  // Hides the window at once and deletes it as soon as it may go.
  ~Joint();
  Joint(const Joint&) = delete;
  Joint& operator=(const Joint&) = delete;

  QWidget& Window() const { return *acts_->window; }

  // Calls `apply` now and at each change, for as long as the joint lasts.
  template <class... Args>
  void Follow(Event<Args...>& changed, std::function<void()> apply) {
    apply();
    Watch(changed, [apply](Args...) { apply(); });
  }
  // Calls `apply` at each change only.
  template <class... Args>
  void Watch(Event<Args...>& changed, typename Event<Args...>::Handler apply) {
    subscriptions_.push_back(changed.Subscribe(std::move(apply)));
  }

  // Calls `act` when the widget sends its signal, for as long as the joint lasts.
  template <class Sender, class Signal, class Act>
  void On(Sender* sender, Signal signal, Act act) {
    QObject::connect(sender, signal, context_.get(), [acts = acts_, act](auto... arguments) {
      const Running running(acts);
      act(arguments...);
    });
  }

  // Shows `seen` each event of `target`, before the target handles it; true keeps the event from it.
  void OnEvents(QObject* target, std::function<bool(QEvent&)> seen);

  // Calls `leave` when the joint goes: the widgets stay a little longer than the controls they show.
  void AtEnd(std::function<void()> leave) { leaving_.push_back(std::move(leave)); }

  // `work` as an act that does nothing once the joint has gone.
  std::function<void()> WhileHere(std::function<void()> work) const;
  // Calls `work` when the present handler has returned, or after that time, unless the joint has gone by then.
  void Later(std::function<void()> work, std::chrono::milliseconds delay = {});

 private:
  struct Acts {
    QPointer<QWidget> window;
    int running = 0;
    bool abandoned = false;
  };
  class Running {
   public:
    explicit Running(std::shared_ptr<Acts> acts) : acts_(std::move(acts)) { ++acts_->running; }
    ~Running();

   private:
    std::shared_ptr<Acts> acts_;
  };
  class EventWatch;

  std::shared_ptr<Acts> acts_;
  std::unique_ptr<QObject> context_;
  std::vector<Subscription> subscriptions_;
  std::vector<std::function<void()>> leaving_;
};
