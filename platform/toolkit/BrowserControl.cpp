#include "platform/toolkit/BrowserControl.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "platform/Files.h"
#include "platform/WebAddress.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/UserControl.h"

namespace {

constexpr std::array<int, BrowserControl::kTextSizes> kZooms{80, 90, 100, 120, 150};

}  // namespace

BrowserControl::BrowserControl(Form& form, std::string name) : Control(form, std::move(name)) { Start(); }

BrowserControl::BrowserControl(Control& container, std::string name) : Control(container, std::move(name)) { Start(); }

void BrowserControl::Start() {
  std::string name = Name();
  // Inside a control that is made of others its name is not its alone.
  for (const Control* holder = Container(); holder != nullptr; holder = holder->Container()) {
    if (dynamic_cast<const UserControl*>(holder) != nullptr) name = holder->Name() + "." + name;
  }
  surface_ = Owner().Outside().browser.NewSurface(Owner().Name() + "." + name, *this);
  const auto apply = [this] { ApplyLooks(); };
  TextSize.Changed.Connect(apply);
  Sound.Changed.Connect(apply);
  ScrollBars.Changed.Connect(apply);
}

void BrowserControl::Retire() { surface_.reset(); }

void BrowserControl::Navigate(const std::string& typed, int, const std::string&, const std::string&,
                              const std::string&) {
  if (!surface_) return;
  const bool isPath = typed.starts_with('/') && !typed.starts_with("//");
  surface_->Navigate(isPath ? FileAddress(Owner().Outside().files.Resolve(typed)) : WebAddress(typed));
}

void BrowserControl::Refresh() {
  if (surface_) surface_->Reload();
}

void BrowserControl::ApplyLooks() {
  if (!surface_) return;
  const auto size = static_cast<std::size_t>(std::clamp(TextSize.Get(), 0, kTextSizes - 1));
  surface_->SetLooks({kZooms[size], Sound, ScrollBars});
}

void BrowserControl::StatusChanged(const std::string& text) {
  Handle("StatusTextChange", [this, text] { StatusTextChange.Raise(text); });
}

void BrowserControl::PageLoaded() {
  Handle("DocumentComplete", [this] { DocumentComplete.Raise(); });
}
