// movies_on_air CLIP [MOVIE LEFT TOP WIDTH HEIGHT]...: a clip over the whole screen, again and again, with movies over
// it; their places in pixels.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/Windows.h"
#include "platform/qt/QtWorld.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/PlayerControl.h"
#include "settings/Station.h"

namespace {

std::vector<std::string> arguments;

class frmBench : public Form {
 public:
  explicit frmBench(Station& station) : Form(station.forms, "frmBench", Kind::kOnAir) {
    const PixelSize screen = Outside().windows.ScreenSize();
    Width = screen.width * kTwipsPerPixel;
    Height = screen.height * kTwipsPerPixel;
    for (std::size_t i = 1; i + 4 < arguments.size(); i += 5) {
      FlashBox& box = boxes_.emplace_back(*this, "Flash" + std::to_string(i));
      const auto twips = [&](std::size_t at) { return std::stod(arguments[i + at]) * kTwipsPerPixel; };
      box.Left = twips(1);
      box.Top = twips(2);
      box.Width = twips(3);
      box.Height = twips(4);
      box.Movie = arguments[i];
    }
    player_.emplace(*this, "Player");
    player_->Width = Width.Get();
    player_->Height = Height.Get();
    player_->stretchToFit = true;
    player_->PlayStateChange.Connect([this] {
      if (player_->playState() == static_cast<int>(PlayState::kMediaEnded)) player_->URL = arguments[0];
    });
    player_->URL = arguments[0];
    Visible = true;
  }

 private:
  std::deque<FlashBox> boxes_;  // in front of the player
  std::optional<PlayerControl> player_;
};

}  // namespace

int main(int argc, char** argv) {
  QtWorld outside;
  arguments.assign(argv + 1, argv + argc);
  if (arguments.empty()) return 2;
  Station station(outside.world, outside.ProgramFolder());
  station.forms.Get<frmBench>();
  return outside.Run();
}
