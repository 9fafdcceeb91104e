#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>

#include "platform/posix/PosixFiles.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/QtPictures.h"
#include "platform/qt/media/MpvEngine.h"
#include "platform/qt/scene/OnAirWindow.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "settings/Station.h"
#include "tests/platform/qt/TestMedia.h"

// What a pane promises of the pictures that its window decodes, in the virtual and the real world alike.

namespace {

class frmPane : public Form {
 public:
  explicit frmPane(Station& station) : Form(station.forms, "frmPane", Kind::kOnAir) {
    Width = 3000;
    Height = 1500;
    Visible = true;
  }
  PictureBox pic{*this, "pic", PictureBox::Sizing::kByPicture};
};

class VirtualPanes {
 public:
  std::string Good(const std::string& name, PixelSize size) {
    sim_.files.Put("/" + name, "picture");
    sim_.pictures.sizes["/" + name] = size;
    return "/" + name;
  }
  std::string HeaderAlone(const std::string& name, PixelSize size) {
    sim_.pictures.undecodable.insert("/" + name);
    return Good(name, size);
  }
  void Settle() { sim_.time.Settle(); }
  bool Until(const std::function<bool()>& condition) {
    Settle();
    return condition();
  }

 private:
  SimWorld sim_;

 public:
  World& world = sim_.world;
};

class RealPanes : public Windows {
 public:
  static std::string Good(const std::string& name, PixelSize size) { return Written(name, Bytes(size)); }
  // All that follows the mark of the picture's data is spoilt.
  static std::string HeaderAlone(const std::string& name, PixelSize size) {
    QByteArray bytes = Bytes(size);
    for (qsizetype at = bytes.indexOf("IDAT") + 4; at < bytes.size(); ++at) bytes[at] = '\xff';
    return Written(name, bytes);
  }
  static void Settle() { ::Pass(std::chrono::milliseconds(300)); }
  static bool Until(const std::function<bool()>& condition) { return ::Until(condition); }

  std::unique_ptr<FormWindow> Create(Form& form) override { return std::make_unique<OnAirWindow>(form, scene_); }
  PixelSize ScreenSize() const override { return {640, 480}; }

 private:
  static QByteArray Bytes(PixelSize size) {
    QImage image(size.width, size.height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
  }
  static std::string Written(const std::string& name, const QByteArray& bytes) {
    const std::string path = test_media::PathOf(name);
    QFile file(QString::fromStdString(path));
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    return path;
  }

  SimWorld sim_;
  QtClock clock_;
  QtScheduler scheduler_;
  PictureLoader loader_;
  Scene scene_{scheduler_, loader_};
  PosixFiles files_;
  MpvEngine media_;
  QtPictures pictures_;

 public:
  World world{clock_, scheduler_,   files_,       media_,        sim_.flash,   sim_.browser, pictures_,
              *this,  sim_.dialogs, sim_.desktop, sim_.monitors, sim_.network, sim_.feeds};
};

template <class AnyWorld>
class PaneContractTest : public testing::Test {
 protected:
  AnyWorld around;
  Station station{around.world, "/nowhere"};
  PictureBox& pic = station.forms.Get<frmPane>().pic;
};

using PaneWorlds = testing::Types<VirtualPanes, RealPanes>;
TYPED_TEST_SUITE(PaneContractTest, PaneWorlds);

TYPED_TEST(PaneContractTest, APictureStaysWithItsSize) {
  int fellBack = 0;
  this->pic.FellBack.Connect([&] { ++fellBack; });
  this->pic.LoadPicture(this->around.Good("pane-good.png", {40, 30}));
  this->around.Settle();
  EXPECT_EQ(this->pic.Width, 600);
  EXPECT_EQ(fellBack, 0);
}

TYPED_TEST(PaneContractTest, WhereNothingCanBeDecodedTheFormerPictureIsBackAtItsSize) {
  int fellBack = 0;
  this->pic.FellBack.Connect([&] { ++fellBack; });
  const std::string good = this->around.Good("pane-good.png", {40, 30});
  this->pic.LoadPicture(good);
  this->around.Settle();
  this->pic.LoadPicture(this->around.HeaderAlone("pane-bad.png", {80, 50}));
  EXPECT_EQ(this->pic.Width, 1200);  // the header's word counts until the picture is decoded
  EXPECT_TRUE(this->around.Until([&] { return fellBack == 1; }));
  EXPECT_EQ(this->pic.Picture.Get().path, good);
  EXPECT_EQ(this->pic.Width, 600);
  EXPECT_EQ(this->pic.Height, 450);
}

TYPED_TEST(PaneContractTest, TheFirstPictureOfAllThatCannotBeDecodedLeavesThePaneEmpty) {
  int fellBack = 0;
  this->pic.FellBack.Connect([&] { ++fellBack; });
  this->pic.LoadPicture(this->around.HeaderAlone("pane-bad.png", {80, 50}));
  EXPECT_TRUE(this->around.Until([&] { return fellBack == 1; }));
  EXPECT_EQ(this->pic.Picture.Get().path, "");
  EXPECT_EQ(this->pic.Width, 0);
}

TYPED_TEST(PaneContractTest, APictureThatIsTakenAwayBeforeItIsDecodedBringsNothingBack) {
  this->pic.LoadPicture(this->around.Good("pane-good.png", {40, 30}));
  this->around.Settle();
  this->pic.LoadPicture(this->around.HeaderAlone("pane-bad.png", {80, 50}));
  this->pic.LoadPicture("");
  this->around.Settle();
  EXPECT_EQ(this->pic.Picture.Get().path, "");
  EXPECT_EQ(this->pic.Width, 0);
}

TYPED_TEST(PaneContractTest, AFormThatGoesWhileAPictureIsDecodedIsNotToldOfIt) {
  this->pic.LoadPicture(this->around.HeaderAlone("pane-bad.png", {80, 50}));
  this->station.forms.template Unload<frmPane>();
  this->around.Settle();
}

}  // namespace
