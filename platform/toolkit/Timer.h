#pragma once

#include <chrono>
#include <string>

#include "platform/Scheduler.h"
#include "platform/toolkit/Component.h"
#include "platform/toolkit/Property.h"

// Ticks at its interval while enabled; one whose interval is 0 never ticks. Enabling an enabled timer changes nothing;
// ticks do not pile up; a tick may run while an earlier one stands in a dialog.
class Timer : public Component {
 public:
  enum class Start { kDisabled, kEnabled };
  static constexpr Start kDisabled = Start::kDisabled;
  static constexpr Start kEnabled = Start::kEnabled;

  Timer(Form& form, std::string name, std::chrono::milliseconds interval, Start start,
        TickPhase phase = TickPhase::kFromStart);
  ~Timer() override;

  void Retire() override;

  std::chrono::milliseconds Interval() const { return interval_; }

  Property<bool> Enabled;
  Event<> Tick;

 private:
  void Apply();

  std::chrono::milliseconds interval_;
  TickPhase phase_;
  Scheduler::Id running_ = 0;
  bool retired_ = false;
};
