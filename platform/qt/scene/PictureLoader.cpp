#include "platform/qt/scene/PictureLoader.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <span>

namespace {

constexpr int kColumnWidth = 2048;
constexpr qint64 kKeptBytes = 96 * 1024 * 1024;
constexpr int kDecodedMegabytes = 512;  // of one picture; a file that claims more is none

qint64 BytesOf(const Picture& picture) { return qint64{4} * picture.size.width() * picture.size.height(); }

// As far as the file goes: what a picture that is cut off lacks stays black. Null where nothing can be decoded.
QImage Read(QImageReader& reader) {
  const QSize size = reader.size();
  if (qint64{4} * size.width() * size.height() > qint64{kDecodedMegabytes} << 20) return {};
  QImage image(size, reader.imageFormat());
  image.fill(Qt::black);
  if (reader.read(&image) || image.isNull()) return image;
  QImage blank(image.size(), image.format());
  blank.fill(Qt::black);
  return image == blank ? QImage() : image;
}

// Before it is scaled: afterwards the key's colour would stand mixed into the pixels beside it.
QImage Keyed(const QImage& picture, QRgb key) {
  QImage image = picture.convertToFormat(QImage::Format_ARGB32);
  bool isKeyed = false;
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (QRgb& pixel : std::span(row, static_cast<std::size_t>(image.width()))) {
      if (pixel != key) continue;
      pixel = 0;
      isKeyed = true;
    }
  }
  return isKeyed ? image : picture;
}

SharedPicture Decode(const PictureWish& wish) {
  QImageReader reader(wish.path);
  reader.setDecideFormatFromContent(true);
  QImage image = Read(reader);
  if (image.isNull()) return nullptr;
  if (wish.key) image = Keyed(image, *wish.key);
  if (!wish.size.isEmpty() && image.size() != wish.size) {
    image = image.scaled(wish.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
  image.setDevicePixelRatio(1);
  auto picture = std::make_shared<Picture>();
  picture->size = image.size();
  if (image.width() <= kColumnWidth) {
    picture->columns.push_back({0, image});
    return picture;
  }
  for (int x = 0; x < image.width(); x += kColumnWidth) {
    picture->columns.push_back({x, image.copy(x, 0, std::min(kColumnWidth, image.width() - x), image.height())});
  }
  return picture;
}

}  // namespace

QSGNode* PictureNode(QSGNode* old, const SharedPicture& picture, QQuickWindow* window) {
  delete old;
  if (!picture) return nullptr;
  auto* node = new QSGNode;
  for (const Picture::Column& column : picture->columns) {
    QSGImageNode* image = window->createImageNode();
    const bool seeThrough = column.image.hasAlphaChannel();
    image->setTexture(window->createTextureFromImage(
        column.image, seeThrough ? QQuickWindow::TextureHasAlphaChannel : QQuickWindow::TextureIsOpaque));
    image->setOwnsTexture(true);
    image->setFiltering(QSGTexture::Nearest);
    image->setRect(column.x, 0, column.image.width(), column.image.height());
    node->appendChildNode(image);
  }
  return node;
}

PictureLoader::PictureLoader() { QImageReader::setAllocationLimit(kDecodedMegabytes); }

void PictureLoader::Load(const PictureWish& wish, QObject* receiver, Done done) {
  const QFileInfo file(wish.path);
  const Key key{wish, file.lastModified().toMSecsSinceEpoch(), file.size()};
  const auto kept = std::ranges::find(kept_, key, &Kept::key);
  if (kept != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, kept);
    const SharedPicture picture = kept->picture;
    done(picture);
    return;
  }
  decoding_.Do([this, key, receiver = QPointer(receiver), done = std::move(done)]() -> Worker::HandOver {
    return [this, key, receiver, done, picture = Decode(key.wish)] {
      if (picture) Keep(key, picture);
      if (receiver) done(picture);
    };
  });
}

void PictureLoader::Keep(const Key& key, const SharedPicture& picture) {
  kept_.push_front({key, picture});
  qint64 bytes = 0;
  const auto tooMuch = std::ranges::find_if(kept_, [&bytes](const Kept& one) {
    bytes += BytesOf(*one.picture);
    return bytes > kKeptBytes;
  });
  kept_.erase(tooMuch, kept_.end());
}
