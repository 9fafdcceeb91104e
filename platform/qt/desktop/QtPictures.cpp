#include "platform/qt/desktop/QtPictures.h"

#include <QFileInfo>
#include <QImageReader>

std::optional<PixelSize> QtPictures::Size(const std::string& path) const {
  const QString file = QString::fromStdString(path);
  if (!QFileInfo(file).isFile()) return std::nullopt;  // a pipe would wait for its writer
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (!size.isValid() || size.isEmpty()) return std::nullopt;
  return PixelSize{size.width(), size.height()};
}
