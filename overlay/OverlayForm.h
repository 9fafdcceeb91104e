#pragma once

#include <cstdint>
#include <optional>

#include "output/cMonitors.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Timer.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

// A small movie or picture over the picture on the air, in a window of its own: on top, see-through, moved by hand,
// remembered. The four overlays are thin types on it; what tells them apart is a row of the table.
class OverlayForm : public Form {
 public:
  PaneText lbl{*this, "lbl"};  // without a text; covers the form, and is the grip to drag it by
  FlashBox Flash{*this, "Flash"};

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(500), Timer::kEnabled};  // brings the stored left edge

  FormExtender win{*this, "win"};

  // Twips; nothing is stored.
  void SetSize(std::int16_t height, std::int16_t width);
  // Does nothing; a public operation all the same.
  void LoadFlash() {}
  // Moves the window to monitor `index`, from 1, with the offset that it has from its monitor's corner. The monitors
  // are those of the first call. Stays put when it is on that monitor already, or there is none.
  void MoveTo(int index);

 protected:
  enum class AtLoad { kShowsMovie, kStaysEmpty };
  struct Design {
    const char* name;
    const char* section;  // of Settings.ini, with the keys Path and Left
    AtLoad atLoad;
  };
  static constexpr Design kLogo{"FrmLogoShow", "Logo", AtLoad::kShowsMovie};
  static constexpr Design kClock{"frmClockShow", "Clock", AtLoad::kShowsMovie};
  static constexpr Design kStiker{"frmStikerShow", "Stiker", AtLoad::kShowsMovie};
  static constexpr Design kFlashAd{"frmFlashAdShow", "FlashAd", AtLoad::kStaysEmpty};  // its rotation brings the movie

  OverlayForm(Station& station, const Design& design);
  void Load() override;

 private:
  void Form_Resize();
  void Timer1_Tick();
  void lbl_MouseDown();
  void KeepOffset(const cMonitor& current, const cMonitor& target);

  Station& station_;
  const Design& design_;
  std::optional<cMonitors> monitors_;
};
