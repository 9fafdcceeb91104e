#pragma once

#include <QSlider>

// A slider that goes where it is pressed, with any button, and follows until the button is let go. What the program
// sets meanwhile does not move it under the finger. The wheel is ignored: nobody seeks on the air by scrolling past.
class SeekSlider : public QSlider {
  Q_OBJECT

 public:
  explicit SeekSlider(QWidget* parent = nullptr);

  // Where the program wants it.
  void Show(int minimum, int maximum, int value);

 signals:
  // The operator has pressed, dragged or let go, or moved it by key.
  void worked(int value);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  int ValueAt(const QMouseEvent& event) const;

  bool held_ = false;
};
