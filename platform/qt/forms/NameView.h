#pragma once

#include <QListView>
#include <QPersistentModelIndex>

// A plain list of names: a click on one picks it, also when it is selected already, and so does moving to it by key.
// The second half of a double click picks nothing: it tells of the double click.
class NameView : public QListView {
  Q_OBJECT

 public:
  explicit NameView(QWidget* parent = nullptr);

 signals:
  void picked(int row);  // from 0
  void doubled();        // a double click on the row that its first half has picked
  // The pointer left the row that it had pressed: nothing is picked, and the view shows a row that nobody chose.
  void strayed();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPersistentModelIndex pressed_;
};
