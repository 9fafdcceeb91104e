// movies_on_air [--overlays] CLIP [MOVIE LEFT TOP WIDTH HEIGHT]...: a clip over the whole screen, again and again, with
// movies or pictures over it; their places in pixels. With --overlays each stands in a see-through window of its own.

#include <deque>
#include <optional>
#include <string>
#include <utility>
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
bool inOverlays = false;
constexpr std::size_t kMostOverlays = 9;

// The number of movies, and one measure of one of them.
std::size_t Movies() { return (arguments.size() - 1) / 5; }
Twips Measure(std::size_t movie, std::size_t which) {
  return std::stod(arguments[movie * 5 + 2 + which]) * kTwipsPerPixel;
}
const std::string& Path(std::size_t movie) { return arguments[movie * 5 + 1]; }

void Place(std::size_t movie, auto& what) {
  what.Left = Measure(movie, 0);
  what.Top = Measure(movie, 1);
  what.Width = Measure(movie, 2);
  what.Height = Measure(movie, 3);
}

template <std::size_t kMovie>
class frmOverlay : public Form {
 public:
  explicit frmOverlay(Station& station) : Form(station.forms, "frmOverlay" + std::to_string(kMovie), Kind::kOnAir) {
    Place(kMovie, *this);
    Flash.Width = Width.Get();
    Flash.Height = Height.Get();
    Flash.Movie = Path(kMovie);
    OnTop = true;
    ExtendedStyle = kLayered;
    Visible = true;
  }
  FlashBox Flash{*this, "Flash"};
};

template <std::size_t... kMovies>
void ShowOverlays(Station& station, std::index_sequence<kMovies...>) {
  ((kMovies < Movies() ? void(station.forms.Get<frmOverlay<kMovies>>()) : void()), ...);
}

class frmBench : public Form {
 public:
  explicit frmBench(Station& station) : Form(station.forms, "frmBench", Kind::kOnAir) {
    const PixelSize screen = Outside().windows.ScreenSize();
    Width = screen.width * kTwipsPerPixel;
    Height = screen.height * kTwipsPerPixel;
    for (std::size_t i = 0; i < Movies() && !inOverlays; ++i) {
      FlashBox& box = boxes_.emplace_back(*this, "Flash" + std::to_string(i));
      Place(i, box);
      box.Movie = Path(i);
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
  inOverlays = !arguments.empty() && arguments[0] == "--overlays";
  if (inOverlays) arguments.erase(arguments.begin());
  if (arguments.empty()) return 2;
  Station station(outside.world, outside.ProgramFolder());
  station.forms.Get<frmBench>();
  if (inOverlays) ShowOverlays(station, std::make_index_sequence<kMostOverlays>());
  return outside.Run();
}
