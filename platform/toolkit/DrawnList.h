#pragma once

#include <string>
#include <vector>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/DrawnLook.h"

// One row of a drawn list.
struct DrawnRow {
  // Whose icon of the desktop the row bears where ShowIcon is on.
  enum class Icon { kNone, kFile, kFolder, kDrive };

  std::string text;
  int image = -1;  // of the ImageList, from 0; -1: none
  Icon icon = Icon::kNone;
  std::string iconOf;  // of a file: what its icon goes by
  bool bold = false;
  bool selected = false;

  bool operator==(const DrawnRow&) const = default;
};

// Rows, counted from 0, that are drawn as the look says. Which rows there are and what is selected is for the control
// on top of it to say: the acts of the operator come to it here, and it tells what is to be drawn.
class DrawnList : public Control, public DrawnLook {
 public:
  enum class Key { kUp, kDown, kHome, kEnd, kPageUp, kPageDown };
  enum class Held { kNone, kCtrl, kShift };

  using Control::Control;
  std::string_view Kind() const override { return "DrawnList"; }

  virtual const std::vector<DrawnRow>& Rows() const = 0;
  // The row that keys go on from; -1 while none is selected.
  virtual int CurrentRow() const = 0;

  // The left button goes down on a row. A row that is not there is left alone.
  void PressRow(int row, Held held = Held::kNone);
  // A key goes down; `page` rows are in view.
  void PressKey(Key key, int page = 1);
  // The button has been let go where it went down, or Enter or the blank was pressed: a click on what is selected.
  void ClickRows();

  // The image list that rows take their images from, by name; empty: none are shown.
  Property<std::string> ImageList;

  // What is drawn is out of date.
  Event<> Redraw;
  // A row is to be in view.
  Event<int> RowWanted;
  Event<> Click;

 protected:
  virtual void TakePress(int row, Held held) = 0;
  // The row, which is there, is the only one selected from now on.
  virtual void SelectOnly(int row) = 0;
};
