#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "output/CurrentAd.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/Widgets.h"
#include "settings/FormExtender.h"
#include "settings/Station.h"

// The crawler ads: the store's desk, and the rotation that puts them on the air. Closing it only hides it: its list is
// the order of the rotation.
class frmAdSett : public Form {
 public:
  explicit frmAdSett(Station& station);

  ListView ListAd{*this, "ListAd"};
  CommandButton cmdRemove{*this, "cmdRemove"};
  CheckBox chkAdActive{*this, "chkAdActive"};  // of the new ad, and the live switch of the selected one

  TextBox txtAdName{*this, "txtAdName"};
  TextBox txtCompany{*this, "txtCompany"};
  TextBox txtAddress{*this, "txtAddress"};
  DatePicker dpStartDate{*this, "dpStartDate"};
  DatePicker dpEndDate{*this, "dpEndDate"};
  CommandButton btnHeader{*this, "btnHeader"};
  CommandButton btnLoadScorl{*this, "btnLoadScorl"};
  CommandButton btnLoadLeft{*this, "btnLoadLeft"};
  CommandButton btnLoadRight{*this, "btnLoadRight"};
  FlashBox FlashHeader{*this, "FlashHeader"};
  PictureBox picScorl{*this, "picScorl"};
  FlashBox FlashLeft{*this, "FlashLeft"};
  FlashBox FlashRight{*this, "FlashRight"};
  CommandButton LoadAd{*this, "LoadAd"};

  Slider SldSpeed{*this, "SldSpeed"};
  Slider sldHeight{*this, "sldHeight"};
  Slider sldSide{*this, "sldSide"};
  Slider SldAdTop{*this, "SldAdTop"};
  Label lblSpeed{*this, "lblSpeed"};
  Label lblHeight{*this, "lblHeight"};
  Label lblWidth{*this, "lblWidth"};
  Label lblAdTop{*this, "lblAdTop"};

  CheckBox chkView{*this, "chkView"};
  CheckBox chkShowAd{*this, "chkShowAd"};  // kept, and without effect
  CommandButton btnView{*this, "btnView"};
  CommandButton btnPlay{*this, "btnPlay"};

  FormExtender win{*this, "win"};

  std::int16_t AdIndex = 0;  // where the rotation stands in ListAd, from 1
  bool AdPlaying = true;     // what btnPlay does next; nothing else tells it of the band

  // Puts the next ad of the list on the air; after the last the first. An empty list leaves the band empty.
  void NextAd();
  // Takes one ad's description into the record of the current ad, the sliders and the previews. One that is not active
  // first runs NextAd; see there what then stands in the record.
  void LoadAda(const std::string& name);
  // Copies the chosen files into the folder of the ad that is named in txtAdName. False when the operator cancelled;
  // then the rest is not copied. A file that cannot be copied is left out.
  bool CopyAD();
  // Restores the boxes, and puts the ad on the air that was there last.
  void LoadSett();

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  // One slider: what it sets, and what follows at once.
  struct Dial {
    Slider& slider;
    Label& label;
    int least, most, large, start;
    Event<> Slider::*acts;  // moving the thumb, or letting it go
    const char* loaded;     // stands before the value when an ad is loaded
    const char* turned;     // and when the operator has turned it: both wordings are wanted
    std::string CurrentAd::*field;
    const char* key;
    void (frmAdSett::*lay)();
  };

  void ConnectStore();
  void ConnectRotation();
  void ReloadList();
  // The name of the selected ad; fails while there is none.
  const std::string& SelectedAd() const { return ListAd.Selected().text; }
  std::string Info(const char* key) const;

  void ChooseMovie(const char* title, FlashBox& preview, std::string& field);
  void btnHeader_Click();
  void btnLoadScorl_Click();
  void btnLoadLeft_Click();
  void btnLoadRight_Click();
  bool HasHeaderAndScorl();
  void LoadAd_Click();
  void WriteAdInfo();
  void chkAdActive_Click();
  void cmdRemove_Click();
  void btnView_Click();

  void ListAd_Click();
  void EmptyBand();
  void TakeActive();
  std::array<Dial, 4> Dials();
  void TakeDials();
  void Turn(const Dial& dial);
  void LayNothing() {}
  void LayBoth();
  void LaySides();
  void LayOutput();
  void btnPlay_Click();

  Station& station_;
  CurrentAd& currentAd_;
  int reached_ = 0;  // ads that the running nest of NextAd has come to
};
