#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "platform/qt/desktop/QtDialogs.h"
#include "platform/sim/SimWorld.h"
#include "tests/platform/TemporaryFolder.h"

// What a copy promises, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

class VirtualCopies {
 public:
  VirtualCopies() { sim.files.CreateFolder("/to"); }
  void Put(const std::string& name, const std::string& content) { sim.files.Put(Path(name), content); }
  std::string Read(const std::string& name) { return sim.files.Read(Path(name)).value_or("(none)"); }
  static std::string Path(const std::string& name) { return "/to/" + name; }
  int Entries() { return static_cast<int>(sim.files.List("/to", FileKind::kRegular).size()); }
  // A file that is still being copied when the box with the button stands, which is pressed then.
  std::string LongFile() {
    Put("long.mp4", "long");
    sim.dialogs.copyTakes = 10s;
    return Path("long.mp4");
  }
  void CancelAtTheBox() { sim.dialogs.cancelsCopyAfter = 600ms; }
  void EachTick(std::function<void()> tick) { sim.time.Start(20ms, TickPhase::kFromStart, std::move(tick)); }

  SimWorld sim;
  Dialogs& dialogs = sim.dialogs;
};

class RealCopies {
 public:
  void Put(const std::string& name, const std::string& content) const { WriteByOther(Path(name), content); }
  std::string Read(const std::string& name) const {
    return std::filesystem::exists(Path(name)) ? ReadByOther(Path(name)) : "(none)";
  }
  std::string Path(const std::string& name) const { return folder_.Path() + "/" + name; }
  int Entries() const {
    return static_cast<int>(QDir(QString::fromStdString(folder_.Path())).entryList(QDir::Files | QDir::Hidden).size());
  }
  std::string LongFile() const {
    Put("long.mp4", "");
    std::filesystem::resize_file(Path("long.mp4"), std::uintmax_t{64} << 30);  // of nothing: it takes no room itself
    return Path("long.mp4");
  }
  void CancelAtTheBox() {
    cancels_.callOnTimeout([this] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr || box->findChild<QProgressBar*>() == nullptr) return;
      cancels_.stop();
      box->findChild<QPushButton*>()->click();
    });
    cancels_.start(20ms);
  }
  void EachTick(std::function<void()> tick) {
    ticks_.callOnTimeout([tick = std::move(tick)] { tick(); });
    ticks_.start(1ms);
  }

 private:
  TemporaryFolder folder_;
  QTimer cancels_, ticks_;
  QtDialogs dialogs_;

 public:
  Dialogs& dialogs = dialogs_;
};

template <typename World>
class CopyContractTest : public testing::Test {
 protected:
  CopyResult Copy(const std::string& from, const std::string& to) {
    return world.dialogs.CopyFile(world.Path(from), world.Path(to));
  }

  World world;
};

using Copies = testing::Types<VirtualCopies, RealCopies>;
TYPED_TEST_SUITE(CopyContractTest, Copies);

TYPED_TEST(CopyContractTest, ACopyHasTheWholeContentAndLeavesNothingElseBehind) {
  const std::string content = std::string(3'000'000, 'x') + "end";
  this->world.Put("a.mp4", content);
  EXPECT_EQ(this->Copy("a.mp4", "b 100%.mp4"), CopyResult::kCopied);
  EXPECT_EQ(this->world.Read("b 100%.mp4"), content);
  EXPECT_EQ(this->world.Read("a.mp4"), content);
  EXPECT_EQ(this->world.Entries(), 2);
}

TYPED_TEST(CopyContractTest, AnEmptyFileIsCopiedToo) {
  this->world.Put("a.mp4", "");
  EXPECT_EQ(this->Copy("a.mp4", "b.mp4"), CopyResult::kCopied);
  EXPECT_EQ(this->world.Read("b.mp4"), "");
}

TYPED_TEST(CopyContractTest, WhatStandsAtTheTargetIsReplaced) {
  this->world.Put("a.mp4", "new");
  this->world.Put("b.mp4", "old and longer");
  EXPECT_EQ(this->Copy("a.mp4", "b.mp4"), CopyResult::kCopied);
  EXPECT_EQ(this->world.Read("b.mp4"), "new");
}

