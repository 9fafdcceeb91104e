#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/qt/forms/Bindings.h"
#include "platform/qt/forms/Joint.h"

class Component;
class Form;
class MenuItem;
class QAction;
class QMenu;
class UserControl;

// Joins each control of a form with the widget that bears its name, and each menu entry with its action. A control
// without its widget works on unseen.
class Binder {
 public:
  Binder(Joint& joint, Form& form, const Surfaces& surfaces);

  // Null where the layout has none.
  QWidget* WidgetOf(const Control& control) const;

  // What does not fit between form and layout, in words: a control without a widget, a widget of the wrong class, a
  // named widget that is no control. Names that begin with "lay" are the layout's own.
  std::vector<std::string> Faults() const;

 private:
  // Joins controls with the widgets of a window, or of a control of the station's own.
  void BindScope(const std::vector<Control*>& controls, QWidget& scope);
  void BindAll(const std::vector<Control*>& controls, QWidget& scope, std::vector<UserControl*>& own);
  QWidget* Find(const Control& control, const Binding& binding, QWidget& scope);
  void BindCommon(Control& control, QWidget& widget);
  void FollowMeasures(Control& control, QWidget& widget);
  void BindEntry(MenuItem& entry);
  void BindSeparator(const Component& separator);
  QAction* ActionOf(const Component& entry);
  void AddStrangers(std::vector<std::string>& faults) const;
  void AddStrangers(const QMenu& menu, std::vector<std::string>& faults) const;

  Joint& joint_;
  Form& form_;
  const Surfaces& surfaces_;
  std::map<const Control*, QWidget*> widgets_;
  std::set<const QAction*> actions_;
  std::vector<std::string> faults_;
};
