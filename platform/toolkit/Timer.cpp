#include "platform/toolkit/Timer.h"

#include "platform/toolkit/Form.h"

Timer::Timer(Form& form, std::string name, std::chrono::milliseconds interval, Start start, TickPhase phase)
    : Component(form, std::move(name)), Enabled(start == kEnabled), interval_(interval), phase_(phase) {
  Enabled.Changed.Connect([this] { Apply(); });
  Apply();
}

Timer::~Timer() { Retire(); }

void Timer::Retire() {
  retired_ = true;
  Apply();
}

void Timer::Apply() {
  Scheduler& scheduler = Owner().Outside().scheduler;
  const bool wanted = Enabled && !retired_ && interval_ > interval_.zero();
  if (wanted && running_ == 0) {
    running_ = scheduler.Start(interval_, phase_, [this] { Handle("Tick", [this] { Tick.Raise(); }); });
  } else if (!wanted && running_ != 0) {
    scheduler.Cancel(running_);
    running_ = 0;
  }
}
