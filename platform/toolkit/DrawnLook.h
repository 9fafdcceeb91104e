#pragma once

#include <string>

#include "platform/toolkit/Event.h"
#include "platform/toolkit/LookColour.h"
#include "platform/toolkit/Property.h"

// The desktop's own font where the name is empty or the size is 0.
struct ListFont {
  std::string name;
  double points = 0;
  bool operator==(const ListFont&) const = default;
};

// How a drawn list looks. Each property may be set at any time.
class DrawnLook {
 public:
  using System = LookColour::System;

  DrawnLook();

  Property<int> RowHeight{22};  // pixels; a row is never lower than its text
  Property<bool> FullRowSelect{false};
  Property<bool> ShowIcon{false};
  Property<bool> IconFocus{true};    // the icon of a selected row is drawn on the ground of the selection
  Property<bool> StrechIcon{false};  // icons are as high as the row
  Property<int> IconExtractSize{0};  // pixels; 0: as large as the desktop's small icons
  Property<bool> GridLines{false};   // a line under each row
  Property<LookColour> GridColor{System::kButtonFace};
  Property<LookColour> BackColor{kWhite};
  Property<LookColour> ForeColor{System::kButtonText};
  Property<LookColour> SelColor{LookColour::OfBgr(16747546)};
  Property<LookColour> SelForeColor{kWhite};
  Property<bool> BackGradient{false};  // from BackColor above to BackGradientCol below
  Property<LookColour> BackGradientCol{LookColour::OfBgr(0xC0C0C0)};
  Property<bool> SelGradient{false};  // in each selected row, from SelColor to SelGradientCol
  Property<LookColour> SelGradientCol{kWhite};
  Property<int> SelectionStyle{1};  // 0: a frame around what is selected; any other: filled
  Property<int> TextAlignment{0};   // 0: left, 1: right, 2: in the middle
  Property<bool> FocusRectangle{false};
  Property<bool> FlatScrollBar{false};
  Property<bool> AutoHideScrollBars{false};
  Property<std::string> Picture;  // a picture file behind the rows
  Property<ListFont> Font;
  Property<int> Appearance{1};   // 0: flat, 1: sunken
  Property<int> BorderStyle{1};  // 0: none, 1: a line around

  // One of them has changed.
  Event<> LookChanged;

 private:
  template <class... Properties>
  void Tell(Properties&... properties) {
    (properties.Changed.Connect([this] { LookChanged.Raise(); }), ...);
  }
};
