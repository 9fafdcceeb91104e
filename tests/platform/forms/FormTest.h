#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/forms/OperatorWindow.h"
#include "platform/qt/forms/QtWindows.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"
#include "tests/platform/forms/AllForms.h"

// A station in the virtual world whose operator forms are real widgets.
class FormTest : public ::testing::Test {
 protected:
  FormTest() { sim.files.CreateFolder("/station/Playlist"); }

  template <class F>
  F& Get() {
    return station.forms.Get<F>();
  }
  static OperatorWindow& WindowOf(Form& form) { return dynamic_cast<OperatorWindow&>(*form.Window()); }

  // Every operator's form that there is, loaded.
  std::vector<Form*> EachForm() {
    std::vector<Form*> forms;
    for (const FormRow& row : AllForms()) forms.push_back(&row.get(station.forms));
    return forms;
  }

  // The widget that shows a control.
  template <class W>
  static W& Shown(Control& control) {
    return dynamic_cast<W&>(*WindowOf(control.Owner()).Joined().WidgetOf(control));
  }

  // Lets the message loop run until nothing is left to do.
  static void Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  SimWorld sim;
  QtWindows windows{[this](Form& form) { return sim.windows.Create(form); }, Surfaces{}};
  World world{sim.time, sim.time,    sim.files,   sim.media,    sim.flash,   sim.browser, sim.pictures,
              windows,  sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station station{world, "/station"};
};
