#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

#include "platform/Browser.h"
#include "platform/sim/SimTime.h"
#include "platform/sim/SimTrace.h"

class SimPage;

// Surfaces whose pages load by the virtual clock. Every address of http, https and file is a page that comes after a
// moment, unless a fault is set for it.
class SimBrowser : public BrowserEngine {
 public:
  SimBrowser(SimTime& time, SimTrace& trace) : time_(time), trace_(trace) {}

  std::unique_ptr<BrowserSurface> NewSurface(const std::string& name, BrowserListener& listener) override;

  // The faults. Of the one nothing ever comes; the other cannot be had, which shows as an error page.
  void SetNeverAnswers(const std::string& address) { neverAnswers_.insert(address); }
  void SetCannotBeHad(const std::string& address) { cannotBeHad_.insert(address); }
  void SetCanBeHad(const std::string& address) { cannotBeHad_.erase(address); }
  // What renders the pages has died: each page loads anew, after `returnTime`.
  void Die();

  // How long a page takes to begin, and from there to be whole.
  std::chrono::milliseconds answerTime{20};
  std::chrono::milliseconds loadingTime{200};
  std::chrono::milliseconds returnTime{1000};
  // Until a page that cannot be had is tried again.
  std::chrono::milliseconds pauseOfTry{5000};

  // The surface of that name that was made last; null when it is gone.
  SimPage* Find(const std::string& name) const;

 private:
  friend class SimPage;

  SimTime& time_;
  SimTrace& trace_;
  std::set<std::string> neverAnswers_;
  std::set<std::string> cannotBeHad_;
  std::map<std::string, SimPage*> pages_;
};

class SimPage : public BrowserSurface {
 public:
  SimPage(SimBrowser& browser, std::string name, BrowserListener& listener);
  ~SimPage() override;

  void Navigate(const std::string& address) override;
  void Reload() override;
  void SetLooks(const PageLooks& looks) override { looks_ = looks; }

  // The pointer comes to a link of that address; with the empty one it leaves it.
  void Hover(const std::string& address);
  // What was opened last.
  const std::string& Address() const { return address_; }
  // What can be seen; empty for nothing.
  const std::string& Shown() const { return shown_; }
  const PageLooks& Looks() const { return looks_; }
  // How often pages have come, all in all.
  int Loads() const { return loads_; }

 private:
  friend class SimBrowser;

  void Load(std::chrono::milliseconds pause);
  void Begin();
  void End();
  void Wait(std::chrono::milliseconds time, void (SimPage::*next)());
  void StopWaiting();

  SimBrowser& browser_;
  std::string name_;
  BrowserListener& listener_;
  std::string address_;
  std::string shown_;
  PageLooks looks_;
  int loads_ = 0;
  Scheduler::Id waiting_ = 0;
};
