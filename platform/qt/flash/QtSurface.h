#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Flash.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/programs/SharedFrames.h"
#include "platform/qt/scene/PictureLoader.h"

class QtFlash;

// One surface of the real world. Its movie plays in a slot of the movie program, or it goes along with another surface
// that was put the same file in the same moment. Of puts that follow each other faster than movies come up, only the
// last one is begun.
class QtSurface : public QObject, public FlashSurface, public ShowsFrames {
 public:
  QtSurface(QtFlash& flash, FlashListener& listener);
  ~QtSurface() override;

  void Put(const std::string& path) override;
  int TotalFrames() const override { return totalFrames_; }
  void SetVariable(const std::string& name, const std::string& value) override;
  void SetLooks(const FlashLooks& looks) override { looks_ = looks; }
  FrameSource& Frames() override { return frames_; }

  // The engine's side. A movie that was put waits to be begun.
  bool Waits() const { return waits_; }
  bool MayLead(const QtSurface& other) const;
  void Follow(QtSurface& leader);
  void LeaveALeaderThatGoesElsewhere();
  void Begin();
  // All that a program that knows nothing must be told.
  void TellAll();
  void Shown(qint64 serial, int frame);
  // The movie is up, or cannot be shown.
  void Settled(qint64 serial);
  void Refused(qint64 serial);
  void PictureWaits();

 private:
  class Pictures : public FrameSource {
   public:
    explicit Pictures(QtSurface& surface) : surface_(surface) {}
    void SetTarget(QSize pixels) override { surface_.SetTarget(pixels); }
    void SetKey(std::optional<QRgb> colour) override { surface_.SetKey(colour); }
    std::optional<QImage> Take() override { return surface_.Take(); }

   private:
    QtSurface& surface_;
  };

  void SetTarget(QSize pixels);
  void SetKey(std::optional<QRgb> colour);
  std::optional<QImage> Take();
  QSize WantedSize() const;
  void TellSlot();
  void TellPut();
  // What nobody sees is not heard either: neither a column that was switched off, nor what a break stands over.
  bool IsHeard() const;
  void TellSilence();
  void LoadPicture();
  void ShowPicture(const SharedPicture& picture, QRect place);
  void ShowScaled(const QImage& picture);
  // Where something of that size stands with its proportions, in the middle of the target.
  QRect Centred(QSize size) const;
  void Offer(const QImage& picture);
  void Leave();
  void EndMovie();
  void CountOn();

  QtFlash& flash_;
  FlashListener& listener_;
  Pictures frames_{*this};
  int slot_;

  std::string path_;  // what was put last
  FlashLooks looks_;
  int totalFrames_ = 0;
  double framesPerSecond_ = 0;
  QSize stage_;  // of the movie
  std::vector<std::pair<std::string, std::string>> variables_;
  bool waits_ = false;      // a movie that was put is not begun yet
  bool isPicture_ = false;  // what was put last is a picture
  int pictureWish_ = 0;     // counts the pictures asked for; only the last one is shown

  qint64 serial_ = 0;   // of the movie that was put last, once it is begun; 0 for none
  qint64 loading_ = 0;  // of the movie that is coming up
  std::string begun_;   // its file
  FlashLooks begunLooks_;
  QTimer clock_;     // counts a movie that cannot be played
  int counted_ = 0;  // how far

  QSize target_;
  std::optional<QRgb> key_;
  QSize told_;  // the size that the program was told
  std::shared_ptr<SharedFrames> shared_;
  std::optional<QImage> next_;  // what Take gives before the movie's own pictures

  QtSurface* leader_ = nullptr;
  std::vector<QtSurface*> followers_;
};
