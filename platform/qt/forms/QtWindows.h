#pragma once

#include <functional>

#include "platform/Windows.h"
#include "platform/qt/forms/Bindings.h"

// The desktop's windows. Operator forms come from their layout files; on-air forms from the maker handed in.
class QtWindows : public Windows {
 public:
  using OnAirMaker = std::function<std::unique_ptr<FormWindow>(Form&)>;

  // The program goes on when its last window closes.
  QtWindows(OnAirMaker onAir, Surfaces surfaces);

  std::unique_ptr<FormWindow> Create(Form& form) override;
  PixelSize ScreenSize() const override;

 private:
  OnAirMaker onAir_;
  Surfaces surfaces_;
};
