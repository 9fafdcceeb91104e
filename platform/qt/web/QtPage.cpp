#include "platform/qt/web/QtPage.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QUrl>
#include <QWheelEvent>

#include "platform/qt/web/QtBrowser.h"
#include "platform/qt/web/WebWire.h"

QtPage::QtPage(QtBrowser& browser, BrowserListener& listener)
    : browser_(browser), listener_(listener), slot_(browser.Add(*this)) {}

QtPage::~QtPage() { browser_.Remove(slot_); }

void QtPage::Navigate(const std::string& address) {
  const QString scheme = QUrl(QString::fromStdString(address)).scheme();
  const bool isPage = scheme == "http" || scheme == "https" || scheme == "file";
  address_ = isPage ? address : "";
  if (!isPage) {
    serial_ = 0;
    isBlank_ = true;
    browser_.Program().Send({wire::kOpen, slot_, serial_, QString()});
    emit frames_.Changed();
    return;
  }
  serial_ = browser_.NewSerial();
  isBlank_ = false;
  if (browser_.Program().IsRunning()) {
    browser_.Program().Send({wire::kOpen, slot_, serial_, QString::fromStdString(address_)});
  } else {
    browser_.Program().Start();  // which tells all of it
  }
}

void QtPage::Reload() {
  if (serial_ != 0) browser_.Program().Send({wire::kReload, slot_});
}

void QtPage::SetLooks(const PageLooks& looks) {
  looks_ = looks;
  TellLooks();
}

void QtPage::TellAll() {
  shared_.reset();
  TellSlot();
  TellLooks();
  if (serial_ != 0) browser_.Program().Send({wire::kOpen, slot_, serial_, QString::fromStdString(address_)});
}

void QtPage::TellLooks() {
  browser_.Program().Send({wire::kLooks, slot_, looks_.zoom, looks_.sound, looks_.scrollBars});
}

void QtPage::TellSlot() {
  if (browser_.Program().IsRunning()) shared_ = browser_.GiveFrames(slot_, target_);
}

void QtPage::SetTarget(QSize pixels) {
  if (pixels == target_) return;
  target_ = pixels;
  TellSlot();
}

std::optional<QImage> QtPage::TakePicture() {
  if (std::exchange(isBlank_, false)) return QImage();
  if (serial_ == 0) return std::nullopt;
  return SharedFrames::Take(shared_);
}

void QtPage::PictureWaits() {
  if (serial_ != 0 && !target_.isEmpty()) emit frames_.Changed();
}

void QtPage::StatusChanged(qint64 serial, const std::string& text) {
  if (serial == serial_ && serial != 0) listener_.StatusChanged(text);
}

void QtPage::Loaded(qint64 serial) {
  if (serial == serial_ && serial != 0) listener_.PageLoaded();
}

void QtPage::Take(const QEvent& event) {
  SideProgram& program = browser_.Program();
  const auto kind = static_cast<int>(event.type());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
      const auto& mouse = static_cast<const QMouseEvent&>(event);
      const QPointF place = mouse.position();
      program.Send({wire::kMouse, slot_, kind, place.x(), place.y(), static_cast<int>(mouse.button()),
                    mouse.buttons().toInt(), mouse.modifiers().toInt()});
      break;
    }
    case QEvent::HoverMove:
    case QEvent::HoverEnter: {
      const QPointF place = static_cast<const QHoverEvent&>(event).position();
      program.Send({wire::kMouse, slot_, static_cast<int>(QEvent::MouseMove), place.x(), place.y(), 0, 0, 0});
      break;
    }
    case QEvent::HoverLeave:
    case QEvent::Leave:
      program.Send({wire::kMouse, slot_, static_cast<int>(QEvent::MouseMove), -1.0, -1.0, 0, 0, 0});
      break;
    case QEvent::Wheel: {
      const auto& wheel = static_cast<const QWheelEvent&>(event);
      const QPointF place = wheel.position();
      const QPoint angle = wheel.angleDelta();
      program.Send({wire::kWheel, slot_, place.x(), place.y(), angle.x(), angle.y(), wheel.buttons().toInt(),
                    wheel.modifiers().toInt()});
      break;
    }
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      const auto& key = static_cast<const QKeyEvent&>(event);
      program.Send({wire::kKey, slot_, kind, key.key(), key.modifiers().toInt(), key.text()});
      break;
    }
    default:
      break;
  }
}
