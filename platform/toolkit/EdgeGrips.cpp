#include "platform/toolkit/EdgeGrips.h"

#include "platform/Windows.h"

EdgeGrips::EdgeGrips(Form& form) : form_(form) {
  form.MouseMove.Connect([this](const MousePlace& place) { Move(place); });
  form.MouseDown.Connect([this](const MousePlace& place) { Press(place); });
}

EdgeGrips::Grips EdgeGrips::At(const MousePlace& place) const {
  return {
      .left =
          place.x<kEdge, .top = place.y<kEdge, .right = place.x> form_.Width - kEdge, .bottom = place.y> form_.Height -
          kEdge};
}

// A later line overrides an earlier one. While the button is down the shape that was shown last stays, so that it does
// not flicker where the pointer outruns the edge.
void EdgeGrips::Move(const MousePlace& place) {
  MousePointer shape = place.Down(MouseButton::kLeft) ? form_.Pointer.Get() : MousePointer::kDefault;
  const auto [left, top, right, bottom] = At(place);
  if (left || right) shape = MousePointer::kSizeWE;
  if (top || bottom) shape = MousePointer::kSizeNS;
  if ((left && top) || (right && bottom)) shape = MousePointer::kSizeNWSE;
  if ((left && bottom) || (right && top)) shape = MousePointer::kSizeNESW;
  form_.Pointer = shape;
}

void EdgeGrips::Press(const MousePlace& place) {
  if (!place.Down(MouseButton::kLeft) || form_.Window() == nullptr) return;
  const Grips grips = At(place);
  const MousePlace start = PutOnto(grips, place);
  if (!grips.Any()) {
    form_.Pointer = MousePointer::kMove;
    form_.Window()->FollowPointer(
        [&form = form_, left = form_.Left.Get(), top = form_.Top.Get()](Twips right, Twips down) {
          form.Left = left + right;
          form.Top = top + down;
        });
    return;
  }
  const auto pull = [&form = form_, grips, startX = form_.Left + start.x, startY = form_.Top + start.y,
                     width = form_.Width.Get(), height = form_.Height.Get()](Twips right, Twips down) {
    constexpr Twips kLeast = 2 * kEdge;
    const Twips x = startX + right;
    const Twips y = startY + down;
    if (grips.left && width - right > kLeast) {
      form.Left = x;
      form.Width = width - right;
    }
    if (grips.top && height - down > kLeast) {
      form.Top = y;
      form.Height = height - down;
    }
    if (grips.right && x - form.Left > kLeast) form.Width = x - form.Left;
    if (grips.bottom && y - form.Top > kLeast) form.Height = y - form.Top;
  };
  form_.Window()->FollowPointer(pull);
}

// One edge after the other, each time beside the place of the press: in a corner the pointer stands on the last one
// alone, and the other edge comes to it with the first move. Meant so.
MousePlace EdgeGrips::PutOnto(const Grips& grips, const MousePlace& place) {
  MousePlace now = place;
  const auto put = [&](Twips x, Twips y) {
    now = {x, y, place.buttons};
    form_.Window()->PutPointer(x, y);
  };
  if (grips.left) put(0, place.y);
  if (grips.top) put(place.x, 0);
  if (grips.right) put(form_.Width, place.y);
  if (grips.bottom) put(place.x, form_.Height);
  return now;
}
