#include "platform/qt/scene/SceneItems.h"

#include "platform/qt/scene/FrameItem.h"
#include "platform/qt/scene/PageItem.h"
#include "platform/qt/scene/PaneItem.h"
#include "platform/qt/scene/TextItem.h"
#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/PlayerControl.h"

namespace {

template <class ControlClass, class ItemClass>
constexpr SceneItem Row(std::string_view kind) {
  return {kind, [](Control& control, QQuickItem& parent, Scene& scene) -> ControlItem* {
            return new ItemClass(static_cast<ControlClass&>(control), parent, scene);
          }};
}

constexpr SceneItem kSceneItems[] = {
    Row<PictureBox, PaneItem>("PictureBox"),        Row<PaneText, TextItem>("PaneText"),
    Row<FlashBox, FlashItem>("FlashBox"),           Row<BrowserControl, PageItem>("BrowserControl"),
    Row<PlayerControl, MediaItem>("PlayerControl"),
};

}  // namespace

std::span<const SceneItem> SceneItems() { return kSceneItems; }
