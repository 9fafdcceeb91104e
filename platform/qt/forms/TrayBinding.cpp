#include "platform/qt/forms/TrayBinding.h"

#include <QSystemTrayIcon>

#include "platform/qt/forms/Texts.h"

void Bind(Joint& joint, TrayIcon& control) {
  auto* icon = new QSystemTrayIcon(QIcon(":/art/corvanta.png"), &joint.Window());
  joint.AtEnd([icon] { icon->hide(); });
  joint.Follow(control.TipText.Changed, [icon, &control] { icon->setToolTip(Shown(control.TipText)); });
  joint.Follow(control.Visible.Changed, [icon, &control] { icon->setVisible(control.Visible); });
  joint.On(icon, &QSystemTrayIcon::activated, [&control](QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
      case QSystemTrayIcon::DoubleClick:
        return control.DoubleClick();
      case QSystemTrayIcon::Context:
        return control.PressMouse(MouseButton::kRight);
      case QSystemTrayIcon::MiddleClick:
        return control.PressMouse(MouseButton::kMiddle);
      case QSystemTrayIcon::Trigger:
        return control.PressMouse(MouseButton::kLeft);
      case QSystemTrayIcon::Unknown:
        return;
    }
  });
}
