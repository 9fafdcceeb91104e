#pragma once

class BrowserEngine;
class Clock;
class Desktop;
class Dialogs;
class Files;
class FlashEngine;
class MediaEngine;
class Monitors;
class Network;
class NewsFeeds;
class Pictures;
class Scheduler;
class Windows;

// All that the core knows of the world around it. There are two: the real one and the virtual one.
struct World {
  Clock& clock;
  Scheduler& scheduler;
  Files& files;
  MediaEngine& media;
  FlashEngine& flash;
  BrowserEngine& browser;
  Pictures& pictures;
  Windows& windows;
  Dialogs& dialogs;
  Desktop& desktop;
  Monitors& monitors;
  Network& network;
  NewsFeeds& feeds;
};
