#include "platform/sim/SimBrowser.h"

#include <utility>

using std::chrono::milliseconds;

std::unique_ptr<BrowserSurface> SimBrowser::NewSurface(const std::string& name, BrowserListener& listener) {
  return std::make_unique<SimPage>(*this, name, listener);
}

void SimBrowser::Die() {
  for (const auto& [name, page] : pages_) {
    if (!page->address_.empty()) page->Load(returnTime);
  }
}

SimPage* SimBrowser::Find(const std::string& name) const {
  const auto found = pages_.find(name);
  return found == pages_.end() ? nullptr : found->second;
}

SimPage::SimPage(SimBrowser& browser, std::string name, BrowserListener& listener)
    : browser_(browser), name_(std::move(name)), listener_(listener) {
  browser_.pages_[name_] = this;
}

SimPage::~SimPage() {
  StopWaiting();
  if (browser_.Find(name_) == this) browser_.pages_.erase(name_);
}

void SimPage::Navigate(const std::string& address) {
  browser_.trace_.Add(name_ + " open " + address);
  StopWaiting();
  const bool isPage =
      address.starts_with("http://") || address.starts_with("https://") || address.starts_with("file://");
  address_ = isPage ? address : "";
  if (isPage) {
    Load(browser_.answerTime);
  } else {
    shown_.clear();
  }
}

void SimPage::Reload() {
  browser_.trace_.Add(name_ + " reload");
  if (!address_.empty()) Load(browser_.answerTime);
}

void SimPage::Hover(const std::string& address) { listener_.StatusChanged(address.empty() ? "Done" : address); }

void SimPage::Load(milliseconds pause) { Wait(pause, &SimPage::Begin); }

// The listener may open another page, or end this surface.
void SimPage::Begin() {
  const bool answers = !browser_.neverAnswers_.contains(address_);
  if (answers) Wait(browser_.loadingTime, &SimPage::End);
  listener_.StatusChanged("Loading..");
}

void SimPage::End() {
  shown_ = address_;
  ++loads_;
  SimBrowser& browser = browser_;
  const std::string name = name_;
  const std::string loaded = address_;
  if (browser_.cannotBeHad_.contains(loaded)) Load(browser_.pauseOfTry);
  listener_.StatusChanged("Done");
  const bool isStillIt = browser.Find(name) == this && waiting_ == 0 && address_ == loaded;
  if (isStillIt) listener_.PageLoaded();
}

void SimPage::Wait(milliseconds time, void (SimPage::*next)()) {
  StopWaiting();
  waiting_ = browser_.time_.Start(time, TickPhase::kFromStart, [this, next] {
    StopWaiting();
    (this->*next)();
  });
}

void SimPage::StopWaiting() {
  if (waiting_ != 0) browser_.time_.Cancel(std::exchange(waiting_, 0));
}
