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
  if (!grips.Any()) form_.Pointer = MousePointer::kMove;
  const auto pull = [&form = form_, grips, left = form_.Left.Get(), top = form_.Top.Get(), width = form_.Width.Get(),
                     height = form_.Height.Get()](Twips right, Twips down) {
    constexpr Twips kLeast = 2 * kEdge;
    if (!grips.Any()) {
      form.Left = left + right;
      form.Top = top + down;
    }
    if (grips.left && width - right > kLeast) {
      form.Left = left + right;
      form.Width = width - right;
    }
    if (grips.top && height - down > kLeast) {
      form.Top = top + down;
      form.Height = height - down;
    }
    const Twips rightEdge = left + width + right;
    const Twips bottomEdge = top + height + down;
    if (grips.right && rightEdge - form.Left > kLeast) form.Width = rightEdge - form.Left;
    if (grips.bottom && bottomEdge - form.Top > kLeast) form.Height = bottomEdge - form.Top;
  };
  form_.Window()->FollowPointer(pull);
}
