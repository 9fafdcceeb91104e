#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <vector>

#include "platform/qt/frames/FrameSource.h"
#include "tests/platform/qt/TestMedia.h"

// What can be seen of a movie or a page.
class SeenPictures {
 public:
  // Looks at those of that source from now on, in that size.
  void Watch(FrameSource& source, QSize size) {
    picture = {};
    source.SetTarget(size);
    QObject::connect(&source, &FrameSource::Changed, &source, [this, &source] {
      const auto taken = source.Take();
      if (!taken) return;
      picture = taken->copy();
      middles.push_back(Middle());
    });
  }
  // No colour where nothing is shown.
  QColor Middle() const { return picture.isNull() ? QColor() : picture.pixelColor(picture.rect().center()); }
  bool Shows(QColor colour) const {
    return ::Until([&] { return Middle() == colour; });
  }

  QImage picture;               // the last one
  std::vector<QColor> middles;  // of all pictures
};
