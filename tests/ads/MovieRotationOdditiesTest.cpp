// What looks wrong about the desks of both rotations, and stays.
#include "tests/ads/MovieRotationTest.h"

using namespace std::chrono_literals;

namespace {

template <class Side>
class MovieRotationOdditiesTest : public MovieRotationTest<Side> {};

using Sides = ::testing::Types<ColumnSide, OverlaySide>;
TYPED_TEST_SUITE(MovieRotationOdditiesTest, Sides);

TYPED_TEST(MovieRotationOdditiesTest, ACategoryThatIsGoneWhenItIsClickedIsTheOneChosenLastAllTheSame) {
  this->Movie("Sweets", "a.swf");
  this->Movie("Toys", "x.swf");
  auto& form = this->RunWith("Sweets");
  this->ListLibrary();
  this->sim.files.RemoveTree(this->Category("Toys"));
  this->PickCategory("Toys");
  EXPECT_EQ(form.File.Path.Get(), this->Category("Sweets"));
  EXPECT_EQ(this->Stored("LastPath"), this->Category("Toys"));
}

TYPED_TEST(MovieRotationOdditiesTest, WithNothingPickedBothDeletesAskAllTheSame) {
  auto& form = this->RunWith("Sweets");
  this->Asked();
  this->Answers(Answer::kYes);
  form.btnDelete.Press();
  EXPECT_EQ(this->Asked(), Names{"box \"Are You Sure you wnat to Delete this Ad?\" \"Delete logo\""});
  form.TimerFlash.Enabled = true;
  this->Answers(Answer::kYes);
  form.vkCommand2.Press();
  EXPECT_EQ(this->Asked(), Names{"box \"Are You Sure you wnat to Delete this category?\" \"DELETE\""});
  EXPECT_FALSE(form.TimerFlash.Enabled) << "though nothing was deleted";
}

TYPED_TEST(MovieRotationOdditiesTest, AMovieThatCannotBePlayedIsFollowedWhenItsTimeIsOverByTheClock) {
  this->Movie("Sweets", "a.swf", 50);
  const std::string torn = this->Movie("Sweets", "b.swf", 50);
  this->sim.flash.SetWithoutBeginning(torn);
  const std::string next = this->Movie("Sweets", "c.swf", 5000);
  this->RunWith("Sweets");
  const auto shown = [this] { return this->sim.flash.Find(TypeParam::kOnAir)->Shown(); };
  this->Advance(3500ms);
  EXPECT_EQ(this->Desk().File.FileName(), "b.swf");
  EXPECT_EQ(shown(), this->Category("Sweets") + "/a.swf") << "what was on the air stays";
  this->Advance(4s);
  EXPECT_EQ(shown(), next);
}

}  // namespace
