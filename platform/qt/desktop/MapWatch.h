#pragma once

#include <QObject>
#include <QTimer>

class QWindow;

// A window comes on the screen by a request to the window manager. One that is just starting, or ending, may lose it,
// and the window would stay away for good: at a log-on both come up in the same moment. While this stands the request
// is made again until the window is there. Does nothing without X.
class MapWatch : public QObject {
 public:
  enum class Until {
    kSeen,  // what takes it off the screen afterwards is the operator's wish
    kHidden,
  };
  // The window outlives it.
  MapWatch(QWindow& window, Until until);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool IsMissing() const;
  void Look();

  QWindow& window_;
  const Until until_;
  bool wasSeen_ = false;  // since it was shown
  QTimer due_;
};
