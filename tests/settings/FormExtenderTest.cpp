#include <gtest/gtest.h>

#include "platform/sim/SimWorld.h"
#include "settings/FormExtender.h"
#include "settings/FormHelpers.h"
#include "settings/Station.h"

using namespace std::chrono_literals;

namespace {

class frmPlaced : public Form {
 public:
  explicit frmPlaced(Station& station) : Form(station.forms, "frmPlaced", Kind::kOperator) {
    Left = 100;
    Top = 200;
    Width = 3000;
    Height = 4000;
  }
  FormExtender win{*this, "win"};
};

class FormExtenderTest : public testing::Test {
 protected:
  FormExtenderTest() { sim.files.CreateFolder("/station"); }

  frmPlaced& Form() { return station.forms.Get<frmPlaced>(); }
  void Open() { Form().win.RecordWindowPosTo = kFile; }
  void Stored(const std::string& left, const std::string& top, const std::string& width, const std::string& height) {
    sim.files.Put(kFile, Text(left, top, width, height));
  }
  static std::string Text(const std::string& left, const std::string& top, const std::string& width,
                          const std::string& height) {
    return "[frmPlaced]\r\nLeft=" + left + "\r\nTop=" + top + "\r\nWidth=" + width + "\r\nHeight=" + height + "\r\n";
  }
  std::string File() { return sim.files.Read(kFile).value_or("(none)"); }
  std::vector<Twips> Place() { return {Form().Left, Form().Top, Form().Width, Form().Height}; }

