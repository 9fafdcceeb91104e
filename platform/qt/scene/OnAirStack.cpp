#include "platform/qt/scene/OnAirStack.h"

#include <algorithm>
#include <map>

#include "platform/qt/scene/Sheet.h"

OnAirStack::OnAirStack() {
  arrangeIsDue_.setSingleShot(true);
  connect(&arrangeIsDue_, &QTimer::timeout, this, &OnAirStack::Arrange);
  connect(&compositor_, &Compositor::Changed, this, &OnAirStack::Arrange);
  connect(&bareDesktop_, &BareDesktop::Bared, this, &OnAirStack::StayOnTheScreen);
}

void OnAirStack::StayOnTheScreen() {
  if (std::ranges::any_of(sheets_, &Sheet::IsShown) && bareDesktop_.IsBare()) bareDesktop_.Undo();
}

void OnAirStack::Add(Sheet& sheet) {
  sheets_.insert(sheets_.begin(), &sheet);
  ArrangeSoon();
}

void OnAirStack::Remove(Sheet& sheet) {
  std::erase(sheets_, &sheet);
  ArrangeSoon();
}

void OnAirStack::ComeForward(Sheet& sheet) {
  Remove(sheet);
  Add(sheet);
}

std::vector<Sheet*> OnAirStack::Shown() const {
  std::vector<Sheet*> shown;
  std::ranges::copy_if(sheets_, std::back_inserter(shown), &Sheet::IsShown);
  std::stable_partition(shown.begin(), shown.end(), [](const Sheet* sheet) { return sheet->IsOnTop(); });
  return shown;
}

bool OnAirStack::IsLargest(const Sheet& sheet) const {
  const auto areaOf = [](const Sheet* one) { return one->Place().width() * one->Place().height(); };
  return !sheet.IsSeeThrough() && std::ranges::none_of(sheets_, [&](const Sheet* other) {
    return !other->IsSeeThrough() && areaOf(other) > areaOf(&sheet);
  });
}

void OnAirStack::Arrange() {
  arrangeIsDue_.stop();
  StayOnTheScreen();
  const std::vector<Sheet*> shown = Shown();
  const auto isGlass = [this](const Sheet* sheet) { return sheet->IsSeeThrough() && !compositor_.Runs(); };
  std::map<const Sheet*, QRegion> opaqueBehind;
  QRegion opaque;
  for (auto sheet = shown.rbegin(); sheet != shown.rend(); ++sheet) {
    opaqueBehind[*sheet] = opaque;
    if (!(*sheet)->IsSeeThrough()) opaque += (*sheet)->Place();
  }
  // Some window managers put a window that fills its monitor in front even of those that are on top.
  const auto base = std::ranges::find_if(shown, [this](const Sheet* sheet) { return IsLargest(*sheet); });
  for (Sheet* sheet : shown) {
    const bool hasBase = base != shown.end() && sheet != *base && sheet->IsOnTop();
    sheet->BelongTo(hasBase ? *base : nullptr);
  }
  std::vector<Sheet*> glass;
  QRegion glassInFront;
  for (Sheet* sheet : shown) {
    if (sheet->IsSeeThrough()) sheet->PaintGlass({});  // it may have been opaque a moment ago
    if (isGlass(sheet)) {
      sheet->BeCut({opaqueBehind[sheet], glassInFront});
      glass.push_back(sheet);
      glassInFront += sheet->Place();
    } else if (sheet->IsSeeThrough()) {
      sheet->BeWhole();
    } else {
      sheet->PaintGlass(glass);
    }
  }
}
