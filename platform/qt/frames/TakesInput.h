#pragma once

class QEvent;

// What an operator's mouse and keys are passed on to, while a surface that shows it has them.
class TakesInput {
 public:
  virtual ~TakesInput() = default;
  // An event of the mouse, the wheel or the keys, its places counted from the picture's own corner.
  virtual void Take(const QEvent& event) = 0;
};
