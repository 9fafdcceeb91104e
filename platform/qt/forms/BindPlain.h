#pragma once

#include "platform/qt/forms/Joint.h"
#include "platform/qt/forms/SeekSlider.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/PlayerControl.h"
#include "platform/toolkit/Widgets.h"

class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
struct Surfaces;

// Join a plain control with its widget, both ways. A text that the control does not have yet is taken from the layout.
void Bind(Joint& joint, Label& control, QLabel& widget, const Surfaces& surfaces);
void Bind(Joint& joint, Frame& control, QGroupBox& widget, const Surfaces& surfaces);
void Bind(Joint& joint, CommandButton& control, QPushButton& widget, const Surfaces& surfaces);
void Bind(Joint& joint, CheckBox& control, QCheckBox& widget, const Surfaces& surfaces);
void Bind(Joint& joint, TextBox& control, QLineEdit& widget, const Surfaces& surfaces);
void Bind(Joint& joint, ComboBox& control, QComboBox& widget, const Surfaces& surfaces);
void Bind(Joint& joint, Slider& control, SeekSlider& widget, const Surfaces& surfaces);
void Bind(Joint& joint, DatePicker& control, QDateTimeEdit& widget, const Surfaces& surfaces);
void Bind(Joint& joint, ColourPanel& control, QFrame& widget, const Surfaces& surfaces);
void Bind(Joint& joint, PlayerControl& control, QWidget& widget, const Surfaces& surfaces);
