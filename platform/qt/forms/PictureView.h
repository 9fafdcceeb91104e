#pragma once

#include <QWidget>

#include "platform/qt/scene/PictureLoader.h"

// Shows a picture file whole, in its own proportions, as large as there is room and in the middle of it. It is decoded
// elsewhere; the former picture stands until then.
class PictureView : public QWidget {
 public:
  PictureView(PictureLoader& loader, QWidget* parent);

  // The file may have been written anew since it was shown last. The empty path shows nothing, and so does a file that
  // is no picture.
  void Show(const QString& path);

 protected:
  void paintEvent(QPaintEvent*) override;
  void resizeEvent(QResizeEvent*) override { Load(); }

 private:
  void Load();
  void Take(SharedPicture picture);

  PictureLoader& loader_;
  QString path_;
  QSize natural_;  // of the file's picture, as its header says; empty: it is none
  SharedPicture picture_;
  int wish_ = 0;  // counts the loads asked for; only the last one is shown
};
