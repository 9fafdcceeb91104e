#include "platform/qt/forms/Bindings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>

#include "platform/qt/forms/BindLists.h"
#include "platform/qt/forms/BindPage.h"
#include "platform/qt/forms/BindPictures.h"
#include "platform/qt/forms/BindPlain.h"
#include "platform/qt/forms/BindStatusBar.h"
#include "platform/qt/forms/BindUserControl.h"

namespace {

template <class ControlClass, class WidgetClass>
constexpr Binding Row(std::string_view kind) {
  return {kind, &WidgetClass::staticMetaObject,
          [](Joint& joint, Control& control, QWidget& widget, const Surfaces& surfaces) {
            Bind(joint, static_cast<ControlClass&>(control), static_cast<WidgetClass&>(widget), surfaces);
          }};
}

constexpr Binding kBindings[] = {
    Row<Label, QLabel>("Label"),
    Row<Frame, QGroupBox>("Frame"),
    Row<CommandButton, QPushButton>("CommandButton"),
    Row<CheckBox, QCheckBox>("CheckBox"),
    Row<TextBox, QLineEdit>("TextBox"),
    Row<ComboBox, QComboBox>("ComboBox"),
    Row<Slider, SeekSlider>("Slider"),
    Row<DatePicker, QDateTimeEdit>("DatePicker"),
    Row<ColourPanel, QFrame>("ColourPanel"),
    Row<PictureBox, QFrame>("PictureBox"),
    Row<FlashBox, QFrame>("FlashBox"),
    Row<BrowserControl, QFrame>("BrowserControl"),
    Row<UserControl, QFrame>("UserControl"),
    Row<StatusBar, QStatusBar>("StatusBar"),
    Row<PlayerControl, QWidget>("PlayerControl"),
    Row<FileListBox, NameView>("FileListBox"),
    Row<ListBox, NameView>("ListBox"),
    Row<ListView, RowView>("ListView"),
    Row<DrawnList, DrawnView>("DrawnList"),
};

}  // namespace

std::span<const Binding> Bindings() { return kBindings; }
