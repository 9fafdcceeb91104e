#pragma once

#include <memory>
#include <string>

#include "platform/Browser.h"
#include "platform/toolkit/Control.h"

// A web page on a form. Where its surface is gone (the form is unloaded) every operation is without effect.
class BrowserControl : public Control, private BrowserListener {
 public:
  static constexpr int kTextSizes = 5;

  BrowserControl(Form& form, std::string name);
  BrowserControl(Control& container, std::string name);
  std::string_view Kind() const override { return "BrowserControl"; }
  void Retire() override;

  // Opens what was typed as an address: a path of the disk in any spelling that the disk takes, or an address with or
  // without its scheme. What is none shows nothing. A page is opened in place and asked for by its address alone: the
  // other four change nothing.
  void Navigate(const std::string& typed, int flags = 0, const std::string& frame = {}, const std::string& data = {},
                const std::string& headers = {});
  // Loads the page again.
  void Refresh();

  // No page opens a dialog, whatever stands here.
  Property<bool> Silent{false};
  // A page is loaded from where it lies, whatever stands here.
  Property<bool> Offline{false};
  // Of the page's text, from 0 to 4: 80, 90, 100, 120 and 150 per cent.
  Property<int> TextSize{2};
  Property<bool> Sound{true};
  Property<bool> ScrollBars{true};

  // See BrowserListener.
  Event<const std::string&> StatusTextChange;
  Event<> DocumentComplete;

  // The platform's surface, for the window that shows its picture; null after the form was unloaded.
  BrowserSurface* Platform() const { return surface_.get(); }

 private:
  void Start();
  void ApplyLooks();
  void StatusChanged(const std::string& text) override;
  void PageLoaded() override;

  std::unique_ptr<BrowserSurface> surface_;
};
