#include "platform/qt/frames/FrameWidget.h"

#include <QPainter>
#include <QPointer>

#include "platform/qt/frames/FrameSource.h"

namespace {

class FrameWidget : public QWidget {
 public:
  FrameWidget(FrameSource* frames, QWidget* parent) : QWidget(parent), frames_(frames) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (frames_) connect(frames_.data(), &FrameSource::Changed, this, &FrameWidget::TakeFrame);
  }
  ~FrameWidget() override {
    if (frames_) frames_->SetTarget({});
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (frame_.size() != size() || frame_.hasAlphaChannel()) painter.fillRect(rect(), Qt::black);
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

QWidget* NewFrameWidget(ShowsFrames* source, QWidget* parent) {
  return new FrameWidget(source != nullptr ? &source->Frames() : nullptr, parent);
}
