#pragma once

#include <optional>
#include <string>

#include "output/AdBand.h"
#include "output/CurrentAd.h"
#include "output/cMonitors.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Timer.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

// The picture that goes to air: a borderless window of stacked panes. What the viewer sees is decided by which panes
// are visible. All measures are twips.
class frmPlayer : public Form {
 public:
  explicit frmPlayer(Station& station);

  // Front to back; what stands in a pane is clipped at its edge.
  PictureBox PicVideoAd{*this, "PicVideoAd"};  // covers everything during a break
  PlayerControl AdPlayer{PicVideoAd, "AdPlayer"};
  PictureBox PicSide{*this, "PicSide"};
  FlashBox FlashSideAd{PicSide, "FlashSideAd"};
  PictureBox picNext{*this, "picNext"};  // parked past the right edge; nothing brings it in
  PaneText PlayerNext{picNext, "PlayerNext"};
  PaneText lblUpNext{picNext, "lblUpNext"};
  PictureBox picOnline{*this, "picOnline"};
  PaneText lblChannelName{picOnline, "lblChannelName"};
  PlayerControl PlayerOnline{picOnline, "PlayerOnline"};
  PictureBox PicAd{*this, "PicAd"};  // the crawler strip
  FlashBox FlashRight{PicAd, "FlashRight"};
  FlashBox FlashLeft{PicAd, "FlashLeft"};
  PictureBox picSize{PicAd, "picSize", PictureBox::Sizing::kByPicture};  // never shown: tells a picture's size
  PictureBox pic{PicAd, "pic", PictureBox::Sizing::kByPicture};          // scrolls
  FlashBox Flash{PicAd, "Flash"};
  PictureBox PicMedia{*this, "PicMedia"};
  PlayerControl Player{PicMedia, "Player"};  // the playlist item
  PictureBox PicAv{PicMedia, "PicAv"};       // behind the player, or it would hide the middle of every item
  PlayerControl m{*this, "m"};

  // In turn: scrolls the crawler; looks for the last 25 seconds of an item, and slides the banner in, but nothing
  // enables those two; lays the window out once more.
  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1), Timer::kEnabled};
  Timer Timer2{*this, "Timer2", std::chrono::milliseconds(10), Timer::kDisabled};
  Timer Timer3{*this, "Timer3", std::chrono::milliseconds(10), Timer::kDisabled};
  Timer Timer4{*this, "Timer4", std::chrono::milliseconds(2000), Timer::kEnabled};
  // Half a second after an end: the next item, and the next video ad.
  Timer TimerMedia{*this, "TimerMedia", std::chrono::milliseconds(500), Timer::kDisabled};
  Timer TimerAdPlayer{*this, "TimerAdPlayer", std::chrono::milliseconds(500), Timer::kDisabled};

  FormExtender win{*this, "win"};

  // Puts a file or a stream on the air as the playlist item.
  void MainPlay(const std::string& path);
  // Lays out the crawler strip from the record of the current ad.
  void SetHeight();
  // Loads one ad into the strip: four paths, of which `left` and `right` may be empty.
  void ViewAd(const std::string& header, const std::string& scroll, const std::string& left, const std::string& right);
  // Shows the side column and lays it out.
  void SideAd();
  // Cuts the window down to the crawler strip, on top of all, at the bottom of the primary display; its left edge stays
  // where it is.
  void Mask();
  // Gives the window its design height back, whatever it had before, in the middle of the primary display. The strip
  // stays at its top until the next ad.
  void Unmask();
  // Sends the window to monitor `index`, from 1; see MoveToMonitor. The monitors are those of the first call: one that
  // is plugged in later is not seen before the window is made anew. Stays put when there is no such monitor.
  void MoveTo(int index);
  // Aligns the window's left, top and width to the work area of a monitor.
  void SetDisplay(const cMonitor& monitor);
  // Does nothing; a public operation all the same.
  void LogoSett() {}

  // What the forms above are told; the road page connects them.
  Event<> ItemStarted;     // MainPlay has handed an item to the player
  Event<> ItemOver;        // half a second after the end of an item
  Event<> ItemNearlyOver;  // Timer2, which nothing enables
  Event<> MediaOpened;     // the player knows the duration of a new item
  Event<> VideoAdOver;     // half a second after the end of a video ad
  Event<> CrawlerLeft;     // the scrolling picture has left the band

 protected:
  void Load() override;

 private:
  void Timer1_Tick();
  void Timer2_Tick();
  void Timer3_Tick();
  void Player_PlayStateChange();
  void AdPlayer_PlayStateChange();
  void DragBand();
  void LayOut();
  void CutToStrip();
  Twips WholeHeight() const { return heightBeforeMask_.value_or(Height); }
  void Fill(Control& control, Twips below = 0);

  Station& station_;
  CurrentAd& currentAd_;
  AdBand band_;
  std::optional<cMonitors> monitors_;
  std::optional<Twips> heightBeforeMask_;  // of a window that is masked now
  int slide_ = 0;                          // of the banner, twips
};
