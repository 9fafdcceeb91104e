#include <algorithm>
#include <cctype>

#include "platform/Files.h"
#include "platform/Pictures.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/PlayerControl.h"
#include "settings/Station.h"
#include "tests/platform/qt/Worlds.h"

// A file is found in any spelling of its path, and what goes out to players and picture readers is its very name: they
// know no other, in the virtual and the real world alike.

namespace {

class frmSpelling : public Form {
 public:
  explicit frmSpelling(Station& station) : Form(station.forms, "frmSpelling", Kind::kOnAir) {}

  PictureBox Pane{*this, "Pane", PictureBox::Sizing::kByPicture};
  FlashBox Flash{*this, "Flash"};
  PlayerControl Player{*this, "Player"};
};

class NobodyListens : public MediaListener {
  void PlayStateChanged(PlayState) override {}
  void MediaChanged() override {}
};

// The file's name in capitals.
std::string InCapitals(const std::string& path) {
  std::string other = path;
  const auto name = other.begin() + static_cast<std::ptrdiff_t>(other.rfind('/'));
  std::transform(name, other.end(), name, [](unsigned char letter) { return std::toupper(letter); });
  return other;
}

std::string WithBackslashes(const std::string& path) {
  std::string other = path;
  std::ranges::replace(other, '/', '\\');
  return other;
}

std::vector<std::string> OtherSpellings(const std::string& path) {
  return {InCapitals(path), WithBackslashes(path), WithBackslashes(InCapitals(path))};
}

template <typename AnyWorld>
class SpellingContractTest : public testing::Test {
 protected:
  AnyWorld outside;
  Station station{outside.world, "/station"};
  frmSpelling& form = station.forms.Get<frmSpelling>();
};

TYPED_TEST_SUITE(SpellingContractTest, Worlds);

TYPED_TEST(SpellingContractTest, AnItemInAnySpellingPlaysToItsEnd) {
  const std::string clip = this->outside.Clip("red.mp4", 0.3);
  for (const std::string& spelling : OtherSpellings(clip)) {
    this->form.Player.URL = spelling;
    EXPECT_EQ(this->form.Player.URL.Get(), spelling);
    EXPECT_TRUE(this->outside.Until([&] { return this->form.Player.playState() == 8; })) << spelling;
    this->form.Player.URL = "";
  }
}

TYPED_TEST(SpellingContractTest, APlayerByItselfKnowsTheVeryNameAlone) {
  NobodyListens nobody;
  const auto player = this->outside.media.NewPlayer("strict", nobody);
  const std::string clip = this->outside.Clip("strict.mp4", 5);
  for (const std::string& spelling : OtherSpellings(clip)) {
    player->Open(spelling);
    this->outside.Pass(std::chrono::milliseconds(200));
    EXPECT_FALSE(player->IsOpen()) << spelling;
  }
  player->Open(clip);
  EXPECT_TRUE(this->outside.Until([&] { return player->IsOpen(); }));
}

TYPED_TEST(SpellingContractTest, ThePicturesOfAllPanesAreLoadedUnderTheirVeryNames) {
  const std::string picture = this->outside.Picture("logo.jpg", {40, 30});
  for (const std::string& spelling : OtherSpellings(picture)) {
    this->form.Pane.LoadPicture(spelling);
    EXPECT_EQ(this->form.Pane.Picture.Get().path, picture);
    EXPECT_EQ(this->form.Pane.Width, 40 * kTwipsPerPixel);
    this->form.Flash.Movie = spelling;
    EXPECT_EQ(this->form.Flash.File(), picture);
    EXPECT_EQ(this->form.Flash.Movie.Get(), spelling);
  }
}

TYPED_TEST(SpellingContractTest, TheSizeOfAPictureIsKnownUnderItsVeryNameAlone) {
  const std::string picture = this->outside.Picture("size.jpg", {40, 30});
  const Pictures& pictures = this->outside.world.pictures;
  EXPECT_EQ(pictures.Size(picture), (PixelSize{40, 30}));
  for (const std::string& spelling : OtherSpellings(picture)) EXPECT_EQ(pictures.Size(spelling), std::nullopt);
  EXPECT_EQ(pictures.Size(this->outside.Absent()), std::nullopt);
}

TEST(AddressesTest, AnAddressIsNotTakenForAPath) {
  for (const char* address : {"http://host/Live", "rtmp://a\\b", "HTTPS://HOST", "mms+x.y-z://h"}) {
    EXPECT_TRUE(IsAddress(address)) << address;
  }
  for (const char* path : {"", "/a/b.mp4", "://x", "C:\\a.mp4", "/clips/a://b", "a b://c"}) {
    EXPECT_FALSE(IsAddress(path)) << path;
  }
}

TEST(AddressesTest, AStreamIsOpenedAsItIsGiven) {
  SimWorld sim;
  Station station{sim.world, "/station"};
  auto& form = station.forms.Get<frmSpelling>();
  form.Player.URL = "http://HOST/a\\LIVE";
  EXPECT_EQ(sim.media.Find("frmSpelling.Player")->Url(), "http://HOST/a\\LIVE");
}

}  // namespace
