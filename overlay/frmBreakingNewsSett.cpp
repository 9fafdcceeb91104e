#include "overlay/frmBreakingNewsSett.h"

#include <algorithm>

#include "output/cMonitors.h"
#include "overlay/frmBreakingNews.h"
#include "settings/IniText.h"
#include "settings/Numbers.h"

namespace {

// Pixels; smaller than that nobody reads it.
constexpr int kNarrowest = 160;
constexpr int kLowest = 20;
constexpr int kPage = 10;  // a press beside the thumb

}  // namespace

std::span<const frmBreakingNewsSett::Measure> frmBreakingNewsSett::Measures() {
  using Desk = frmBreakingNewsSett;
  static constexpr Measure kMeasures[] = {
      {&Desk::sldLeft, &Desk::lblLeft, &Form::Left},
      {&Desk::sldTop, &Desk::lblTop, &Form::Top},
      {&Desk::sldWidth, &Desk::lblWidth, &Form::Width},
      {&Desk::sldHeight, &Desk::lblHeight, &Form::Height},
  };
  return kMeasures;
}

frmBreakingNewsSett::frmBreakingNewsSett(Station& station)
    : Form(station.forms, "frmBreakingNewsSett", Kind::kOperator),
      station_(station),
      news_(station.world.files, station.dataFolder),
      feed_(station),
      feedNews_(station.Shared<FeedNews>()) {
  Caption = "Breaking news settings";
  Width = ToTwips(760);
  Height = ToTwips(660);
  chkActive.Value = 1;
  ListNews.Changed.Connect([this](const ListChange& change) {
    if (change.what == ListChange::What::kSelection) TakeSelected();
  });
  btnUp.Click.Connect([this] { Move(-1); });
  btnDown.Click.Connect([this] { Move(1); });
  btnDelete.Click.Connect([this] { btnDelete_Click(); });
  btnAdd.Click.Connect([this] { btnAdd_Click(); });
  btnSave.Click.Connect([this] { btnSave_Click(); });
  chkActive.Click.Connect([this] { chkActive_Click(); });
  btnFeed.Click.Connect([this] { btnFeed_Click(); });
  feedTells_ = feedNews_.Changed.Subscribe([this] { TellFeed(); });
  for (const Measure& row : Measures()) {
    Slider& slider = this->*row.slider;
    slider.LargeChange = kPage;
    for (Event<>* act : {&slider.Scroll, &slider.Click}) {
      act->Connect([this, &row, &slider] {
        Strip().*row.measure = ToTwips(slider.Value);
        Tell(row);
      });
    }
  }
  sldLeft.Click.Connect([this] { KeepLeft(); });
}

void frmBreakingNewsSett::Load() {
  station_.stores.SettingsFile();
  ShowHeadlines(0);
  ShowPlace();
  ShowFeed();
}

// The desk has brought a strip to life that is not on the air: it goes with the desk.
bool frmBreakingNewsSett::MayUnload() {
  if (station_.forms.Loaded<frmBreakingNews>() && !Strip().Visible) station_.forms.Unload<frmBreakingNews>();
  return true;
}

void frmBreakingNewsSett::ShowHeadlines(int selected) {
  shown_ = news_.All();
  const int last = std::min(selected, static_cast<int>(shown_.size()));
  std::vector<ListRow> rows;
  for (const Headline& one : shown_) {
    rows.push_back({.text = one.active ? "Active" : "Inactive",
                    .subItems = {one.text},
                    .selected = static_cast<int>(rows.size()) + 1 == last});
  }
  ListNews.Assign(std::move(rows), last);
  if (last > 0) ListNews.EnsureVisible(last);
  for (CommandButton* button : {&btnUp, &btnDown, &btnDelete, &btnSave}) button->Enabled = last > 0;
}

void frmBreakingNewsSett::TakeSelected() {
  const int row = ListNews.SelectedItem();
  for (CommandButton* button : {&btnUp, &btnDown, &btnDelete, &btnSave}) button->Enabled = row > 0;
  if (row == 0) return;
  const Headline& headline = shown_[static_cast<std::size_t>(row) - 1];
  txtNews.Text = headline.text;
  chkActive.Value = headline.active ? 1 : 0;
}

void frmBreakingNewsSett::Change(int selectedThen, const std::function<void(std::vector<Headline>&)>& edit) {
  if (news_.All() != shown_) return ShowHeadlines(0);
  std::vector<Headline> headlines = shown_;
  edit(headlines);
  news_.Store(headlines);
  ShowHeadlines(selectedThen);
}

// A blank line would be skipped on the air.
bool frmBreakingNewsSett::HasText() {
  if (!TrimBlanks(txtNews.Text.Get()).empty()) return true;
  txtNews.SetFocus();
  return false;
}

