#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <vector>

#include "platform/qt/Worker.h"

class QSGNode;
class QQuickWindow;

// A decoded picture, cut into columns: a crawl may be wider than a painter or a texture can be.
struct Picture {
  struct Column {
    int x = 0;
    QImage image;
  };
  std::vector<Column> columns;
  QSize size;
};

using SharedPicture = std::shared_ptr<const Picture>;

// A file, and how it is to be shown: scaled to a size unless that is empty, and see-through wherever a pixel of the
// file has exactly the key's colour.
struct PictureWish {
  QString path;
  QSize size = {};
  std::optional<QRgb> key = {};
  bool operator==(const PictureWish&) const = default;
};

// The node that shows a picture from the item's left top corner at its own size; null for no picture. `old` is what
// the item's last call gave, and is spent.
QSGNode* PictureNode(QSGNode* old, const SharedPicture& picture, QQuickWindow* window);

// Decodes pictures in a thread of its own, one after the other, and keeps the latest ones: a crawl that starts anew is
// there at once.
class PictureLoader : public QObject {
 public:
  using Done = std::function<void(SharedPicture)>;

  // The end waits for the picture that is being decoded.
  PictureLoader();

  // Calls `done` with the picture that is asked for: at once when it is at hand, later otherwise, and then only if
  // `receiver` still lives. Null: the file is no picture.
  void Load(const PictureWish& wish, QObject* receiver, Done done);

 private:
  // A wish, and the file as it was then.
  struct Key {
    PictureWish wish;
    qint64 changed = 0;
    qint64 bytes = 0;
    bool operator==(const Key&) const = default;
  };
  struct Kept {
    Key key;
    SharedPicture picture;
  };

  void Keep(const Key& key, const SharedPicture& picture);

  std::list<Kept> kept_;  // the latest used first
  Worker decoding_{"pictures"};
};
