#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QTimer>
#include <functional>
#include <memory>

class QQmlEngine;
class QUrl;

// A view of the browser in a window that is never shown. It is painted into a picture whenever it changes, 60 times a
// second at most.
class UnseenView {
 public:
  static constexpr int kBetweenPaintings = 16;  // milliseconds

  // The view is made of the QML at that address, with these properties; without one the program ends. `paint` is called
  // each time that it is due to be painted.
  UnseenView(QQmlEngine& engine, const QUrl& qml, const QVariantMap& properties, std::function<void()> paint);

  QQuickItem& Item() { return *item_; }
  // What takes the mouse and the keys.
  QQuickWindow& Window() { return *window_; }

  QSize Size() const { return picture_.size(); }
  void Resize(QSize pixels);
  // It is due to be painted, as if it had changed.
  void Ask();
  // Brings the picture up to date, where the view has changed. False while there is no renderer, whose view is blank
  // before anybody is told: the picture stays as it was.
  bool Paint();
  // Premultiplied.
  const QImage& Picture() const { return picture_; }

 private:
  QQuickRenderControl control_;
  QImage picture_;
  std::unique_ptr<QQuickWindow> window_;
  QTimer due_;
  QElapsedTimer sincePainted_;
  std::unique_ptr<QQuickItem> item_;  // behind all that it may still ask for when it ends
};
