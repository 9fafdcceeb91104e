#include "output/frmPlayer.h"

#include "output/Placement.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failures.h"
#include "settings/FormHelpers.h"
#include "settings/Numbers.h"

namespace {

constexpr Twips kDesignHeight = 11520;

// The players' transport bars stand below the visible part of their panes.
constexpr Twips kTransportBar = 900;
constexpr Twips kOnlineTransportBar = 600;

constexpr int kMediaEnded = static_cast<int>(PlayState::kMediaEnded);

}  // namespace

frmPlayer::frmPlayer(Station& station)
    : Form(station.forms, "frmPlayer", Kind::kOnAir),
      station_(station),
      currentAd_(station.Shared<CurrentAd>()),
      band_({.header = Flash,
             .picture = pic,
             .left = FlashLeft,
             .right = FlashRight,
             .headerSize = picSize,
             .leftSize = picSize,
             .rightSize = picSize},
            currentAd_) {
  Width = 15450;
  Height = kDesignHeight;
  PicVideoAd.Visible = false;
  PicSide.Visible = false;
  PicSide.Width = 3000;
  picOnline.Visible = false;
  picSize.Visible = false;
  FlashLeft.Visible = false;
  FlashRight.Visible = false;
  PicAv.Width = 11055;
  PicAv.Height = 6375;
  picNext.Width = 4500;
  picNext.Height = 900;
  PlayerNext.Text = "Press Ctrl+M for main menu";
  PlayerNext.Top = 450;
  PlayerNext.Width = 4500;
  PlayerNext.Height = 450;
  lblUpNext.Text = "Up next:";
  lblUpNext.Width = 4500;
  lblUpNext.Height = 450;
  lblChannelName.Width = 9000;
  lblChannelName.Height = 450;
  Player.stretchToFit = true;
  PlayerOnline.stretchToFit = true;
  PlayerOnline.settings.volume = 100;
  PlayerOnline.takesLiveUpAgain = true;

  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  Timer2.Tick.Connect([this] { Timer2_Tick(); });
  Timer3.Tick.Connect([this] { Timer3_Tick(); });
  Timer4.Tick.Connect([this] {
    Load();
    Timer4.Enabled = false;
  });
  TimerMedia.Tick.Connect(
      [this] { SkippingFailures([this] { ItemOver.Raise(); }, [this] { TimerMedia.Enabled = false; }); });
  TimerAdPlayer.Tick.Connect(
      [this] { SkippingFailures([this] { VideoAdOver.Raise(); }, [this] { TimerAdPlayer.Enabled = false; }); });
  Player.PlayStateChange.Connect([this] { Player_PlayStateChange(); });
  Player.CurrentMediaChange.Connect([this] { MediaOpened.Raise(); });
  AdPlayer.PlayStateChange.Connect([this] { AdPlayer_PlayStateChange(); });

  MouseDown.Connect([this](const MousePlace&) { Window()->DragWindow([] {}); });
  pic.FellBack.Connect([this] { SetHeight(); });
  pic.MouseDown.Connect([this](MouseButton) { DragBand(); });
  PicAd.MouseDown.Connect([this](MouseButton) { DragBand(); });
  picNext.MouseDown.Connect([this](MouseButton) { Timer4.Enabled = true; });
}

// Timer4 runs it again two seconds after the window opened, when the position store has had its say about the size.
// The store has the window back at the end, so what is recorded is never the corner that the first lines set. A window
// that was masked meanwhile stays masked, and out of the store's hands; behind the mask its panes are laid out all the
// same.
void frmPlayer::Load() {
  if (heightBeforeMask_) {
    LayOut();
    CutToStrip();
    return;
  }
  win.Release();
  Top = 0;
  Left = 0;
  LayOut();
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
}

