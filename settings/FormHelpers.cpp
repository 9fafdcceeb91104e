#include "settings/FormHelpers.h"

#include "platform/Windows.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"

namespace {

Twips Middle(int screenPixels, Twips size) { return (ToTwips(screenPixels) - size) / 2; }

}  // namespace

void CentreForm(Form& form) {
  const PixelSize screen = form.Outside().windows.ScreenSize();
  form.Top = Middle(screen.height, form.Height);
  form.Left = Middle(screen.width, form.Width);
}

void DragForm(Form& form) {
  form.Window()->DragWindow([&form] { form.Left = Middle(form.Outside().windows.ScreenSize().width, form.Width); });
}

bool FindListItem(ListView& list, const std::string& text) {
  const int row = list.FindItem(text);
  if (row == 0) return false;
  list.EnsureVisible(row);
  list.Select(row);
  list.SetFocus();
  return true;
}
