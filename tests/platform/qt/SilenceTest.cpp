#include <gtest/gtest.h>

#include <QCborArray>
#include <QFile>
#include <filesystem>
#include <optional>

#include "platform/qt/flash/MovieWire.h"
#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/scene/PictureLoader.h"
#include "tests/platform/qt/TestMedia.h"
#include "tests/platform/swf/MovieWriter.h"

// Which movies are heard: what the program that plays them is told, by one that plays nothing and writes it down.

namespace {

using Told = std::vector<QCborArray>;

class Unheeding : public FlashListener {
  void FrameShown(int) override {}
};

// It writes beside itself, a message a line.
constexpr char kRecorder[] = R"(#!/usr/bin/python3
import socket
end = socket.socket(fileno=3)
end.setblocking(True)
with open(__file__ + ".told", "wb", 0) as file:
    while message := end.recv(1 << 18):
        file.write(message.hex().encode() + b"\n")
)";

std::string Recorder() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const std::string path = test_media::Text(std::string("recorder of ") + test->name(), kRecorder);
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  return path;
}

class SilenceTest : public testing::Test {
 protected:
  static constexpr QSize kSeen{100, 100};
  static constexpr QSize kUnseen{};

  Told WhatWasTold() const {
    QFile file(QString::fromStdString(program + ".told"));
    if (!file.open(QFile::ReadOnly)) return {};
    Told told;
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (!line.isEmpty()) told.push_back(wire::Parts(QByteArray::fromHex(line)));
    }
    return told;
  }
  // Of what the surface of that number plays; nothing before it plays anything.
  std::optional<bool> IsSilent(int slot) const {
    std::optional<bool> silent;
    for (const QCborArray& one : WhatWasTold()) {
      if (one[1].toInteger() != slot) continue;
      if (one[0].toString() == wire::kPut) silent = one[6].toBool();
      if (one[0].toString() == wire::kSilence) silent = one[2].toBool();
    }
    return silent;
  }
  bool Becomes(int slot, bool silent) const {
    return Until([&] { return IsSilent(slot) == silent; });
  }
  // The surfaces are numbered from 1.
  std::unique_ptr<FlashSurface> Surface(QSize target, bool silent = false) {
    auto surface = flash.NewSurface("surface", listener);
    surface->SetLooks({.silent = silent});
    SetTarget(*surface, target);
    return surface;
  }
  static void SetTarget(FlashSurface& surface, QSize size) {
    dynamic_cast<ShowsFrames&>(surface).Frames().SetTarget(size);
  }

  Unheeding listener;
  PictureLoader loader;
  const std::string program = Recorder();
  const std::string movie = test_media::Text("heard.swf", test_movies::Plain(test_movies::Show() + test_movies::End()));
  QtFlash flash{loader, program};
};

TEST_F(SilenceTest, AMovieIsHeardAsLongAsItIsSeen) {
  const auto surface = Surface(kSeen);
  surface->Put(movie);
  EXPECT_TRUE(Becomes(1, false));
  SetTarget(*surface, kUnseen);
  EXPECT_TRUE(Becomes(1, true)) << "the column is switched off in the middle of a movie";
  SetTarget(*surface, kSeen);
  EXPECT_TRUE(Becomes(1, false));
}

TEST_F(SilenceTest, AMovieThatIsPutIntoAHiddenColumnComesUpSilentAndIsHeardWhenTheColumnIsThere) {
  const auto surface = Surface(kUnseen);
  surface->Put(movie);
  EXPECT_TRUE(Becomes(1, true));
  SetTarget(*surface, kSeen);
  EXPECT_TRUE(Becomes(1, false));
}

TEST_F(SilenceTest, ASilentPreviewIsNeverHeardWhetherItLeadsOrFollows) {
  const auto column = Surface(kSeen);
  const auto preview = Surface(kSeen, true);
  for (FlashSurface* one : {column.get(), preview.get()}) one->Put(movie);
  EXPECT_TRUE(Becomes(1, false));
  EXPECT_TRUE(Becomes(2, true));
}

TEST_F(SilenceTest, AMovieThatTwoSurfacesShareIsHeardAsLongAsTheOneThatSoundsIsSeen) {
  const auto column = Surface(kSeen);
  const auto preview = Surface(kUnseen, true);
  for (FlashSurface* one : {column.get(), preview.get()}) one->Put(movie);
  EXPECT_TRUE(Becomes(1, false));
  SetTarget(*preview, kSeen);
  SetTarget(*column, kUnseen);
  EXPECT_TRUE(Becomes(1, true)) << "the preview alone is seen";
  EXPECT_EQ(IsSilent(2), std::nullopt) << "it goes along with the column";
}

}  // namespace
