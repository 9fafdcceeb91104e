#pragma once

#include <span>
#include <string_view>

#include "platform/qt/scene/Scene.h"

class Control;
class ControlItem;
class QQuickItem;

// How one kind of control is painted on the air. A new kind is one more line in the table.
struct SceneItem {
  std::string_view kind;
  ControlItem* (*make)(Control& control, QQuickItem& parent, Scene& scene);  // `parent` owns what it gives
};

std::span<const SceneItem> SceneItems();
