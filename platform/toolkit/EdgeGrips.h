#pragma once

#include "platform/toolkit/Form.h"

// Makes a borderless form movable and sizable by hand: a press of the left button within 5 pixels of an edge pulls that
// edge, in a corner both, and anywhere else moves the form. The pointer tells which, and is put onto the edge that it
// pulls. An edge never comes nearer than 10 pixels to the other one. Only presses on the bare form count: what stands
// on it keeps its own.
class EdgeGrips {
 public:
  static constexpr Twips kEdge = 5 * kTwipsPerPixel;

  explicit EdgeGrips(Form& form);
  EdgeGrips(const EdgeGrips&) = delete;

 private:
  struct Grips {
    bool left, top, right, bottom;
    bool Any() const { return left || top || right || bottom; }
  };

  Grips At(const MousePlace& place) const;
  void Move(const MousePlace& place);
  void Press(const MousePlace& place);
  // Gives where on the form the pointer is then.
  MousePlace PutOnto(const Grips& grips, const MousePlace& place);

  Form& form_;
};
