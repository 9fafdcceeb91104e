#pragma once

#include <string>

#include "output/AdBand.h"
#include "output/CurrentAd.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Timer.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

// The preview of a crawler ad: shows it at the control screen just as the band shows it on the air. It follows the
// current ad whether it is seen or not, and asks for no next one: at the end of a pass the picture stays out of sight.
// Closed it is unloaded; the next ad makes it afresh, hidden.
class frmAdView : public Form {
 public:
  explicit frmAdView(Station& station);

  FlashBox FlashRight{*this, "FlashRight"};
  FlashBox FlashLeft{*this, "FlashLeft"};
  PictureBox PicSize{*this, "PicSize", PictureBox::Sizing::kByPicture};
  PictureBox PicLeft{*this, "PicLeft", PictureBox::Sizing::kByPicture};
  PictureBox PicRight{*this, "PicRight", PictureBox::Sizing::kByPicture};
  PictureBox pic{*this, "pic", PictureBox::Sizing::kByPicture};
  FlashBox Flash{*this, "Flash"};

  Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1), Timer::kEnabled};
  FormExtender win{*this, "win"};

  // Loads one ad: four paths, of which `left` and `right` may be empty.
  void ViewAd(const std::string& header, const std::string& scorl, const std::string& left, const std::string& right);
  // Lays the window out from the record of the current ad; it then ends 1000 twips above the screen's bottom.
  void SetHeight();

 protected:
  void Load() override;

 private:
  void Timer1_Tick();

  Station& station_;
  AdBand band_;
};
