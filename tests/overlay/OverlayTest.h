#pragma once

#include <array>
#include <string>

#include "overlay/FrmLogoShow.h"
#include "overlay/frmClockShow.h"
#include "overlay/frmFlashAdShow.h"
#include "overlay/frmStikerShow.h"
#include "tests/StationTest.h"

// A station with movies for its overlays.
class OverlayTest : public StationTest {
 protected:
  // Left, top, width and height.
  using Place = std::array<Twips, 4>;

  FrmLogoShow& Logo() { return station.forms.Get<FrmLogoShow>(); }
  frmFlashAdShow& FlashAd() { return station.forms.Get<frmFlashAdShow>(); }

  // Makes a movie and gives its path.
  std::string Movie(const std::string& name) {
    const std::string path = "/station/Media/Logo/" + name;
    sim.files.Put(path, "FWS\x08 and so on");
    return path;
  }
  // What Window.ini remembers of a form, in twips.
  void Remember(const std::string& form, const std::string& left, const std::string& top, const std::string& width,
                const std::string& height) {
    sim.files.Put("/station/Window.ini", "[" + form + "]\r\nLeft=" + left + "\r\nTop=" + top + "\r\nWidth=" + width +
                                             "\r\nHeight=" + height + "\r\n");
  }
  SimSurface& Surface(const std::string& form) { return *sim.flash.Find(form + ".Flash"); }
  // The warnings that came before the operator since the last call.
  int Warnings() { return static_cast<int>(std::ranges::count(sim.trace.Take(), kWarning)); }
  // The grip is pressed, pulled and let go of.
  void Drag(OverlayForm& form, Twips right, Twips down, MouseButton button = MouseButton::kLeft) {
    form.lbl.PressMouse(button);
    form.Left = form.Left + right;  // as the window does that follows the pointer
    form.Top = form.Top + down;
    sim.windows.EndDrag();
  }
  static Place PlaceOf(const Form& form) { return {form.Left, form.Top, form.Width, form.Height}; }

  static inline const std::string kWarning = "box \"File could not be opened.\" \"Error Opening File\" warning";
  static constexpr Colour kKey{0xCC, 0xCC, 0xFF};
};