void frmPlayer::LayOut() {
  const Twips height = WholeHeight();
  Fill(PicMedia);
  Fill(Player, kTransportBar);
  PicAv.Top = (height - PicAv.Height) / 2;
  PicAv.Left = (Width - PicAv.Width) / 2;
  PicAd.Left = 0;
  PicAd.Width = Width;
  Fill(PicVideoAd);
  Fill(picOnline);
  Fill(PlayerOnline, kOnlineTransportBar);
  Fill(AdPlayer, kTransportBar);
  picNext.Left = Width + picNext.Width;
  picNext.Top = (height - picNext.Height) / 2;
  SetHeight();
  // The restore walk has laid a column out for the size that the window had before the store's.
  if (PicSide.Visible) SideAd();
}

// The store keeps the place of the whole window: a power cut must not bring a strip back.
void frmPlayer::Mask() {
  win.Release();
  if (!heightBeforeMask_) heightBeforeMask_ = Height.Get();
  CutToStrip();
  win.OnTop = true;
}

void frmPlayer::CutToStrip() {
  Height = PicAd.Height.Get();
  PicAd.Top = 0;
  PicAd.Left = 0;
  Top = ToTwips(Outside().windows.ScreenSize().height) - PicAd.Height;
}

void frmPlayer::Unmask() {
  heightBeforeMask_.reset();
  Height = kDesignHeight;
  win.OnTop = false;
  CentreForm(*this);
  win.Hold();
}

void frmPlayer::Fill(Control& control, Twips below) {
  control.Top = 0;
  control.Left = 0;
  control.Height = WholeHeight() + below;
  control.Width = Width;
}

void frmPlayer::MainPlay(const std::string& path) {
  Player.URL = path;
  ItemStarted.Raise();
}

void frmPlayer::MoveTo(int index) {
  if (!monitors_) monitors_.emplace(Outside().monitors);
  SkippingFailures([&] { MoveToMonitor(*this, *monitors_, index); });
}

void frmPlayer::SetDisplay(const cMonitor& monitor) {
  Width = ToTwips(monitor.WorkWidth());
  Left = ToTwips(monitor.WorkLeft());
  Top = ToTwips(monitor.WorkTop());
}

void frmPlayer::SetHeight() {
  band_.Lay(Width, PicAd.Width);
  PicAd.Height = band_.Height();
  PicAd.Top = Height - PicAd.Height - Val(currentAd_.CrawlerAdTop);
}

void frmPlayer::ViewAd(const std::string& header, const std::string& scroll, const std::string& left,
                       const std::string& right) {
  band_.View(header, scroll, left, right);
  SetHeight();
}

void frmPlayer::SideAd() {
  PicSide.Visible = true;
  // The band is as wide as the form, so the column stands at the left edge, over the picture; nothing makes room.
  PicSide.Left = Width - PicAd.Width;
  PicSide.Top = 0;
  PicSide.Height = WholeHeight() - PicAd.Height;
  FlashSideAd.Top = 0;
  FlashSideAd.Left = 0;
  FlashSideAd.Height = PicSide.Height.Get();
  FlashSideAd.Width = PicSide.Width.Get();
}

void frmPlayer::Timer1_Tick() {
  if (band_.HasLeft()) {
    CrawlerLeft.Raise();
  } else {
    band_.Step();
  }
}

void frmPlayer::Timer2_Tick() {
  const auto nearlyOver = [this] { return Player.currentMedia.duration() - 25 < Player.controls.currentPosition(); };
  if (HeldOrFailed(nearlyOver)) ItemNearlyOver.Raise();
}

void frmPlayer::Timer3_Tick() {
  slide_ += 30;
  picNext.Left = Width + picNext.Width - slide_;
  if (picNext.Left == Width - picNext.Width) Timer3.Enabled = false;
}

// The next item is never started from inside the player's notification: TimerMedia gives it a tick of its own, and the
// channel its moment of empty output between two items.
void frmPlayer::Player_PlayStateChange() {
  if (Player.playState() == kMediaEnded) TimerMedia.Enabled = true;
}

void frmPlayer::AdPlayer_PlayStateChange() {
  if (AdPlayer.playState() == kMediaEnded) TimerAdPlayer.Enabled = true;
}

// The strip can be pulled up and down by hand; it snaps back to the centre, and the next layout puts it in its place.
void frmPlayer::DragBand() {
  Window()->DragPane(PicAd, [this] { PicAd.Left = (Width - PicAd.Width) / 2; });
}
