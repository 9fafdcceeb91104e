#pragma once

#include "output/cMonitors.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

// Tries the placement of the output window out on itself. No menu opens it.
class frmOutputSett : public Form {
 public:
  explicit frmOutputSett(Station& station);

  ComboBox cboMonitors{*this, "cboMonitors"};
  CommandButton cmdMove{*this, "cmdMove"};
  CommandButton cmdCentre{*this, "cmdCentre"};
  CommandButton cmdMaximise{*this, "cmdMaximise"};

 protected:
  void Load() override;

 private:
  // The monitor whose name is chosen. Fails when none is.
  const cMonitor& Chosen() const;
  void cmdMaximise_Click();

  cMonitors monitors_;
};
