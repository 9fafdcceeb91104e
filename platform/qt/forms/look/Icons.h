#pragma once

#include <QIcon>
#include <QString>
#include <QStyle>
#include <span>

// Which icon a control bears. Entries that show a tick have none: the tick is their mark.
struct IconRow {
  const char* form;  // empty: on every form without a row of its own for the control
  const char* control;
  const char* icon;  // by its name in the kept set
};
std::span<const IconRow> ControlIcons();

// An icon of the kept set; null for a name that no table gives.
QIcon KeptIcon(const QString& name);
// The icon of a control; members of a control array (`mnuSWF_0`) have their array's. Null for one without.
QIcon IconOf(const QString& form, const QString& control);
// The icon of a file, by its ending.
QIcon FileIcon(const QString& file);
// The icon of a place that holds files.
enum class Place { kFolder, kDrive };
QIcon PlaceIcon(Place place);
// The icon that a box or its buttons bear; null where Qt's own stands.
QIcon BoxIcon(QStyle::StandardPixmap meaning);
