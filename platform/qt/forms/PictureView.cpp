#include "platform/qt/forms/PictureView.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

PictureView::PictureView(PictureLoader& loader, QWidget* parent) : QWidget(parent), loader_(loader) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureView::Show(const QString& path) {
  path_ = path;
  natural_ = {};
  if (QFileInfo(path).isFile()) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    natural_ = reader.size();
  }
  Load();
}

void PictureView::Load() {
  const QSize room = natural_.scaled(size(), Qt::KeepAspectRatio);
  ++wish_;
  if (natural_.isEmpty()) return Take(nullptr);
  if (room.isEmpty()) return;
  loader_.Load({path_, room}, this, [this, wish = wish_](SharedPicture picture) {
    if (wish == wish_) Take(std::move(picture));
  });
}

void PictureView::Take(SharedPicture picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  update();
}

void PictureView::paintEvent(QPaintEvent*) {
  if (!picture_) return;
  QPainter painter(this);
  QRect place(QPoint(), picture_->size.scaled(size(), Qt::KeepAspectRatio));
  place.moveCenter(rect().center());
  // While the widget is being resized, the former picture stands in for the one that fits.
  const qreal scale = qreal(place.width()) / picture_->size.width();
  painter.translate(place.topLeft());
  painter.scale(scale, scale);
  for (const Picture::Column& column : picture_->columns) painter.drawImage(column.x, 0, column.image);
}
