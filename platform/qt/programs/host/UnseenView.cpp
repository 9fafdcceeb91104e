#include "platform/qt/programs/host/UnseenView.h"

#include <QQmlComponent>
#include <QQuickRenderTarget>
#include <algorithm>

#include "platform/qt/programs/host/Lives.h"

UnseenView::UnseenView(QQmlEngine& engine, const QUrl& qml, const QVariantMap& properties, std::function<void()> paint)
    : window_(std::make_unique<QQuickWindow>(&control_)) {
  window_->setColor(Qt::transparent);
  QQmlComponent component(&engine, qml);
  item_.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties)));
  if (!item_) qFatal("The view cannot be made: %s", qPrintable(component.errorString()));
  item_->setParentItem(window_->contentItem());
  due_.setSingleShot(true);
  due_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&control_, &QQuickRenderControl::sceneChanged, &due_, [this] { Ask(); });
  QObject::connect(&control_, &QQuickRenderControl::renderRequested, &due_, [this] { Ask(); });
  QObject::connect(&due_, &QTimer::timeout, &due_, [this, paint = std::move(paint)] {
    sincePainted_.restart();
    paint();
  });
  sincePainted_.start();
}

void UnseenView::Resize(QSize pixels) {
  if (pixels == Size()) return;
  window_->setGeometry(0, 0, pixels.width(), pixels.height());
  window_->contentItem()->setSize(pixels);
  item_->setSize(pixels);
  picture_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
  picture_.fill(Qt::transparent);
  window_->setRenderTarget(QQuickRenderTarget::fromPaintDevice(&picture_));
}

void UnseenView::Ask() {
  if (!due_.isActive()) due_.start(std::max<int>(0, kBetweenPaintings - static_cast<int>(sincePainted_.elapsed())));
}

bool UnseenView::Paint() {
  if (!Lives(item_->property("renderProcessPid").toLongLong())) return false;
  control_.polishItems();
  control_.sync();
  control_.render();
  return true;
}
