#pragma once

#include <QLineEdit>
#include <QStyledItemDelegate>

// Whether a text is a path: such a text, where it does not fit, loses its beginning and not its file name.
bool IsPath(const QString& text);

// A field that shows the end of a path that does not fit, unless it is being typed into. Its tool tip has it whole.
class PathField : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect Room() const;
  bool Shortened() const;
};

// The same for the cells of a list; their tool tips are the model's.
class PathDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
