#pragma once

#include <functional>
#include <span>
#include <vector>

#include "overlay/Headlines.h"
#include "overlay/NewsFeed.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/ListView.h"
#include "platform/toolkit/Widgets.h"
#include "settings/Station.h"

class frmBreakingNews;

// The desk of the news strip: the operator's headlines, the feed whose titles follow them, and where the strip stands,
// since no mouse reaches the strip itself. Each change goes to its file, and to the air, at once; the feed has a
// button.
class frmBreakingNewsSett : public Form {
 public:
  explicit frmBreakingNewsSett(Station& station);

  ListView ListNews{*this, "ListNews"};
  CommandButton btnUp{*this, "btnUp"};
  CommandButton btnDown{*this, "btnDown"};
  CommandButton btnDelete{*this, "btnDelete"};
  TextBox txtNews{*this, "txtNews"};
  CheckBox chkActive{*this, "chkActive"};  // of the selected headline; with none selected, of a new one
  CommandButton btnAdd{*this, "btnAdd"};
  CommandButton btnSave{*this, "btnSave"};  // the text of the selected headline

  TextBox txtFeed{*this, "txtFeed"};  // the address; empty: no feed
  TextBox txtFeedMin{*this, "txtFeedMin"};
  CommandButton btnFeed{*this, "btnFeed"};  // stores both
  Label lblFeed{*this, "lblFeed"};          // what came of it

  // Pixels of the screens.
  Slider sldLeft{*this, "sldLeft"};
  Slider sldTop{*this, "sldTop"};
  Slider sldWidth{*this, "sldWidth"};
  Slider sldHeight{*this, "sldHeight"};
  Label lblLeft{*this, "lblLeft"};
  Label lblTop{*this, "lblTop"};
  Label lblWidth{*this, "lblWidth"};
  Label lblHeight{*this, "lblHeight"};

 protected:
  void Load() override;
  bool MayUnload() override;

 private:
  // One measure of the strip: the slider that sets it, and the label that tells it.
  struct Measure {
    Slider frmBreakingNewsSett::*slider;
    Label frmBreakingNewsSett::*label;
    Property<Twips> Form::*measure;
  };
  static std::span<const Measure> Measures();

  // Shows the file's headlines, with this row selected; 0 selects none.
  void ShowHeadlines(int selected);
  // Does `edit` to the list of headlines and stores it. A list that somebody has changed on the disk since it was shown
  // is shown instead: the operator has not seen what he would change.
  void Change(int selectedThen, const std::function<void(std::vector<Headline>&)>& edit);
  void Move(int rows);
  void TakeSelected();
  bool HasText();
  void btnAdd_Click();
  void btnSave_Click();
  void btnDelete_Click();
  void chkActive_Click();

  void ShowFeed();
  void TellFeed();
  void btnFeed_Click();

  frmBreakingNews& Strip();
  void ShowPlace();
  void Tell(const Measure& row);
  void KeepLeft();

  Station& station_;
  Headlines news_;
  FeedSettings feed_;
  FeedNews& feedNews_;
  Subscription feedTells_;
  std::vector<Headline> shown_;
};
