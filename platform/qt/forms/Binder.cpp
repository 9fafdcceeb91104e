#include "platform/qt/forms/Binder.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QMenu>
#include <algorithm>
#include <set>

#include "platform/qt/OfKind.h"
#include "platform/qt/Pressed.h"
#include "platform/qt/forms/Texts.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/UserControl.h"

namespace {

// Where presses on a widget arrive.
QWidget& Ground(QWidget& widget) {
  auto* scrolled = qobject_cast<QAbstractScrollArea*>(&widget);
  return scrolled != nullptr ? *scrolled->viewport() : widget;
}

}  // namespace

Binder::Binder(Joint& joint, Form& form, const Surfaces& surfaces) : joint_(joint), form_(form), surfaces_(surfaces) {
  BindScope(form.Controls(), joint.Window());
  for (Component* component : form.Components()) {
    if (auto* entry = dynamic_cast<MenuItem*>(component)) BindEntry(*entry);
    if (auto* separator = dynamic_cast<MenuSeparator*>(component)) BindSeparator(*separator);
  }
}

QAction* Binder::ActionOf(const Component& entry) {
  auto* action = joint_.Window().findChild<QAction*>(Shown(entry.Name()));
  if (auto* menu = joint_.Window().findChild<QMenu*>(Shown(entry.Name()))) action = menu->menuAction();
  if (action == nullptr) faults_.push_back(entry.Name() + ": missing in the layout");
  actions_.insert(action);
  return action;
}

void Binder::BindSeparator(const Component& separator) {
  if (QAction* action = ActionOf(separator)) action->setSeparator(true);
}

void Binder::BindEntry(MenuItem& entry) {
  QAction* action = ActionOf(entry);
  if (action == nullptr) return;
  joint_.Follow(entry.Enabled.Changed, [&entry, action] { action->setEnabled(entry.Enabled); });
  joint_.Follow(entry.Checked.Changed, [&entry, action] {
    if (entry.Checked) action->setCheckable(true);
    action->setChecked(entry.Checked);
  });
  joint_.On(action, &QAction::triggered, [&entry, action](bool) {
    action->setChecked(entry.Checked);  // the tick is the form's to set
    entry.Choose();
  });
}

// What stands inside a control of the station's own comes last: until then no name is there twice.
void Binder::BindScope(const std::vector<Control*>& controls, QWidget& scope) {
  std::vector<UserControl*> own;
  BindAll(controls, scope, own);
  for (UserControl* control : own) {
    QWidget& widget = *widgets_[control];
    OfKind(Bindings(), *control)->bind(joint_, *control, widget, surfaces_);
    BindScope(control->Children(), widget);
  }
}

void Binder::BindAll(const std::vector<Control*>& controls, QWidget& scope, std::vector<UserControl*>& own) {
  for (Control* control : controls) {
    const Binding* binding = OfKind(Bindings(), *control);
    if (binding == nullptr) faults_.push_back(control->Name() + ": no widget shows a " + std::string(control->Kind()));
    QWidget* widget = binding == nullptr ? nullptr : Find(*control, *binding, scope);
    auto* made = dynamic_cast<UserControl*>(control);
    if (widget != nullptr) {
      widgets_[control] = widget;
      BindCommon(*control, *widget);
      // In a window the layout has its own measures.
      if (&scope != &joint_.Window() && widget->parentWidget()->layout() == nullptr) FollowMeasures(*control, *widget);
      made != nullptr ? own.push_back(made) : binding->bind(joint_, *control, *widget, surfaces_);
    }
    if (made == nullptr) BindAll(control->Children(), scope, own);
  }
}

QWidget* Binder::Find(const Control& control, const Binding& binding, QWidget& scope) {
  auto* widget = scope.findChild<QWidget*>(Shown(control.Name()));
  if (widget == nullptr) {
    faults_.push_back(control.Name() + ": missing in the layout");
  } else if (!widget->metaObject()->inherits(binding.widget)) {
    faults_.push_back(control.Name() + ": is a " + widget->metaObject()->className() + " and should be a " +
                      binding.widget->className());
    return nullptr;
  }
  return widget;
}

void Binder::FollowMeasures(Control& control, QWidget& widget) {
  const auto place = [&control, &widget] {
    widget.setGeometry(ToPixels(control.Left), ToPixels(control.Top), std::max(ToPixels(control.Width), 0),
                       std::max(ToPixels(control.Height), 0));
  };
  for (Property<Twips>* measure : {&control.Left, &control.Top, &control.Width, &control.Height}) {
    joint_.Follow(measure->Changed, place);
  }
}

void Binder::BindCommon(Control& control, QWidget& widget) {
  joint_.Follow(control.Enabled.Changed, [&control, &widget] { widget.setEnabled(control.Enabled); });
  // A widget that is shown before its parent is would be a window of its own for a moment.
  if (!control.Visible) widget.hide();
  joint_.Watch(control.Visible.Changed, [&control, &widget] { widget.setVisible(control.Visible); });
  joint_.OnEvents(&Ground(widget), [&control](QEvent& event) {
    if (const auto button = Pressed(event)) control.PressMouse(*button);
    if (const auto button = Released(event)) control.ReleaseMouse(*button);
    return false;
  });
}

QWidget* Binder::WidgetOf(const Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

std::vector<std::string> Binder::Faults() const {
  std::vector<std::string> faults = faults_;
  AddStrangers(faults);
  return faults;
}

void Binder::AddStrangers(std::vector<std::string>& faults) const {
  std::set<const QWidget*> bound;
  for (const auto& [control, widget] : widgets_) bound.insert(widget);
  for (const QWidget* widget : joint_.Window().findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    const bool innards = name.startsWith("qt_") || widget->parentWidget()->inherits("QTabBar");
    if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
      // A nameless one is the bar's own, for what does not fit.
      if (!name.isEmpty()) AddStrangers(*menu, faults);
      continue;
    }
    if (name.isEmpty() || name.startsWith("lay") || innards || bound.contains(widget)) continue;
    faults.push_back(Stored(name) + ": in the layout, and no control of the form");
  }
}

void Binder::AddStrangers(const QMenu& menu, std::vector<std::string>& faults) const {
  const auto check = [&](const QAction* action, const QString& name) {
    if (!actions_.contains(action)) faults.push_back(Stored(name) + ": in the menu, and no entry of the form");
  };
  check(menu.menuAction(), menu.objectName());
  for (QAction* action : menu.actions()) {
    // A menu inside is looked at by itself.
    if (!action->isSeparator() && action->menu() == nullptr) check(action, action->objectName());
  }
}
