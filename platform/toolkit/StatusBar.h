#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"

// A row of panels, each with a text, along the lower edge of a form.
class StatusBar : public Control {
 public:
  // What a panel says besides its text, so that it is told at a glance: what it names is off, on, or on the air. A
  // panel that has once been a lamp remains one.
  enum class Lamp { kNone, kOff, kOn, kOnAir };
  struct Panel {
    std::string text;
    Lamp lamp = Lamp::kNone;

    bool operator==(const Panel&) const = default;
  };

  StatusBar(Form& form, std::string name, int panels);
  std::string_view Kind() const override { return "StatusBar"; }

  int Count() const { return static_cast<int>(panels_.size()); }
  // Panels are counted from 1; one that does not exist fails.
  const Panel& PanelAt(int index) const;
  void SetPanel(int index, const std::string& text, Lamp lamp = Lamp::kNone);

  Event<int> PanelChanged;  // its index

 private:
  std::vector<Panel> panels_;
};
