#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "platform/posix/PosixFiles.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/QtPictures.h"
#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/media/MpvEngine.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/qt/web/QtBrowser.h"
#include "platform/sim/SimWorld.h"
#include "platform/swf/Bytes.h"
#include "tests/platform/qt/TestMedia.h"
#include "tests/platform/swf/MovieWriter.h"

// The two worlds behind one face, for what both must do alike.

class VirtualWorld {
 public:
  void Pass(std::chrono::milliseconds time) { sim.time.Advance(time); }
  // A handler takes so long, and lets nothing happen meanwhile.
  void BeBusy(std::chrono::milliseconds time) { sim.time.yieldTakes = time; }
  bool Until(const std::function<bool()>& condition) {
    for (int i = 0; i < 60'000 && !condition(); ++i) Pass(std::chrono::milliseconds(1));
    return condition();
  }
  std::string Clip(const std::string& name, double seconds) {
    sim.files.Put("/" + name, "media");
    sim.media.SetDuration("/" + name, seconds);
    return "/" + name;
  }
  std::string Picture(const std::string& name, PixelSize size) {
    sim.files.Put("/" + name, "picture");
    sim.pictures.sizes["/" + name] = size;
    return "/" + name;
  }
  // A movie of that many frames, 25 a second.
  std::string Movie(const std::string& name, int frames) {
    sim.files.Put("/" + name, "movie");
    sim.flash.SetMovie("/" + name, frames);
    return "/" + name;
  }
  // One whose header is right, and of which nothing is ever seen.
  std::string UnplayableMovie(const std::string& name, int frames) {
    sim.flash.SetWithoutBeginning(Movie(name, frames));
    return "/" + name;
  }
  static std::string Absent() { return "/absent.mp4"; }

  SimWorld sim;
  Scheduler& scheduler = sim.time;
  MediaEngine& media = sim.media;
  World& world = sim.world;
};

class RealWorld {
 public:
  static void Pass(std::chrono::milliseconds time) { ::Pass(time); }
  static void BeBusy(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }
  static bool Until(const std::function<bool()>& condition) { return ::Until(condition); }
  static std::string Clip(const std::string& name, double seconds) { return test_media::Clip(name, Qt::red, seconds); }
  static std::string Picture(const std::string& name, PixelSize size) {
    return test_media::Picture(name, Qt::red, {size.width, size.height});
  }
  static std::string Movie(const std::string& name, int frames) {
    std::string tags;
    for (int i = 0; i < frames; ++i) tags += test_movies::Show();
    return test_media::Text(name, test_movies::Plain(tags + test_movies::End(), {.frameCount = frames}));
  }
  // It takes something from a movie that is not there.
  static std::string UnplayableMovie(const std::string& name, int frames) {
    constexpr int kImportAssets2 = 71;
    const std::string tags = swf::WriteTag(kImportAssets2, std::string("missing.swf\0\1\0\1\0\1\0x\0", 20));
    return test_media::Text(name, test_movies::Plain(tags + test_movies::End(), {.frameCount = frames}));
  }
  static std::string Absent() { return test_media::PathOf("absent.mp4"); }

 private:
  QtClock clock_;
  QtScheduler scheduler_;
  PosixFiles files_;
  MpvEngine media_;
  PictureLoader loader_;
  QtFlash flash_{loader_, MOVIE_PROGRAM};
  QtBrowser browser_{PAGE_PROGRAM, test_media::PathOf("profile")};
  QtPictures pictures_;
  SimWorld rest_;

 public:
  Scheduler& scheduler = scheduler_;
  MediaEngine& media = media_;
  // Time, disk, media and pictures are real.
  World world{clock_,        scheduler_,    files_,        media_,         flash_,        browser_,   pictures_,
              rest_.windows, rest_.dialogs, rest_.desktop, rest_.monitors, rest_.network, rest_.feeds};
};

using Worlds = testing::Types<VirtualWorld, RealWorld>;
