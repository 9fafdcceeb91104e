#pragma once

#include <QListView>
#include <QPersistentModelIndex>

#include "platform/toolkit/DrawnList.h"

class DrawnModel;
class PictureLoader;
class PictureView;

// The view of a drawn list. It selects nothing itself: it tells what the operator does and draws what the list says.
// Press and release on one row are a click, and so are Enter and the blank; the second half of a double click is none.
class DrawnView : public QListView {
  Q_OBJECT

 public:
  explicit DrawnView(QWidget* parent = nullptr);

  // Draws this list from now on, which must outlast it or be forgotten. Without a loader it has no picture behind it.
  void Draw(const DrawnList& list, DrawnModel& model, PictureLoader* pictures);
  void Forget();
  // The look of the list has changed.
  void TakeLook();

  int RowsOnPage() const;

 signals:
  void pressedRow(int row, DrawnList::Held held);  // from 0
  void keyed(DrawnList::Key key);
  void clickedRows();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  const DrawnList* list_ = nullptr;
  PictureView* behind_ = nullptr;  // the rows
  QPersistentModelIndex pressed_;
};
