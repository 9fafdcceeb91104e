#include "platform/qt/scene/PaneItem.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

namespace {

QColor ColourOf(const PictureBox& pane) {
  const Colour colour = pane.BackColor.Get().fixed;
  return pane.SeeThrough ? QColor(Qt::transparent) : QColor(colour.red, colour.green, colour.blue);
}

}  // namespace

PaneItem::PaneItem(PictureBox& pane, QQuickItem& parent, Scene& scene)
    : ControlItem(pane, parent), pane_(&pane), scene_(scene), colour_(ColourOf(pane)) {
  setClip(true);
  const auto paint = [this] {
    colour_ = ColourOf(*pane_);
    update();
  };
  Follow(pane.BackColor, paint);
  Follow(pane.SeeThrough, paint);
  Follow(pane.Picture, [this] { LoadPicture(); });
  if (!pane.Picture.Get().path.empty()) LoadPicture();
}

void PaneItem::Detach() {
  pane_ = nullptr;
  ControlItem::Detach();
}

// The former picture stays until the new one is decoded, and for good where nothing of that can be. Of two loads in a
// row the later one counts, whichever is ready first.
void PaneItem::LoadPicture() {
  const LoadedPicture wanted = pane_->Picture;
  load_ = wanted.load;
  if (wanted.load == shown_) return;  // it has fallen back to what is shown
  const auto show = [this, load = wanted.load, clears = wanted.path.empty()](SharedPicture picture) {
    if (load != load_) return;
    const bool shows = picture || clears;
    if (shows) shown_ = load;
    if (shows && picture != picture_) {
      picture_ = std::move(picture);
      pictureIsNew_ = true;
      update();
    }
    if (pane_ != nullptr) pane_->Decoded(load, shows);
  };
  if (wanted.path.empty()) {
    show(nullptr);
  } else {
    scene_.pictures.Load({QString::fromStdString(wanted.path)}, this, show);
  }
}

QSGNode* PaneItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  auto* node = static_cast<QSGRectangleNode*>(old);
  if (node == nullptr) {
    node = window()->createRectangleNode();
    pictureIsNew_ = true;
  }
  node->setColor(colour_);
  node->setRect(boundingRect());
  if (std::exchange(pictureIsNew_, false)) {
    if (QSGNode* shown = PictureNode(node->firstChild(), picture_, window())) node->appendChildNode(shown);
  }
  return node;
}
