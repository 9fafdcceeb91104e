#include "platform/qt/forms/QtWindows.h"

#include <QGuiApplication>
#include <QIcon>
#include <QScreen>

#include "platform/qt/forms/OperatorWindow.h"
#include "platform/toolkit/Form.h"

QtWindows::QtWindows(OnAirMaker onAir, Surfaces surfaces) : onAir_(std::move(onAir)), surfaces_(std::move(surfaces)) {
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setWindowIcon(QIcon(":/art/corvanta.png"));
}

std::unique_ptr<FormWindow> QtWindows::Create(Form& form) {
  if (form.Type() != Form::Kind::kOperator) return onAir_(form);
  return std::make_unique<OperatorWindow>(form, surfaces_);
}

PixelSize QtWindows::ScreenSize() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  return {screen->geometry().width(), screen->geometry().height()};
}
