#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

#include "platform/qt/programs/SharedFrames.h"
#include "platform/qt/web/host/Gate.h"

class QCborArray;
class QQmlEngine;
class QQuickItem;
class QQuickWebEngineProfile;

// One web page, in a window that is never shown. It is painted into a picture whenever it changes, 60 times a second at
// most. When its renderer dies it comes back, at growing pauses; its last picture stays meanwhile. A renderer that does
// not answer for twenty seconds is taken for dead. A page that cannot be had is tried again at growing pauses too:
// after a power cut the network may come up later than the station.
class WebPage : public QObject {
 public:
  struct Listener {
    std::function<void()> painted;
    std::function<void(const QString& text)> status;
    std::function<void()> loaded;
  };

  // All three must outlive it.
  WebPage(QQmlEngine& engine, QQuickWebEngineProfile& profile, Guard& guard, Listener listener);
  ~WebPage() override;

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
  void Ask();
  void Paint();
  bool Changed(const QImage& picture) const;

  Listener listener_;
  Gate gate_;
  QQuickRenderControl control_;
  std::unique_ptr<QQuickWindow> window_;
  QQuickItem* view_ = nullptr;
  std::shared_ptr<SharedFrames> frames_;
  QUrl address_;
  int zoom_ = 100;
  QString status_;        // told last of this page
  bool arrived_ = false;  // something of what was opened last has come
  bool begun_ = false;    // something of the page can be seen
  bool isNew_ = true;     // nothing of this load can be seen yet
  QElapsedTimer sinceBegun_;
  QImage picture_;  // the last one
  QTimer due_;
  QElapsedTimer sincePainted_;
  QTimer comeBack_;
  QElapsedTimer sinceBack_;
  QTimer tryAgain_;
  std::chrono::milliseconds pauseOfTry_{};
  QTimer watch_;
  int unanswered_ = 0;  // questions
};
