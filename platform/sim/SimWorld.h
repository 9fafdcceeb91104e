#pragma once

#include "platform/World.h"
#include "platform/sim/SimBrowser.h"
#include "platform/sim/SimFiles.h"
#include "platform/sim/SimFlash.h"
#include "platform/sim/SimMedia.h"
#include "platform/sim/SimMonitors.h"
#include "platform/sim/SimNewsFeeds.h"
#include "platform/sim/SimShell.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"
#include "platform/sim/SimWindows.h"

// The whole virtual world, and the world as the core sees it.
struct SimWorld {
  SimTrace trace;
  SimTime time;
  SimFiles files;
  SimMedia media{time, files, trace};
  SimFlash flash{time, files, trace};
  SimBrowser browser{time, trace};
  SimPictures pictures{files};
  SimWindows windows{trace, time, pictures};
  SimDialogs dialogs{trace, time, files};
  SimDesktop desktop{trace};
  SimMonitors monitors;
  SimNetwork network{trace};
  SimNewsFeeds feeds{time, trace};

  World world{time, time, files, media, flash, browser, pictures, windows, dialogs, desktop, monitors, network, feeds};
};
