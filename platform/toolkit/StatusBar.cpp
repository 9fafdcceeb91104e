#include "platform/toolkit/StatusBar.h"

#include "platform/toolkit/Failure.h"

StatusBar::StatusBar(Form& form, std::string name, int panels)
    : Control(form, std::move(name)), panels_(static_cast<std::size_t>(panels)) {}

const StatusBar::Panel& StatusBar::PanelAt(int index) const {
  if (index < 1 || index > Count()) throw Failure("There is no such panel in " + Name() + ".");
  return panels_[static_cast<std::size_t>(index) - 1];
}

void StatusBar::SetPanel(int index, const std::string& text, Lamp lamp) {
  const Panel panel{text, lamp};
  if (PanelAt(index) == panel) return;
  panels_[static_cast<std::size_t>(index) - 1] = panel;
  PanelChanged.Raise(index);
}
