#pragma once

#include <QImage>
#include <QRegion>

// The pixels of a picture that are at least so opaque, 0 to 255: spans by row, equal rows joined. `picture` is of
// 32 bits a pixel, or Alpha8; one without alpha is opaque throughout.
QRegion AlphaShape(const QImage& picture, int least);

// The part of a surface that is opaque and stays so, picture after picture. A movie tells nothing of its coming
// pictures, so it is what was opaque in all of them so far.
class LastingShape {
 public:
  // From the next picture on another file is shown: until `Settle`, the part can only become smaller.
  void Restart();
  void Take(const QImage& picture);
  // What has lasted since the restart is taken to go on so.
  void Settle() { isSettled_ = true; }
  QRegion Region();

 private:
  QImage least_;  // the least alpha of each pixel since the restart, as Alpha8; null before the first picture
  bool isSettled_ = false;
  QRegion region_;
};
