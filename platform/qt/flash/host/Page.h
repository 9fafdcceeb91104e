#pragma once

#include <QElapsedTimer>
#include <QJsonArray>
#include <QObject>
#include <functional>
#include <map>
#include <memory>

#include "platform/qt/flash/host/Shelves.h"
#include "platform/qt/programs/SharedFrames.h"
#include "platform/qt/programs/host/UnseenView.h"

class QQmlEngine;

// A web page that nobody sees, of whose picture each slot on it gets its part.
class Page : public QObject {
 public:
  struct Listener {
    std::function<void(const QJsonArray& line)> told;       // by the page, see movies.js
    std::function<void(const QList<int>& slots)> pictures;  // that have a new picture
    std::function<void()> died;                             // its renderer process
  };

  Page(QQmlEngine& engine, Listener listener);

  // A slot of that size, and where its pictures go; without frames it is not painted for anyone. It begins to give
  // pictures when the page has laid it out.
  void Place(int slot, QSize pixels, std::shared_ptr<SharedFrames> frames);
  void Remove(int slot);
  // How many pixels more there would be to paint with the slot of that size.
  qint64 GrowthWith(int slot, QSize pixels) const { return shelves_.GrowthWith(slot, pixels); }

  // Calls a function of the page, see movies.js: now, or when the page is there.
  void Call(const QString& function, const QJsonArray& arguments);
  // Begins the page anew, with its slots and without movies; what it showed last stays shown.
  void Reload();
  // The page is there since it was begun last: movies play in it.
  bool IsReady() const { return ready_; }

 private:
  struct Part {
    QRect place;
    std::shared_ptr<SharedFrames> frames;
    bool laidOut = false;  // its place on the page is its own by now
    bool up = false;       // a movie is seen there; before that the last picture stays
    bool fresh = true;     // nothing was painted since
    QElapsedTimer sinceUp;
  };

  void Tell(const QString& line);
  void LayOut(int slot);
  void PaintSoon(int slot, bool Part::*now);
  void Fit();
  void Paint();
  bool MustWait(const Part& part) const;

  Listener listener_;
  Shelves shelves_;
  std::map<int, Part> parts_;
  QStringList calls_;  // that wait for the page
  bool ready_ = false;
  int reloads_ = 0;
  UnseenView view_;  // behind all that it may still call when it ends
};
