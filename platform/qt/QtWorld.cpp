#include "platform/qt/QtWorld.h"

#include <QQuickWindow>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <thread>

#include "platform/posix/FolderLock.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixNetwork.h"
#include "platform/qt/GraphicsChoice.h"
#include "platform/qt/Heap.h"
#include "platform/qt/Locale.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/StationApplication.h"
#include "platform/qt/desktop/QtDesktop.h"
#include "platform/qt/desktop/QtDialogs.h"
#include "platform/qt/desktop/QtMonitors.h"
#include "platform/qt/desktop/QtPictures.h"
#include "platform/qt/feeds/QtNewsFeeds.h"
#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/forms/QtWindows.h"
#include "platform/qt/forms/look/Look.h"
#include "platform/qt/frames/FrameWidget.h"
#include "platform/qt/media/MpvEngine.h"
#include "platform/qt/scene/OnAirWindow.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/qt/scene/Scene.h"
#include "platform/qt/web/QtBrowser.h"

namespace {

constexpr std::chrono::milliseconds kPause(50);
constexpr std::chrono::milliseconds kPatience(10'000);

}  // namespace

struct QtWorld::Parts {
  Parts()
      : application(wordCount, words),
        windows([this](Form& form) { return std::make_unique<OnAirWindow>(form, scene); }, {NewFrameWidget, &loader}) {
    application.setApplicationName("corvanta");
    application.setQuitOnLastWindowClosed(false);
    WearLook(application);
  }

  // The program takes no options, so the application is given its name alone.
  int wordCount = 1;
  char name[9] = "corvanta";
  char* words[2] = {name, nullptr};
  StationApplication application;
  std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
  QtClock clock;
  QtScheduler scheduler;
  PosixFiles files;
  MpvEngine media;
  QtPictures pictures;
  PictureLoader loader;
  QtFlash flash{loader, folder + "/corvanta-movies"};
  QtBrowser browser{folder + "/corvanta-pages", folder + "/.web"};
  Scene scene{scheduler, loader};
  QtWindows windows;
  QtDialogs dialogs;
  QtDesktop desktop{folder};
  FolderLock lock{folder};
  QtMonitors monitors;
  PosixNetwork network;
  QtNewsFeeds feeds;
};

std::unique_ptr<QtWorld::Parts> QtWorld::MakeParts() {
  SettleHeap();
  SettleLocale();
  ChooseGraphics();
  return std::make_unique<Parts>();
}

QtWorld::QtWorld()
    : parts_(MakeParts()), world{parts_->clock,    parts_->scheduler, parts_->files,   parts_->media,   parts_->flash,
                                 parts_->browser,  parts_->pictures,  parts_->windows, parts_->dialogs, parts_->desktop,
                                 parts_->monitors, parts_->network,   parts_->feeds} {}

QtWorld::~QtWorld() = default;

bool QtWorld::IsOnlyRun() {
  // The other one may just be coming up, or going: the first to be right about it counts.
  for (auto waited = kPause; waited < kPatience; waited += kPause) {
    if (parts_->lock.Take()) return true;
    if (parts_->desktop.TellOtherRun()) return false;
    std::this_thread::sleep_for(kPause);
  }
  std::fputs("Another run of this station holds its folder and does not answer.\n", stderr);
  return false;
}

const std::string& QtWorld::ProgramFolder() const { return parts_->folder; }

int QtWorld::Run() { return QApplication::exec(); }
