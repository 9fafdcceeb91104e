#pragma once

#include <QSlider>

// A slider that goes where it is pressed, with any button, and follows until the button is let go. With a large change
// it is one that is moved in steps: a press beside the thumb and the page keys move it by so much, the arrow keys by
// one, and only the left button takes hold of it. What the program sets meanwhile does not move it under the finger.
// The wheel is ignored: nobody seeks on the air by scrolling past.
class SeekSlider : public QSlider {
  Q_OBJECT

 public:
  explicit SeekSlider(QWidget* parent = nullptr);

  // Where the program wants it.
  void Show(int minimum, int maximum, int value);
  // 0: it goes where it is pressed.
  void SetLargeChange(int change);

 signals:
  // Without a large change: the operator has pressed, dragged or let go, or moved it by key.
  void worked(int value);
  // With one: the operator has moved it; and has let go of it, or of the key that moved it.
  void moved(int value);
  void letGo(int value);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  int ValueAt(const QMouseEvent& event) const;
  void EndKeys();

  int largeChange_ = 0;
  bool held_ = false;
  bool following_ = false;   // the program moves it, not the operator
  bool movedByKey_ = false;  // and the key is not let go yet
};
