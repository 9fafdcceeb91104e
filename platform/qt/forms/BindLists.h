#pragma once

#include "platform/qt/forms/DrawnView.h"
#include "platform/qt/forms/Joint.h"
#include "platform/qt/forms/NameView.h"
#include "platform/qt/forms/RowView.h"
#include "platform/toolkit/DrawnList.h"
#include "platform/toolkit/FileListBox.h"
#include "platform/toolkit/ListBox.h"
#include "platform/toolkit/ListView.h"

struct Surfaces;

// Join a list with its view, both ways.
void Bind(Joint& joint, FileListBox& control, NameView& widget, const Surfaces& surfaces);
void Bind(Joint& joint, ListBox& control, NameView& widget, const Surfaces& surfaces);

// The layout gives the view its column titles, sample texts for the widths, and the image list, as the string list
// properties `columnTitles`, `columnSamples` and `rowIcons` (names of kept icons).
void Bind(Joint& joint, ListView& control, RowView& widget, const Surfaces& surfaces);

// The images that its rows have by number are the layout's, as `rowIcons`.
void Bind(Joint& joint, DrawnList& control, DrawnView& widget, const Surfaces& surfaces);
