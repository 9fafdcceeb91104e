#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

// A list with columns as the station means it. A click (press and release of the left button on one row, also on a row
// that is selected already, or on the empty ground) counts as a click; the right button, a drag over several rows and
// the arrow keys only select; Enter and Space click what is selected. The second half of a double click is no click.
class RowView : public QTreeView {
  Q_OBJECT

 public:
  explicit RowView(QWidget* parent = nullptr);

  // Lets the columns of the model take the widths of the texts in the property `columnSamples`; the last one stretches.
  void SizeColumns();

 signals:
  // Row from 0; -1 for a click that keeps what is selected (with Ctrl or Shift, on the empty ground, by key).
  void clickedRow(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPersistentModelIndex pressed_;
  bool clicking_ = false;
};
