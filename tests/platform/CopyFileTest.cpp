#include "platform/toolkit/Failures.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

class CopyFileTest : public StationTest {
 protected:
  CopyFileTest() {
    sim.files.Put("/clips/ad.mp4", "new");
    sim.files.Put("/station/ad.mp4", "old");
  }
  CopyResult Copy(const std::string& from = "/clips/ad.mp4", const std::string& to = "/station/ad.mp4") {
    return ControlWindow().CopyFile(from, to);
  }
  std::string Target() { return sim.files.Read("/station/ad.mp4").value_or("(none)"); }
};

TEST_F(CopyFileTest, TicksRunWhileAFileIsCopied) {
  int ticks = 0;
  sim.time.Start(1ms, TickPhase::kFromStart, [&] { ticks += Target() == "old" ? 1 : 100; });
  EXPECT_EQ(Copy(), CopyResult::kCopied);
  EXPECT_EQ(Target(), "new");
  EXPECT_GT(ticks, 0);
  EXPECT_LT(ticks, 100) << "the target is the old one until all is copied";
}

TEST_F(CopyFileTest, ACopyThatIsCancelledLeavesTheTargetAsItWas) {
  sim.dialogs.copyTakes = 10s;
  sim.dialogs.cancelsCopyAfter = 2s;
  EXPECT_EQ(Copy(), CopyResult::kCancelled);
  EXPECT_EQ(Target(), "old");
  EXPECT_EQ(sim.time.Steady(), 2s);
}

TEST_F(CopyFileTest, NobodyCancelsACopyWhoseBoxDoesNotStandYet) {
  sim.dialogs.copyTakes = 400ms;
  sim.dialogs.cancelsCopyAfter = 100ms;
  EXPECT_EQ(Copy(), CopyResult::kCopied);
}

TEST_F(CopyFileTest, ACopyThatCannotBeMadeFails) {
  EXPECT_EQ(Copy("/clips/none.mp4"), CopyResult::kFailed);
  EXPECT_EQ(Copy("/clips/ad.mp4", "/nowhere/ad.mp4"), CopyResult::kFailed);
  sim.files.SetDiskFull(true);
  EXPECT_EQ(Copy(), CopyResult::kFailed);
  EXPECT_EQ(Target(), "old");
}

TEST_F(CopyFileTest, AFileThatIsItsOwnSourceIsLeftAlone) {
  EXPECT_EQ(Copy("/station/AD.mp4", "/station/ad.mp4"), CopyResult::kCopied);
  EXPECT_EQ(Target(), "old");
}

TEST_F(CopyFileTest, AChosenFileIsToldAndNothingOnCancel) {
  sim.dialogs.files = {"/clips/ad.mp4"};
  EXPECT_EQ(ControlWindow().OpenFile("Load", "JPG file only|*.jpg;"), "/clips/ad.mp4");
  EXPECT_EQ(ControlWindow().OpenFile("Load", "JPG file only|*.jpg;"), "");
}

}  // namespace
