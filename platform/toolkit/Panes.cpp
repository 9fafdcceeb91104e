#include "platform/toolkit/Panes.h"

#include "platform/Files.h"
#include "platform/Pictures.h"
#include "platform/toolkit/Failure.h"
#include "platform/toolkit/Form.h"

PictureBox::PictureBox(Form& form, std::string name, Sizing sizing) : Control(form, std::move(name)), sizing_(sizing) {}

PictureBox::PictureBox(Control& container, std::string name, Sizing sizing)
    : Control(container, std::move(name)), sizing_(sizing) {}

void PictureBox::LoadPicture(const std::string& path) {
  PixelSize size;
  const std::string file = Owner().Outside().files.Resolve(path);
  if (!path.empty()) {
    const auto known = Owner().Outside().pictures.Size(file);
    if (!known) throw Failure("Invalid picture: " + path);
    size = *known;
  }
  if (sizing_ == Sizing::kByPicture) {
    Width = ToTwips(size.width);
    Height = ToTwips(size.height);
  }
  lastLoad_ += 1;
  Picture = LoadedPicture{file, lastLoad_};
  if (path.empty()) Decoded(lastLoad_, true);
}

void PictureBox::Decoded(int load, bool shows) {
  if (load != Picture.Get().load || load == shown_.picture.load) return;
  if (shows) {
    shown_ = {Picture, Width, Height};
    return;
  }
  if (sizing_ == Sizing::kByPicture) {
    Width = shown_.width;
    Height = shown_.height;
  }
  Picture = shown_.picture;
  Handle("FellBack", [this] { FellBack.Raise(); });
}
