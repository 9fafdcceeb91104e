#pragma once

// The screens' power and their saver, as the X server has them. Without X nothing happens.
class ScreenPower {
 public:
  virtual ~ScreenPower() = default;

  // Keeps the screens lit until the server is told otherwise; lights them where they are dark.
  virtual void Hold();
  // Gives the server its usual times back.
  virtual void Release();
  // Darkens the screens; the server lights them again when a key or the mouse is touched.
  virtual void Darken();
  virtual bool Dark() const;
};
