#include "platform/qt/forms/BindStatusBar.h"

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

}  // namespace

void Bind(Joint& joint, StatusBar& control, QStatusBar& widget, const Surfaces&) {
  std::vector<QLabel*> fields;
  for (int index = 1; index <= control.Count(); ++index) {
    auto* field = new QLabel(&widget);
    field->setTextFormat(Qt::PlainText);
    widget.addWidget(field, index == 1 ? 0 : 1);
    fields.push_back(field);
  }
  const auto show = [&control, fields](int index) {
    Show(control.PanelAt(index), *fields[static_cast<std::size_t>(index) - 1]);
  };
  for (int index = 1; index <= control.Count(); ++index) show(index);
  joint.Watch(control.PanelChanged, show);
}