// The new line comes last, and the field is free for the one after it.
void frmBreakingNewsSett::btnAdd_Click() {
  if (!HasText()) return;
  Change(0, [this](std::vector<Headline>& all) { all.push_back({txtNews.Text, chkActive.Ticked()}); });
  if (ListNews.Count() > 0) ListNews.EnsureVisible(ListNews.Count());
  txtNews.Text = "";
  txtNews.SetFocus();
}

void frmBreakingNewsSett::btnSave_Click() {
  const int row = ListNews.SelectedItem();
  if (row == 0 || !HasText()) return;
  Change(row, [&](std::vector<Headline>& all) { all[static_cast<std::size_t>(row) - 1].text = txtNews.Text; });
}

void frmBreakingNewsSett::chkActive_Click() {
  const int row = ListNews.SelectedItem();
  if (row == 0) return;
  Change(row, [&](std::vector<Headline>& all) { all[static_cast<std::size_t>(row) - 1].active = chkActive.Ticked(); });
}

void frmBreakingNewsSett::Move(int rows) {
  const int row = ListNews.SelectedItem();
  if (row == 0 || row + rows < 1 || row + rows > ListNews.Count()) return;
  Change(row + rows, [&](std::vector<Headline>& all) { std::swap(all[row - 1], all[row + rows - 1]); });
}

// Timers and other hands go on while the question stands: it is about the line that was selected when it opened.
void frmBreakingNewsSett::btnDelete_Click() {
  const int row = ListNews.SelectedItem();
  if (row == 0) return;
  const Headline meant = shown_[static_cast<std::size_t>(row) - 1];
  if (MsgBox("Are you sure you want to delete this headline?", Buttons::kYesNo, "DELETE HEADLINE") != Answer::kYes) {
    return;
  }
  if (row > static_cast<int>(shown_.size()) || !(shown_[static_cast<std::size_t>(row) - 1] == meant)) return;
  Change(row, [&](std::vector<Headline>& all) { all.erase(all.begin() + (row - 1)); });
  TakeSelected();
}

void frmBreakingNewsSett::ShowFeed() {
  txtFeed.Text = feed_.Address();
  txtFeedMin.Text = std::to_string(feed_.Interval().count());
  TellFeed();
}

void frmBreakingNewsSett::TellFeed() {
  const std::string count = std::to_string(feedNews_.titles.size());
  const std::string kept = count + " titles of " + feedNews_.time;
  const bool isKept = !feedNews_.time.empty();
  if (feedNews_.address.empty()) {
    lblFeed.Caption = "No feed";
  } else if (feedNews_.fetching) {
    lblFeed.Caption = "Being fetched...";
  } else if (feedNews_.failed) {
    lblFeed.Caption = isKept ? "Cannot be fetched; " + kept + " stay" : "Cannot be fetched";
  } else {
    lblFeed.Caption = isKept ? kept : "Not fetched yet";
  }
}

// The strip sees it within a second. What is shown is what counts, whatever was typed as minutes.
void frmBreakingNewsSett::btnFeed_Click() {
  feed_.Store(std::string(TrimBlanks(txtFeed.Text.Get())), FeedSettings::Minutes(txtFeedMin.Text));
  ShowFeed();
}

frmBreakingNews& frmBreakingNewsSett::Strip() { return station_.forms.Get<frmBreakingNews>(); }

// The strip may stand on any screen.
void frmBreakingNewsSett::ShowPlace() {
  const cMonitors screens(Outside().monitors);
  const int left = screens.VirtualScreenLeft(), top = screens.VirtualScreenTop();
  const int width = screens.VirtualScreenWidth(), height = screens.VirtualScreenHeight();
  const struct {
    Slider& slider;
    int min, max;
  } ranges[] = {{sldLeft, left, left + width - kNarrowest},
                {sldTop, top, top + height - kLowest},
                {sldWidth, kNarrowest, width},
                {sldHeight, kLowest, height}};
  for (const auto& range : ranges) {
    range.slider.Min = range.min;
    range.slider.Max = std::max(range.min, range.max);
  }
  for (const Measure& row : Measures()) {
    (this->*row.slider).Value = ToPixels(Strip().*row.measure);
    Tell(row);
  }
}

void frmBreakingNewsSett::Tell(const Measure& row) {
  (this->*row.label).Caption = std::to_string((this->*row.slider).Value.Get()) + " pixels";
}

// The key wins over the remembered place of the window at the next load.
void frmBreakingNewsSett::KeepLeft() {
  station_.stores.SettingsIni.WriteValue("BreakingNews", "Left", SingleText(static_cast<float>(Strip().Left)));
}
