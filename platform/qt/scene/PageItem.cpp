#include "platform/qt/scene/PageItem.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/frames/TakesInput.h"
#include "platform/toolkit/BrowserControl.h"

namespace {

FrameSource* SourceOf(BrowserControl& page) {
  auto* shows = dynamic_cast<ShowsFrames*>(page.Platform());
  return shows == nullptr ? nullptr : &shows->Frames();
}

}  // namespace

PageItem::PageItem(BrowserControl& page, QQuickItem& parent, Scene& scene)
    : FrameItem(page, SourceOf(page), Back::kNone, parent, scene), page_(dynamic_cast<QObject*>(page.Platform())) {
  setAcceptHoverEvents(true);
}

void PageItem::PassOn(QEvent* event) {
  event->accept();
  if (auto* page = dynamic_cast<TakesInput*>(page_.data())) page->Take(*event);
}

void PageItem::mousePressEvent(QMouseEvent* event) {
  FrameItem::mousePressEvent(event);
  forceActiveFocus(Qt::MouseFocusReason);
  PassOn(event);
}

void PageItem::mouseReleaseEvent(QMouseEvent* event) { PassOn(event); }
void PageItem::mouseDoubleClickEvent(QMouseEvent* event) { PassOn(event); }
void PageItem::mouseMoveEvent(QMouseEvent* event) { PassOn(event); }
void PageItem::hoverMoveEvent(QHoverEvent* event) { PassOn(event); }
void PageItem::hoverLeaveEvent(QHoverEvent* event) { PassOn(event); }
void PageItem::wheelEvent(QWheelEvent* event) { PassOn(event); }
void PageItem::keyPressEvent(QKeyEvent* event) { PassOn(event); }
void PageItem::keyReleaseEvent(QKeyEvent* event) { PassOn(event); }
