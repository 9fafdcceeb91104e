#pragma once

#include <algorithm>
#include <ranges>

#include "platform/toolkit/Control.h"

// The row of a table that has one a kind of control, its name under `kind`; null where the table has none for this
// control. Widgets and items of the scene are both found so.
template <std::ranges::contiguous_range Table>
const std::ranges::range_value_t<Table>* OfKind(const Table& table, const Control& control) {
  const auto row = std::ranges::find(table, control.Kind(), &std::ranges::range_value_t<Table>::kind);
  return row == std::ranges::end(table) ? nullptr : &*row;
}