  static constexpr char kFile[] = "/station/Window.ini";
  static inline const std::vector<Twips> kDesign{100, 200, 3000, 4000};
  SimWorld sim;
  Station station{sim.world, "/station"};
};

TEST_F(FormExtenderTest, AFormThatOpensStandsWhereTheFileHasIt) {
  Stored("-15", "30.5", "600", "700");
  Open();
  EXPECT_EQ(Place(), (std::vector<Twips>{-15, 30.5, 600, 700}));
}

TEST_F(FormExtenderTest, WithoutAFileItStaysAndItsPlaceIsWrittenOnceItHasRested) {
  Open();
  EXPECT_EQ(Place(), kDesign);
  sim.time.Advance(299ms);
  EXPECT_EQ(File(), "(none)");
  sim.time.Advance(1ms);
  EXPECT_EQ(File(), Text("100", "200", "3000", "4000"));
}

TEST_F(FormExtenderTest, AWindowThatIsDraggedIsWrittenOnceItRests) {
  Open();
  sim.time.Advance(1s);
  const std::string before = File();
  for (int i = 1; i <= 10; ++i) {
    Form().Left = 100 + i;
    sim.time.Advance(200ms);
    EXPECT_EQ(File(), before);
  }
  sim.time.Advance(100ms);
  EXPECT_EQ(File(), Text("110", "200", "3000", "4000"));
}

TEST_F(FormExtenderTest, EachMeasureIsNotedAndFractionsAreKept) {
  Open();
  Form().Top = 1.5;
  sim.time.Advance(300ms);
  EXPECT_EQ(File(), Text("100", "1.5", "3000", "4000"));
  Form().Width = 2.25;
  sim.time.Advance(300ms);
  EXPECT_EQ(File(), Text("100", "1.5", "2.25", "4000"));
  Form().Height = 3;
  sim.time.Advance(300ms);
  EXPECT_EQ(File(), Text("100", "1.5", "2.25", "3"));
}

// A power cut between two of them would bring the window back at a place where it never stood.
TEST_F(FormExtenderTest, AllFourMeasuresComeOntoTheDiskInOneStep) {
  class WatchedFiles : public SimFiles {
   public:
    bool Replace(const std::string& path, const std::string& content) override {
      written.push_back(content);
      return SimFiles::Replace(path, content);
    }
    std::vector<std::string> written;
  } disk;
  disk.CreateFolder("/station");
  World watched{sim.time,    sim.time,    disk,        sim.media,    sim.flash,   sim.browser, sim.pictures,
                sim.windows, sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station other{watched, "/station"};
  auto& form = other.forms.Get<frmPlaced>();
  form.win.RecordWindowPosTo = kFile;
  sim.time.Advance(1s);
  form.Left = 1;
  form.Top = 2;
  form.Width = 300;
  form.Height = 400;
  sim.time.Advance(1s);
  EXPECT_EQ(disk.written, (std::vector<std::string>{Text("100", "200", "3000", "4000"), Text("1", "2", "300", "400")}));
}

TEST_F(FormExtenderTest, AWindowThatComesBackToWhereItStoodIsNotWrittenAgain) {
  Open();
  sim.time.Advance(1s);
  sim.files.Remove(kFile);
  Form().Left = 500;
  sim.time.Advance(100ms);
  Form().Left = 100;
  sim.time.Advance(1s);
  EXPECT_EQ(File(), "(none)");
}

TEST_F(FormExtenderTest, AnUnloadWritesThePlaceThatHasNotRestedYet) {
  Open();
  sim.time.Advance(1s);
  Form().Left = 500;
  station.forms.Unload<frmPlaced>();
  EXPECT_EQ(File(), Text("500", "200", "3000", "4000"));
  Open();
  EXPECT_EQ(Form().Left, 500);
}

TEST_F(FormExtenderTest, AnUnloadOfAWindowAtRestWritesNothing) {
  Open();
  sim.time.Advance(1s);
  sim.files.Remove(kFile);
  station.forms.Unload<frmPlaced>();
  sim.time.Advance(1s);
  EXPECT_EQ(File(), "(none)");
}

TEST_F(FormExtenderTest, AReleasedWindowIsNotFollowedAndGoesBackWhenTheStoreTakesIt) {
  Open();
  sim.time.Advance(1s);
  Form().win.Release();
  Form().Left = 500;
  sim.time.Advance(1s);
  EXPECT_EQ(File(), Text("100", "200", "3000", "4000"));
  Open();
  EXPECT_EQ(Place(), kDesign);
}

TEST_F(FormExtenderTest, AReleasedWindowThatIsHeldAgainIsTakenAsItStands) {
  Open();
  sim.time.Advance(1s);
  Form().win.Release();
  Form().Left = 500;
  Form().win.Hold();
  EXPECT_EQ(Form().Left, 500);
  sim.time.Advance(300ms);
  EXPECT_EQ(File(), Text("500", "200", "3000", "4000"));
}

TEST_F(FormExtenderTest, APlaceThatNobodyCouldSeeOrReachIsNotTaken) {
  const std::vector<std::vector<std::string>> torn = {
      {"0", "0", "299", "300"},        {"0", "0", "300", "299"},        {"0", "0", "1000001", "300"},
      {"0", "0", "300", "1000001"},    {"-1000001", "0", "300", "300"}, {"1000001", "0", "300", "300"},
      {"0", "-1000001", "300", "300"}, {"0", "1000001", "300", "300"},  {"0", "0", "", "300"}};
  for (const auto& one : torn) {
    Stored(one[0], one[1], one[2], one[3]);
    Open();
    EXPECT_EQ(Place(), kDesign) << File();
    station.forms.Unload<frmPlaced>();
  }
  Stored("-1000000", "1000000", "300", "1000000");
  Open();
  EXPECT_EQ(Place(), (std::vector<Twips>{-1000000, 1000000, 300, 1000000}));
}

TEST_F(FormExtenderTest, ItsOnTopIsTheForms) {
  Form().win.OnTop = true;
  EXPECT_TRUE(Form().OnTop);
}

TEST_F(FormExtenderTest, AFormIsPutInTheMiddleOfTheScreenAndADraggedOneSnapsBackToItSideways) {
  sim.windows.screenSize = {1000, 800};
  CentreForm(Form());
  EXPECT_EQ(Place(), (std::vector<Twips>{6000, 4000, 3000, 4000}));
  DragForm(Form());
  Form().Left = 77;
  Form().Top = 88;
  EXPECT_EQ(Form().Left, 77);
  sim.windows.EndDrag();
  EXPECT_EQ(Place(), (std::vector<Twips>{6000, 88, 3000, 4000}));
}

}  // namespace
