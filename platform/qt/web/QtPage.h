#pragma once

#include <QObject>
#include <memory>
#include <optional>
#include <string>

#include "platform/Browser.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/frames/TakesInput.h"
#include "platform/qt/programs/SharedFrames.h"

class QtBrowser;

// One surface of the real world: a slot of the program that shows pages. The page is as large as what shows it was
// last; while nobody sees it, it goes on without pictures.
class QtPage : public QObject, public BrowserSurface, public ShowsFrames, public TakesInput {
 public:
  QtPage(QtBrowser& browser, BrowserListener& listener);
  ~QtPage() override;

  void Navigate(const std::string& address) override;
  void Reload() override;
  void SetLooks(const PageLooks& looks) override;
  FrameSource& Frames() override { return frames_; }
  void Take(const QEvent& event) override;

  // The engine's side. TellAll: all that a program that knows nothing must be told.
  void TellAll();
  void PictureWaits();
  void StatusChanged(qint64 serial, const std::string& text);
  void Loaded(qint64 serial);

 private:
  class Pictures : public FrameSource {
   public:
    explicit Pictures(QtPage& page) : page_(page) {}
    void SetTarget(QSize pixels) override { page_.SetTarget(pixels); }
    std::optional<QImage> Take() override { return page_.TakePicture(); }

   private:
    QtPage& page_;
  };

  void SetTarget(QSize pixels);
  std::optional<QImage> TakePicture();
  void TellSlot();
  void TellLooks();

  QtBrowser& browser_;
  BrowserListener& listener_;
  Pictures frames_{*this};
  int slot_;
  std::string address_;
  qint64 serial_ = 0;  // of what was opened last; 0 for nothing
  PageLooks looks_;
  QSize target_;
  std::shared_ptr<SharedFrames> shared_;
  bool isBlank_ = false;  // the next picture is none
};
