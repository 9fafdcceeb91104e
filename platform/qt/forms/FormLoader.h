#pragma once

#include <QString>
#include <memory>

class QWidget;

// Builds the widgets of a layout file. List views and sliders in it become the station's own, which know what counts
// as a click. Null, with a warning on the standard error, when there is no such file or it is no layout.
std::unique_ptr<QWidget> LoadLayout(const QString& file);

// Where a form's layout file is among the resources.
QString LayoutFile(const QString& formName);
// The same of a control of the station's own.
QString ControlLayoutFile(const QString& controlName);
