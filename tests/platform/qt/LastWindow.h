#pragma once

#include <QPointer>
#include <QQuickWindow>
#include <memory>

#include "platform/Windows.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/scene/OnAirWindow.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/qt/scene/Scene.h"

// Windows of the real world, of which the test looks at the one that was made last.
class LastWindow : public Windows {
 protected:
  std::unique_ptr<FormWindow> Create(Form& created) override {
    auto made = std::make_unique<OnAirWindow>(created, scene);
    window = made->Window();
    return made;
  }
  PixelSize ScreenSize() const override { return {640, 480}; }

  QtScheduler scheduler;
  PictureLoader loader;
  Scene scene{scheduler, loader};
  QPointer<QQuickWindow> window;
};
