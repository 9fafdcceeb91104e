#include "platform/qt/media/PreviewWidget.h"

#include <QPainter>
#include <QPointer>

#include "platform/Media.h"
#include "platform/qt/media/FrameSource.h"

namespace {

class PreviewWidget : public QWidget {
 public:
  PreviewWidget(FrameSource* frames, QWidget* parent) : QWidget(parent), frames_(frames) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (frames_) connect(frames_.data(), &FrameSource::Changed, this, &PreviewWidget::TakeFrame);
  }
  ~PreviewWidget() override {
    if (frames_) frames_->SetTarget({});
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (frame_.size() != size()) painter.fillRect(rect(), Qt::black);
    if (!frame_.isNull()) painter.drawImage(0, 0, frame_);
  }
  void resizeEvent(QResizeEvent*) override { Follow(); }
  void showEvent(QShowEvent*) override { Follow(); }
  void hideEvent(QHideEvent*) override { Follow(); }

 private:
  void Follow() {
    if (frames_) frames_->SetTarget(isVisible() ? size() : QSize());
  }
  void TakeFrame() {
    if (const auto frame = frames_->Take()) frame_ = *frame;
    update();
  }

  QPointer<FrameSource> frames_;  // a window may be taken down a little after its form has let go of its player
  QImage frame_;
};

}  // namespace

QWidget* NewPreviewWidget(MediaPlayer& player, QWidget* parent) {
  auto* shows = dynamic_cast<ShowsFrames*>(&player);
  return new PreviewWidget(shows != nullptr ? &shows->Frames() : nullptr, parent);
}
