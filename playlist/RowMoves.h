#pragma once

#include "platform/toolkit/ListView.h"

enum class RowMove { kUp, kDown, kTop, kBottom };

// Moves the selected rows of a list one place up or down, or to an end; they stay selected. A selected block that
// stands at the edge already stays there. To an end, a block of several rows comes out in reverse order.
void MoveSelectedRows(ListView& list, RowMove move);
