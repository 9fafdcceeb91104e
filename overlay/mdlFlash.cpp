#include "overlay/mdlFlash.h"

#include "overlay/clsSWFHeaderParser.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"

namespace {

constexpr Colour kKeyColour{0xCC, 0xCC, 0xFF};

}  // namespace

// Nothing asks the parser anything: it is here for its warning.
void LoadFlashInto(FlashBox& flash, const std::string& path, Form& form) {
  const auto warn = [&form](const std::string& text, const std::string& title) { form.Warn(text, title); };
  clsSWFHeaderParser(form.Outside().files, warn).OpenFile(path);
  flash.Movie = path;
  flash.Top = 0;
  flash.Left = 0;
  flash.Height = form.Height.Get();
  flash.Width = form.Width.Get();
  SetFormTransparent(form, true);
}

void SetFormTransparent(Form& form, bool enabled) {
  form.BackColor = enabled ? kKeyColour : kButtonFace;
  form.KeyColour = enabled ? std::optional(kKeyColour) : std::nullopt;
  form.ExtendedStyle = enabled ? kLayered : 0;
}
