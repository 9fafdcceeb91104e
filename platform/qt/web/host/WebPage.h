#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "platform/qt/programs/SharedFrames.h"
#include "platform/qt/programs/host/UnseenView.h"
#include "platform/qt/web/host/Gate.h"

class QCborArray;
class QQmlEngine;
class QQuickWebEngineProfile;

// One web page. When its renderer dies it comes back, at growing pauses; its last picture stays meanwhile. A renderer
// that does not answer for twenty seconds is taken for dead. A page that cannot be had is tried again at growing pauses
// too: after a power cut the network may come up later than the station.
class WebPage : public QObject {
 public:
  struct Listener {
    std::function<void()> painted;
    std::function<void(const QString& text)> status;
    std::function<void()> loaded;
  };

  // All three must outlive it.
  WebPage(QQmlEngine& engine, QQuickWebEngineProfile& profile, Guard& guard, Listener listener);

  // Its size, and where its pictures go; without frames it is not painted, and keeps its size.
  void Place(std::shared_ptr<SharedFrames> frames);
  // The empty address is an empty page, of which no picture is given.
  void Open(const QUrl& address);
  void Reload();
  void SetLooks(int zoom, bool sound, bool scrollBars);
  // A message of the mouse, the wheel or the keys, see WebWire.
  void Take(const QCborArray& input);

 private:
  void Go();
  void ApplyZoom();
  void Progress(int percent);
  void Tell(const QString& status);
  void Hovered(const QString& address);
  void Started();
  void Stopped();
  void Ended(bool succeeded);
  void Begin();
  void Died();
  void ComeBack();
  void SeeWhetherItAnswers();
  void Paint();

  Listener listener_;
  Gate gate_;
  std::shared_ptr<SharedFrames> frames_;
  QUrl address_;
  int zoom_ = 100;
  QString status_;        // told last of this page
  bool arrived_ = false;  // something of what was opened last has come
  bool begun_ = false;    // something of the page can be seen
  bool isNew_ = true;     // nothing of this load can be seen yet
  QElapsedTimer sinceBegun_;
  bool fresh_ = true;  // the next picture is told even when it is the same as the last one
  QTimer comeBack_;
  QElapsedTimer sinceBack_;
  QTimer tryAgain_;
  std::chrono::milliseconds pauseOfTry_{};
  QTimer watch_;
  int unanswered_ = 0;  // questions
  UnseenView view_;     // behind all that it may still call when it ends
};
