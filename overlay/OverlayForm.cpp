#include "overlay/OverlayForm.h"

#include "output/Placement.h"
#include "overlay/mdlFlash.h"
#include "platform/Windows.h"
#include "platform/toolkit/Failures.h"
#include "settings/Numbers.h"

namespace {

constexpr Twips kDesignSize = 3000;

}  // namespace

OverlayForm::OverlayForm(Station& station, const Design& design)
    : Form(station.forms, design.name, Kind::kOnAir), station_(station), design_(design) {
  Width = kDesignSize;
  Height = kDesignSize;
  BackColor = kButtonFace;
  Flash.Width = kDesignSize;
  Flash.Height = kDesignSize;
  Flash.KeepProportions = true;
  win.OnTop = true;

  Resize.Connect([this] { Form_Resize(); });
  Timer1.Tick.Connect([this] { Timer1_Tick(); });
  lbl.MouseDown.Connect([this](MouseButton) { lbl_MouseDown(); });
  // A move alone, with no button down, drags too. Meant so; the grip leaves the bare form no room.
  const auto drag = [this](const MousePlace&) { Window()->DragWindow([] {}); };
  MouseDown.Connect(drag);
  MouseMove.Connect(drag);
}

// The store has its say about the size before the movie comes, so that the movie fills the window.
void OverlayForm::Load() {
  station_.stores.SettingsFile();
  win.RecordWindowPosTo = station_.dataFolder.Path("\\Window.ini");
  const std::string path = station_.stores.SettingsIni.ReadValue(design_.section, "Path", "");
  if (design_.atLoad == AtLoad::kShowsMovie) LoadFlashInto(Flash, path, *this);
}

// The left edge of Settings.ini wins over that of the window's store; where there is none it is 0. Meant so.
void OverlayForm::Timer1_Tick() {
  Left = Val(station_.stores.SettingsIni.ReadValue(design_.section, "Left", ""));
  Timer1.Enabled = false;
}

// The movie keeps its size; only SetSize and the load of a movie change that. Meant so.
void OverlayForm::Form_Resize() {
  lbl.Left = 0;
  lbl.Top = 0;
  lbl.Height = Height.Get();
  lbl.Width = Width.Get();
}

// Any button drags. The top edge is left to the window's store.
void OverlayForm::lbl_MouseDown() {
  Window()->DragWindow([this] {
    const auto left = static_cast<float>(Left.Get());
    station_.stores.SettingsIni.WriteValue(design_.section, "Left", SingleText(left));
  });
}

void OverlayForm::SetSize(std::int16_t height, std::int16_t width) {
  Height = height;
  Width = width;
  Flash.Height = height;
  Flash.Width = width;
}

void OverlayForm::MoveTo(int index) {
  if (!monitors_) monitors_.emplace(Outside().monitors);
  SkippingFailures([&] {
    const cMonitor& target = monitors_->Monitor(index);
    const auto current = monitors_->MonitorForWindow(WindowRect(*this));
    if (current && target.hMonitor() != current->hMonitor()) KeepOffset(*current, target);
  });
}

void OverlayForm::KeepOffset(const cMonitor& current, const cMonitor& target) {
  const auto moved = [](Twips edge, int from, int to) {
    return ToTwips(RoundHalfEven(edge / kTwipsPerPixel - from) + to);
  };
  const Twips newLeft = moved(Left, current.Left(), target.Left());
  const Twips newTop = moved(Top, current.Top(), target.Top());
  Left = newLeft;
  Top = newTop;
}