TYPED_TEST(CopyContractTest, NamesAreFoundWithoutRegardToCase) {
  this->world.Put("Clip.MP4", "new");
  this->world.Put("B.mp4", "old");
  EXPECT_EQ(this->Copy("clip.mp4", "b.mp4"), CopyResult::kCopied);
  EXPECT_EQ(this->world.Read("B.mp4"), "new");
  EXPECT_EQ(this->world.Entries(), 2);
}

TYPED_TEST(CopyContractTest, AFileThatIsItsOwnSourceIsLeftAlone) {
  this->world.Put("a.mp4", "all of it");
  EXPECT_EQ(this->Copy("a.mp4", "A.mp4"), CopyResult::kCopied);
  EXPECT_EQ(this->world.Read("a.mp4"), "all of it");
  EXPECT_EQ(this->world.Entries(), 1);
}

TYPED_TEST(CopyContractTest, WhatCannotBeCopiedFailsAndTheTargetStaysAsItWas) {
  this->world.Put("b.mp4", "old");
  EXPECT_EQ(this->Copy("absent.mp4", "b.mp4"), CopyResult::kFailed);
  EXPECT_EQ(this->Copy(".", "b.mp4"), CopyResult::kFailed);
  EXPECT_EQ(this->world.Read("b.mp4"), "old");
  EXPECT_EQ(this->Copy("b.mp4", "absent/b.mp4"), CopyResult::kFailed);
  EXPECT_EQ(this->world.Entries(), 1);
}

TYPED_TEST(CopyContractTest, ACancelledCopyLeavesTheTargetAsItWasAndNothingElseBehind) {
  const std::string from = this->world.LongFile();
  this->world.Put("b.mp4", "old");
  int ticks = 0;
  this->world.EachTick([&] {
    ++ticks;
    EXPECT_EQ(this->world.Read("b.mp4"), "old");
  });
  this->world.CancelAtTheBox();
  EXPECT_EQ(this->world.dialogs.CopyFile(from, this->world.Path("b.mp4")), CopyResult::kCancelled);
  EXPECT_EQ(this->world.Read("b.mp4"), "old");
  EXPECT_EQ(this->world.Entries(), 2);
  EXPECT_GT(ticks, 1) << "ticks run while a file is copied";
}

TEST(CopyBoxTest, ALinkIsFollowedOnBothSidesAndAFileThatIsLinkedToItselfIsLeftAlone) {
  const TemporaryFolder folder;
  const std::string file = folder.Path() + "/a", link = folder.Path() + "/link", other = folder.Path() + "/b";
  WriteByOther(file, "content");
  std::filesystem::create_symlink(file, link);
  QtDialogs dialogs;
  EXPECT_EQ(dialogs.CopyFile(link, file), CopyResult::kCopied);
  EXPECT_EQ(dialogs.CopyFile(file, link), CopyResult::kCopied);
  EXPECT_EQ(ReadByOther(file), "content");
  WriteByOther(other, "other");
  EXPECT_EQ(dialogs.CopyFile(other, link), CopyResult::kCopied);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(ReadByOther(file), "other");
}

TEST(CopyBoxTest, ACopyThatDoesNotFitLeavesNoTornFile) {
  const TemporaryFolder folder;
  WriteByOther(folder.Path() + "/a", std::string(1'000'000, 'x'));
  WriteByOther(folder.Path() + "/b", "old");
  const auto former = signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit little{600'000, limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &little);
  QtDialogs dialogs;
  EXPECT_EQ(dialogs.CopyFile(folder.Path() + "/a", folder.Path() + "/b"), CopyResult::kFailed);
  setrlimit(RLIMIT_FSIZE, &limit);
  signal(SIGXFSZ, former);
  EXPECT_EQ(ReadByOther(folder.Path() + "/b"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);
}

TEST(CopyBoxTest, APressOnAWindowGetsNowhereWhileAFileIsCopied) {
  const TemporaryFolder folder;
  const std::string from = folder.Path() + "/long";
  WriteByOther(from, "");
  std::filesystem::resize_file(from, std::uintmax_t{64} << 30);
  QPushButton window("Save");
  window.show();
  int presses = 0;
  QObject::connect(&window, &QPushButton::clicked, [&] { ++presses; });
  QTimer during;
  during.callOnTimeout([&] {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    during.stop();
    box->reject();
  });
  during.start(50ms);
  QtDialogs dialogs;
  EXPECT_EQ(dialogs.CopyFile(from, folder.Path() + "/b"), CopyResult::kCancelled);
  QTest::qWait(20);
  EXPECT_EQ(presses, 0);
}

}  // namespace
