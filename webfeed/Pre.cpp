#include "webfeed/Pre.h"

#include <utility>

namespace {

// By how much the browser is outside its panel at the left top corner, and larger than it all in all.
constexpr Twips kOverhang = 20;
constexpr Twips kWider = 200;
constexpr Twips kHigher = 250;

}  // namespace

Pre::Pre(Form& form, std::string name) : UserControl(form, std::move(name)) { Connect(); }

Pre::Pre(Control& container, std::string name) : UserControl(container, std::move(name)) { Connect(); }

void Pre::Connect() {
  const auto handDown = [](auto& own, auto& panels) {
    panels = own.Get();
    own.Changed.Connect([&own, &panels] { panels = own.Get(); });
  };
  handDown(BackColor, picWeb.BackColor);
  handDown(ForeColor, picWeb.ForeColor);
  handDown(BorderStyle, picWeb.BorderStyle);
  Web.Offline = true;
  Resize.Connect([this] { LayOut(); });
  Web.DocumentComplete.Connect([this] { Web.ScrollBars = false; });
}

void Pre::LayOut() {
  picWeb.Top = 0;
  picWeb.Left = 0;
  picWeb.Height = Height;
  picWeb.Width = Width;
  Web.Top = -kOverhang;
  Web.Left = -kOverhang;
  Web.Height = picWeb.Height + kHigher;
  Web.Width = picWeb.Width + kWider;
  Web.Silent = true;
}

void Pre::Navigate(const std::string& URL, int Flags, const std::string& TargetFrameName, const std::string& PostData,
                   const std::string& Headers) {
  Web.Navigate(URL, Flags, TargetFrameName, PostData, Headers);
}
