#include "output/frmOutputSett.h"

#include "output/Placement.h"
#include "platform/toolkit/Failures.h"
#include "settings/FormHelpers.h"

frmOutputSett::frmOutputSett(Station& station)
    : Form(station.forms, "frmOutputSett", Kind::kOperator), monitors_(station.world.monitors) {
  Width = ToTwips(420);
  Height = ToTwips(200);
  const auto skipping = [](auto statement) { return [statement] { SkippingFailures(statement); }; };
  cmdMove.Click.Connect(skipping([this] { MoveToMonitor(*this, monitors_, 2); }));
  cmdCentre.Click.Connect(skipping([this] { CentreOnMonitor(*this, Chosen()); }));
  cmdMaximise.Click.Connect(skipping([this] { cmdMaximise_Click(); }));
}

void frmOutputSett::Load() {
  for (int i = 1; i <= monitors_.MonitorCount(); ++i) {
    cboMonitors.AddItem(std::to_string(i) + ". " + monitors_.Monitor(i).Name());
  }
  if (cboMonitors.ListCount() > 0) cboMonitors.Text = cboMonitors.List(0);
  CentreForm(*this);
}

const cMonitor& frmOutputSett::Chosen() const {
  for (int i = 0; i < cboMonitors.ListCount(); ++i) {
    if (cboMonitors.List(i) == cboMonitors.Text.Get()) return monitors_.Monitor(i + 1);
  }
  throw Failure("No monitor is chosen.");
}

void frmOutputSett::cmdMaximise_Click() {
  const cMonitor& chosen = Chosen();
  const auto now = monitors_.MonitorForWindow(WindowRect(*this));
  if (!now || now->hMonitor() != chosen.hMonitor()) {
    Left = ToTwips(chosen.Left());
    Top = ToTwips(chosen.Top());
  }
  Maximised = true;
}
