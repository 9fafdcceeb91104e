#pragma once

#include <cstdint>
#include <string>

#include "platform/toolkit/Control.h"
#include "platform/toolkit/LookColour.h"

// A picture file that a pane shows. Two loads of one path are two pictures: the file may have been written anew.
struct LoadedPicture {
  std::string path;  // the file's very name on the disk; empty: no picture
  int load = 0;

  bool operator==(const LoadedPicture&) const = default;
};

// A pane: a coloured rectangle that may show a picture and holds and clips other controls.
class PictureBox : public Control {
 public:
  enum class Sizing { kFixed, kByPicture };

  PictureBox(Form& form, std::string name, Sizing sizing = Sizing::kFixed);
  PictureBox(Control& container, std::string name, Sizing sizing = Sizing::kFixed);
  std::string_view Kind() const override { return "PictureBox"; }

  // Shows the picture at its own size, from the pane's left top corner; with kByPicture the pane takes its size at
  // once. Fails when the file is absent or no picture, and the pane stays as it was. The empty path clears the pane.
  void LoadPicture(const std::string& path);
  // What the window tells when it has decoded the picture of a load. Where nothing of it could be, the pane has its
  // former picture again, at its size, and says so.
  void Decoded(int load, bool shows);

  Property<LoadedPicture> Picture;
  // On the air a fixed one.
  Property<LookColour> BackColor{kBlack};
  // Both are seen on an operator's form alone: the colour of what is drawn on it, and 1 for a line around it.
  Property<LookColour> ForeColor{LookColour::System::kWindowText};
  Property<std::int16_t> BorderStyle{0};
  // Nothing of its own stands behind what it holds.
  Property<bool> SeeThrough{false};
  Event<> FellBack;

 private:
  // A picture that is known to show, and the pane's size under it.
  struct Shown {
    LoadedPicture picture;
    Twips width = 0;
    Twips height = 0;
  };

  Sizing sizing_;
  Shown shown_;
  int lastLoad_ = 0;  // also of those that fell back: no two loads have one number
};

// A text on a pane.
class PaneText : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "PaneText"; }

  Property<std::string> Text;
  Property<Colour> ForeColor{kWhite};
};
