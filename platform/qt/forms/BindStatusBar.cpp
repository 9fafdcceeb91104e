#include "platform/qt/forms/BindStatusBar.h"

#include <QGridLayout>
#include <QLabel>
#include <QStatusBar>
#include <vector>

#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Look.h"

namespace {

void Show(const StatusBar::Panel& panel, QLabel& field) {
  field.setText(Shown(panel.text));
  switch (panel.lamp) {
    case StatusBar::Lamp::kNone:
      return;
    case StatusBar::Lamp::kOff:
      return Light(field, Lamp::kOff);
    case StatusBar::Lamp::kOn:
      return Light(field, Lamp::kOn);
    case StatusBar::Lamp::kOnAir:
      return Light(field, Lamp::kOnAir);
  }
}

// Side by side along the lower edge: the first one as wide as its text, the others share the rest.
void LayInARow(QStatusBar& bar, const std::vector<QLabel*>& fields) {
  for (QLabel* field : fields) bar.addWidget(field, field == fields.front() ? 0 : 1);
}

// As a board of large lamps under the first panel, to be read from across the room.
void LayAsABoard(QStatusBar& bar, const std::vector<QLabel*>& fields) {
  constexpr int kColumns = 4;
  auto* board = new QWidget(&bar);
  auto* grid = new QGridLayout(board);
  grid->setSpacing(kSpaceAround);
  grid->setContentsMargins(kSpaceAround, kSpaceAround, kSpaceAround, kSpaceAround);
  for (int at = 0; QLabel * field : fields) {
    field->setAlignment(Qt::AlignCenter);
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    if (at == 0) {
      field->setProperty("look", "title");
      grid->addWidget(field, 0, 0, 1, kColumns);
    } else {
      grid->addWidget(field, 1 + (at - 1) / kColumns, (at - 1) % kColumns);
    }
    ++at;
  }
  bar.setSizeGripEnabled(false);
  bar.addWidget(board, 1);
}

}  // namespace

void Bind(Joint& joint, StatusBar& control, QStatusBar& widget, const Surfaces&) {
  std::vector<QLabel*> fields;
  for (int index = 1; index <= control.Count(); ++index) {
    auto* field = new QLabel(&widget);
    field->setTextFormat(Qt::PlainText);
    fields.push_back(field);
  }
  if (widget.property("look") == "board") {
    LayAsABoard(widget, fields);
  } else {
    LayInARow(widget, fields);
  }
  const auto show = [&control, fields](int index) {
    Show(control.PanelAt(index), *fields[static_cast<std::size_t>(index) - 1]);
  };
  for (int index = 1; index <= control.Count(); ++index) show(index);
  joint.Watch(control.PanelChanged, show);
}
