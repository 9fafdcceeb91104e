#include "platform/toolkit/Failures.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/StatusBar.h"
#include "tests/StationTest.h"

namespace {

class frmDesk : public Form {
 public:
  explicit frmDesk(Station& station) : Form(station.forms, "frmDesk", Kind::kOperator) {}

  ComboBox Combo{*this, "Combo"};
  Slider Thumb{*this, "Thumb"};
  StatusBar Panel{*this, "Panel", 9};
  MenuItem mnuSWF[3]{{*this, "mnuSWF_0"}, {*this, "mnuSWF_1"}, {*this, "mnuSWF_2"}};
  MenuSeparator mnuSpace{*this, "mnuSpace"};
};

class DeskControlsTest : public StationTest {
 protected:
  frmDesk& form = station.forms.Get<frmDesk>();
};

TEST_F(DeskControlsTest, AnItemThatIsPickedIsTheListIndexAndATypedTextIsNone) {
  int clicks = 0;
  form.Combo.Click.Connect([&] { ++clicks; });
  for (const char* item : {"1", "2", "1"}) form.Combo.AddItem(item);
  form.Combo.Pick(2);
  EXPECT_EQ(form.Combo.ListIndex.Get(), 2);
  EXPECT_EQ(form.Combo.Text.Get(), "1");
  form.Combo.Type("7");
  EXPECT_EQ(form.Combo.ListIndex.Get(), -1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(DeskControlsTest, SettingTheListIndexTakesTheTextWithoutAClickAndFailsOutsideTheList) {
  int clicks = 0;
  form.Combo.Click.Connect([&] { ++clicks; });
  form.Combo.AddItem("a");
  form.Combo.ListIndex = 0;
  EXPECT_EQ(form.Combo.Text.Get(), "a");
  EXPECT_THROW(form.Combo.ListIndex = 1, Failure);
  EXPECT_EQ(form.Combo.ListIndex.Get(), 0);
  form.Combo.ListIndex = -1;
  EXPECT_EQ(form.Combo.Text.Get(), "");
  EXPECT_EQ(clicks, 0);
}

TEST_F(DeskControlsTest, ClearingAComboEmptiesListAndText) {
  form.Combo.AddItem("a");
  form.Combo.Pick(0);
  form.Combo.Clear();
  EXPECT_EQ(form.Combo.ListCount(), 0);
  EXPECT_EQ(form.Combo.Text.Get(), "");
  EXPECT_EQ(form.Combo.ListIndex.Get(), -1);
  form.Combo.Text = "typed";
  form.Combo.Clear();
  EXPECT_EQ(form.Combo.Text.Get(), "");
}

TEST_F(DeskControlsTest, ASliderTellsMovingAndLettingGoApart) {
  std::string told;
  form.Thumb.Max = 100;
  form.Thumb.Scroll.Connect([&] { told += "m" + std::to_string(form.Thumb.Value.Get()); });
  form.Thumb.Click.Connect([&] { told += "l" + std::to_string(form.Thumb.Value.Get()); });
  form.Thumb.Move(7);
  form.Thumb.Value = 50;  // by the program, while it is held
  form.Thumb.LetGo(9);
  EXPECT_EQ(told, "m7l9");
}

TEST_F(DeskControlsTest, TheOperatorStopsAtTheEndsOfASliderAndTheProgramDoesNot) {
  form.Thumb.Min = 5;
  form.Thumb.Max = 200;
  form.Thumb.Value = 0;
  EXPECT_EQ(form.Thumb.Value, 0);
  form.Thumb.Move(1000);
  EXPECT_EQ(form.Thumb.Value, 200);
  form.Thumb.LetGo(-1);
  EXPECT_EQ(form.Thumb.Value, 5);
}

TEST_F(DeskControlsTest, PanelsAreCountedFromOneAndTellWhenTheyChange) {
  std::vector<int> changed;
  form.Panel.PanelChanged.Connect([&](int index) { changed.push_back(index); });
  form.Panel.SetPanel(1, "07:00:00 AM");
  form.Panel.SetPanel(9, "Internet True", StatusBar::Lamp::kOn);
  form.Panel.SetPanel(9, "Internet True", StatusBar::Lamp::kOn);
  EXPECT_EQ(changed, (std::vector<int>{1, 9}));
  EXPECT_EQ(form.Panel.PanelAt(9).text, "Internet True");
  EXPECT_THROW(form.Panel.SetPanel(10, ""), Failure);
  EXPECT_THROW(form.Panel.PanelAt(0), Failure);
}

TEST_F(DeskControlsTest, MembersOfAnArrayBearTheirIndexAndAMenuOpensAtThePointer) {
  EXPECT_EQ(form.mnuSWF[2].Name(), "mnuSWF_2");
  form.PopUp(form.mnuSWF[0]);
  EXPECT_EQ(sim.windows.popUp, "frmDesk.mnuSWF_0");
}

}  // namespace
