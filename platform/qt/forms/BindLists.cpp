#include "platform/qt/forms/BindLists.h"

#include <QItemSelection>
#include <QSignalBlocker>
#include <memory>

#include "platform/qt/forms/Bindings.h"
#include "platform/qt/forms/DrawnPaint.h"
#include "platform/qt/forms/NameModel.h"
#include "platform/qt/forms/RowModel.h"
#include "platform/qt/forms/look/Icons.h"
#include "platform/toolkit/Form.h"

namespace {

constexpr auto kWholeRow = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

QItemSelection SelectedRows(const ListView& control, const QAbstractItemModel& model) {
  QItemSelection selection;
  int first = 0;  // of the run of selected rows that ends before `index`; 0 outside one
  for (int index = 1; index <= control.Count() + 1; ++index) {
    const bool selected = index <= control.Count() && control.Row(index).selected;
    if (selected && first == 0) first = index;
    if (!selected && first != 0) {
      selection.select(model.index(first - 1, 0), model.index(index - 2, model.columnCount() - 1));
      first = 0;
    }
  }
  return selection;
}

void ShowSelection(const ListView& control, RowView& view) {
  QItemSelectionModel& selection = *view.selectionModel();
  selection.select(SelectedRows(control, *view.model()), kWholeRow);
  const QModelIndex current = view.model()->index(control.SelectedItem() - 1, 0);
  if (current.isValid()) selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

void TellSelection(ListView& control, const RowView& view) {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row + 1);
  }
  const QModelIndex current = view.currentIndex();
  const bool currentSelected = current.isValid() && view.selectionModel()->isRowSelected(current.row());
  const int last = rows.empty() ? 0 : rows.back();
  control.SelectRows(rows, currentSelected ? current.row() + 1 : last);
}

// The view and the control set each other; while one leads the other only follows.
class Leading {
 public:
  explicit Leading(bool& led) : led_(led), before_(led) { led_ = true; }
  ~Leading() { led_ = before_; }

 private:
  bool& led_;
  bool before_;
};

std::vector<QIcon> Icons(const QWidget& widget) {
  std::vector<QIcon> icons;
  for (const QString& name : widget.property("rowIcons").toStringList()) icons.push_back(KeptIcon(name));
  return icons;
}

void BindNames(Joint& joint, NameList& control, NameModel::Icons icons, NameView& widget) {
  auto* model = new NameModel(control, icons, &widget);
  widget.setModel(model);
  joint.AtEnd([model] { model->Forget(); });
  const auto show = [&control, &widget, model] {
    const QModelIndex index = model->index(control.ListIndex, 0);
    if (index.isValid()) {
      widget.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    } else {
      widget.selectionModel()->clear();
    }
  };
  joint.Watch(control.ItemsChanged, [model, show] {
    model->Refill();
    show();
  });
  joint.Follow(control.ListIndex.Changed, show);
  joint.On(&widget, &NameView::picked, [&control](int row) { control.Pick(row); });
  joint.On(&widget, &NameView::strayed, show);
}

}  // namespace

void Bind(Joint& joint, ListView& control, RowView& widget, const Surfaces&) {
  auto* model = new RowModel(control, widget.property("columnTitles").toStringList(), Icons(widget), &widget);
  widget.setModel(model);
  widget.SizeColumns();
  const auto led = std::make_shared<bool>(false);
  joint.AtEnd([model] { model->Forget(); });
  joint.Watch(control.Changed, [&control, &widget, model, led](const ListChange& change) {
    if (*led && change.what == ListChange::What::kSelection) return;
    const Leading leading(*led);
    model->Follow(change);
    if (change.what == ListChange::What::kEnsureVisible) {
      widget.scrollTo(model->index(change.index - 1, 0));
    } else if (change.what != ListChange::What::kInserted || control.Row(change.index).selected) {
      ShowSelection(control, widget);
    }
  });
  ShowSelection(control, widget);
  joint.On(widget.selectionModel(), &QItemSelectionModel::selectionChanged,
           [&control, &widget, led](const QItemSelection&, const QItemSelection&) {
             if (*led) return;
             const Leading leading(*led);
             TellSelection(control, widget);
           });
  joint.On(&widget, &RowView::clickedRow, [&control](int row) {
    if (row >= 0) {
      control.ClickRow(row + 1);
    } else {
      control.ClickBesideRows();
    }
  });
}

void Bind(Joint& joint, FileListBox& control, NameView& widget, const Surfaces&) {
  BindNames(joint, control, NameModel::Icons::kFiles, widget);
}

void Bind(Joint& joint, ListBox& control, NameView& widget, const Surfaces&) {
  BindNames(joint, control, NameModel::Icons::kNone, widget);
  joint.On(&widget, &NameView::doubled, [&control] { control.DoubleClick(); });
}

void Bind(Joint& joint, DrawnList& control, DrawnView& widget, const Surfaces& surfaces) {
  auto* model = new DrawnModel(&widget);
  widget.setItemDelegate(new DrawnDelegate(control, Icons(widget), &widget));
  widget.Draw(control, *model, surfaces.pictures);
  joint.AtEnd([&widget] { widget.Forget(); });
  joint.Follow(control.Redraw, [&control, &widget, model] {
    model->Take(control.Rows());
    widget.setCurrentIndex(model->index(control.CurrentRow()));
  });
  joint.Watch(control.LookChanged, [&widget] { widget.TakeLook(); });
  joint.Watch(control.ImageList.Changed, [&widget] { widget.viewport()->update(); });
  joint.Watch(control.RowWanted, [&widget, model](int row) { widget.scrollTo(model->index(row)); });
  joint.On(&widget, &DrawnView::pressedRow, [&control](int row, DrawnList::Held held) { control.PressRow(row, held); });
  joint.On(&widget, &DrawnView::keyed,
           [&control, &widget](DrawnList::Key key) { control.PressKey(key, widget.RowsOnPage()); });
  joint.On(&widget, &DrawnView::clickedRows, [&control] { control.ClickRows(); });
}
