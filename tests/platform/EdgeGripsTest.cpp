#include "platform/toolkit/EdgeGrips.h"
#include "tests/StationTest.h"

namespace {

class frmPeep : public Form {
 public:
  explicit frmPeep(Station& station) : Form(station.forms, "frmPeep", Kind::kOnAir) {
    Left = 1000;
    Top = 2000;
    Width = 3000;
    Height = 1500;
  }

  EdgeGrips grips{*this};
};

class EdgeGripsTest : public StationTest {
 protected:
  static constexpr int kLeft = 1, kRight = 2;
  using Place = std::vector<Twips>;

  Place Rect() const { return {form.Left, form.Top, form.Width, form.Height}; }
  // Presses there, moves by that much and lets go.
  void Pull(Twips x, Twips y, Twips right, Twips down, int buttons = kLeft) {
    form.PressMouse({x, y, buttons});
    sim.windows.MovePointer(right, down);
    sim.windows.EndDrag();
  }
  MousePointer ShapeAt(Twips x, Twips y, int buttons = 0) {
    form.MoveMouse({x, y, buttons});
    return form.Pointer;
  }

  frmPeep& form = station.forms.Get<frmPeep>();
};

TEST_F(EdgeGripsTest, ThePointerTellsWhichEdgeIsUnderIt) {
  EXPECT_EQ(ShapeAt(74, 700), MousePointer::kSizeWE);
  EXPECT_EQ(ShapeAt(2926, 700), MousePointer::kSizeWE);
  EXPECT_EQ(ShapeAt(700, 74), MousePointer::kSizeNS);
  EXPECT_EQ(ShapeAt(700, 1426), MousePointer::kSizeNS);
  EXPECT_EQ(ShapeAt(10, 10), MousePointer::kSizeNWSE);
  EXPECT_EQ(ShapeAt(2990, 1490), MousePointer::kSizeNWSE);
  EXPECT_EQ(ShapeAt(10, 1490), MousePointer::kSizeNESW);
  EXPECT_EQ(ShapeAt(2990, 10), MousePointer::kSizeNESW);
  EXPECT_EQ(ShapeAt(75, 75), MousePointer::kDefault);
}

TEST_F(EdgeGripsTest, WhileTheButtonIsDownTheShapeStays) {
  ShapeAt(10, 700);
  EXPECT_EQ(ShapeAt(700, 700, kLeft), MousePointer::kSizeWE);
  EXPECT_EQ(ShapeAt(700, 700), MousePointer::kDefault);
}

TEST_F(EdgeGripsTest, APressInsideMovesTheForm) {
  Pull(700, 700, 150, -300);
  EXPECT_EQ(Rect(), (Place{1150, 1700, 3000, 1500}));
  EXPECT_EQ(form.Pointer.Get(), MousePointer::kMove);
  Pull(700, 700, -1500, -3000);
  EXPECT_EQ(Rect(), (Place{-350, -1300, 3000, 1500})) << "beyond the screen as well";
}

TEST_F(EdgeGripsTest, AnEdgePullsItsOwnSideAlone) {
  Pull(10, 700, -150, 999);
  EXPECT_EQ(Rect(), (Place{850, 2000, 3150, 1500}));
  Pull(700, 10, 999, 150);
  EXPECT_EQ(Rect(), (Place{850, 2150, 3150, 1350}));
  Pull(3100, 700, 300, 999);
  EXPECT_EQ(Rect(), (Place{850, 2150, 3450, 1350}));
  Pull(700, 1300, 999, 300);
  EXPECT_EQ(Rect(), (Place{850, 2150, 3450, 1650}));
}

TEST_F(EdgeGripsTest, ACornerPullsBothItsEdges) {
  Pull(2990, 1490, 150, 300);
  EXPECT_EQ(Rect(), (Place{1000, 2000, 2990 + 150, 1500 + 300})) << "the edge beside the pointer comes to it";
  Pull(10, 10, 150, 300);
  EXPECT_EQ(Rect(), (Place{1000 + 10 + 150, 2000 + 300, 3140 - 150, 1800 - 300}));
}

TEST_F(EdgeGripsTest, ThePointerIsPutOntoTheEdgeThatItPulls) {
  const auto putBy = [&](Twips x, Twips y) {
    sim.windows.pointerPut.reset();
    Pull(x, y, 0, 0);
    return sim.windows.pointerPut;
  };
  EXPECT_EQ(putBy(30, 700), std::pair(1000.0, 2700.0));
  EXPECT_EQ(putBy(700, 30), std::pair(1700.0, 2000.0));
  EXPECT_EQ(putBy(2950, 700), std::pair(4000.0, 2700.0));
  EXPECT_EQ(putBy(700, 1450), std::pair(1700.0, 3500.0));
  EXPECT_EQ(putBy(700, 700), std::nullopt) << "inside it stays where it is";
}

TEST_F(EdgeGripsTest, InACornerThePointerIsPutOntoTheLastOfBothEdgesAlone) {
  Pull(2950, 30, 0, 0);
  EXPECT_EQ(sim.windows.pointerPut, std::pair(4000.0, 2030.0));
  Pull(30, 1450, 0, 0);
  EXPECT_EQ(sim.windows.pointerPut, std::pair(1030.0, 2030.0 + 1500.0));
}

TEST_F(EdgeGripsTest, AFormShrinksToJustOverTenPixelsAndNoFurther) {
  form.Width = 300;
  Pull(10, 700, 149, 0);
  EXPECT_EQ(form.Width, 151);
  const Twips left = form.Left;
  form.Width = 300;
  Pull(10, 700, 150, 0);
  EXPECT_EQ(form.Width, 300);
  EXPECT_EQ(form.Left, left) << "the edge that is pulled stays, too";
  Pull(295, 700, -150, 0);
  EXPECT_EQ(form.Width, 300);
  Pull(295, 700, -149, 0);
  EXPECT_EQ(form.Width, 151);
}

TEST_F(EdgeGripsTest, TheRightButtonPullsNothingAndBothPullAsTheLeftDoes) {
  Pull(700, 700, 150, 150, kRight);
  EXPECT_EQ(Rect(), (Place{1000, 2000, 3000, 1500}));
  Pull(700, 700, 150, 150, kLeft + kRight);
  EXPECT_EQ(Rect(), (Place{1150, 2150, 3000, 1500}));
}

}  // namespace
