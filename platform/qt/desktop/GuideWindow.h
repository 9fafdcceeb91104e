#pragma once

#include <QImage>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QTextBrowser>

// The operator guide, out of the program's own resources, in a window. Its pictures are decoded elsewhere than on the
// station's thread, and the window stands as soon as they are there.
class GuideWindow : public QObject {
 public:
  ~GuideWindow() override;

  // Brings the window forward where it stands already.
  void Show();

 private:
  void Open(const QMap<QString, QImage>& pictures);

  QPointer<QTextBrowser> window_;
  bool loading_ = false;
};
