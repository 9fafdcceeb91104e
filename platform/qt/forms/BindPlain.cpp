#include "platform/qt/forms/BindPlain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/qt/forms/BindPictures.h"
#include "platform/qt/forms/Bindings.h"
#include "platform/qt/forms/Paint.h"
#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Icons.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/toolkit/Form.h"

namespace {

// A layout's own text stands until the program sets another one.
void FollowText(Joint& joint, Property<std::string>& text, const QString& laid,
                std::function<void(const QString&)> show) {
  if (text.Get().empty()) text = Stored(laid);
  joint.Follow(text.Changed, [&text, show] { show(Shown(text)); });
}

void IgnoreWheelWithoutFocus(Joint& joint, QWidget& widget) {
  widget.setFocusPolicy(Qt::StrongFocus);
  joint.OnEvents(&widget, [&widget](QEvent& event) {
    if (event.type() != QEvent::Wheel || widget.hasFocus()) return false;
    event.ignore();
    return true;
  });
}

QDateTime Shown(const DateTime& value) {
  return QDateTime(QDate(value.year, value.month, value.day),
                   QTime(value.hour, value.minute, value.second, value.millisecond));
}

DateTime Stored(const QDateTime& shown) {
  const QDate date = shown.date();
  const QTime time = shown.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second(), time.msec()};
}

}  // namespace

void Bind(Joint& joint, Label& control, QLabel& widget, const Surfaces&) {
  widget.setTextFormat(Qt::PlainText);
  FollowText(joint, control.Caption, widget.text(), [&widget](const QString& text) { widget.setText(text); });
}

void Bind(Joint& joint, Frame& control, QGroupBox& widget, const Surfaces&) {
  // A name in the title may hold an ampersand; it is no mnemonic.
  FollowText(joint, control.Caption, widget.title(),
             [&widget](const QString& text) { widget.setTitle(QString(text).replace("&", "&&")); });
}

void Bind(Joint& joint, CommandButton& control, QPushButton& widget, const Surfaces&) {
  FollowText(joint, control.Caption, widget.text(), [&widget](const QString& text) { widget.setText(text); });
  joint.Watch(control.Picture.Changed,
              [&] { widget.setIcon(IconOf(Shown(control.Owner().Name()), Shown(control.Picture))); });
  joint.On(&widget, &QPushButton::clicked, [&control](bool) { control.Press(); });
}

void Bind(Joint& joint, CheckBox& control, QCheckBox& widget, const Surfaces&) {
  joint.Follow(control.Value.Changed, [&] { widget.setChecked(control.Ticked()); });
  joint.On(&widget, &QCheckBox::clicked, [&control](bool) { control.Toggle(); });
}

void Bind(Joint& joint, TextBox& control, QLineEdit& widget, const Surfaces&) {
  FollowText(joint, control.Text, widget.text(), [&widget](const QString& text) {
    if (text == widget.text()) return;  // typed just now: the caret stays
    const int caret = widget.cursorPosition();
    widget.setText(text);
    widget.setCursorPosition(widget.hasFocus() ? caret : 0);
  });
  joint.On(&widget, &QLineEdit::textEdited, [&control](const QString& text) { control.Type(Stored(text)); });
}

// Qt takes a field that is left for a choice when its text is not that of the present item. Before anything is typed it
// is, so that only what was typed is a choice.
void FindPresentItem(QComboBox& widget) {
  const QString text = widget.currentText();
  const QSignalBlocker silent(widget);
  widget.setCurrentIndex(widget.findText(text));
  widget.setEditText(text);
}

void Bind(Joint& joint, ComboBox& control, QComboBox& widget, const Surfaces&) {
  widget.setInsertPolicy(QComboBox::NoInsert);
  if (widget.isEditable()) widget.setCompleter(nullptr);  // the text stays as it was typed
  IgnoreWheelWithoutFocus(joint, widget);
  if (control.Text.Get().empty()) control.Text = Stored(widget.currentText());
  const auto show = [&] {
    const QString text = Shown(control.Text);
    const int index = control.ListIndex;
    if (index >= 0 && index < widget.count()) widget.setCurrentIndex(index);
    if (text == widget.currentText()) return;
    if (widget.isEditable()) {
      widget.setEditText(text);
    } else {
      widget.setCurrentIndex(text.isEmpty() ? -1 : widget.findText(text));
    }
  };
  // Items join at the end, many at a time one by one, or go all at once.
  joint.Follow(control.ItemsChanged, [&, show] {
    if (control.ListCount() < widget.count()) widget.clear();
    for (int index = widget.count(); index < control.ListCount(); ++index) widget.addItem(Shown(control.List(index)));
    show();
  });
  joint.Watch(control.Text.Changed, show);
  joint.Watch(control.ListIndex.Changed, show);
  joint.On(&widget, &QComboBox::activated, [&control](int index) { control.Pick(index); });
  if (widget.lineEdit() != nullptr) {
    widget.lineEdit()->setAccessibleName(widget.accessibleName());  // the box itself is told by what it holds
    joint.On(widget.lineEdit(), &QLineEdit::textEdited,
             [&control](const QString& text) { control.Type(Stored(text)); });
    joint.OnEvents(&widget, [&widget](QEvent& event) {
      if (event.type() == QEvent::FocusIn) FindPresentItem(widget);
      return false;
    });
  }
}

void Bind(Joint& joint, Slider& control, SeekSlider& widget, const Surfaces&) {
  const auto show = [&] { widget.Show(control.Min, control.Max, control.Value); };
  for (Property<int>* property : {&control.Min, &control.Max, &control.Value}) joint.Follow(property->Changed, show);
  joint.Follow(control.LargeChange.Changed, [&] { widget.SetLargeChange(control.LargeChange); });
  joint.On(&widget, &SeekSlider::worked, [&control](int value) { control.Work(value); });
  joint.On(&widget, &SeekSlider::moved, [&control](int value) { control.Move(value); });
  joint.On(&widget, &SeekSlider::letGo, [&control](int value) { control.LetGo(value); });
}

void Bind(Joint& joint, DatePicker& control, QDateTimeEdit& widget, const Surfaces&) {
  IgnoreWheelWithoutFocus(joint, widget);
  joint.Follow(control.Value.Changed, [&] {
    const QSignalBlocker silent(widget);
    widget.setDateTime(Shown(control.Value.Get()));
  });
  joint.On(&widget, &QDateTimeEdit::dateTimeChanged,
           [&control](const QDateTime& shown) { control.Value = Stored(shown); });
}

void Bind(Joint& joint, ColourPanel& control, QFrame& widget, const Surfaces&) {
  joint.Follow(control.BackColor.Changed, [&] { Paint(widget, control.BackColor); });
}

void Bind(Joint& joint, PlayerControl& control, QWidget& widget, const Surfaces& surfaces) {
  ShowFrames(joint, dynamic_cast<ShowsFrames*>(control.Platform()), widget, surfaces);
}
