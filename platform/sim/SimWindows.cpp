#include "platform/sim/SimWindows.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/MenuItem.h"
#include "platform/toolkit/Panes.h"

class SimWindow : public FormWindow {
 public:
  SimWindow(SimWindows& windows, Form& form) : windows_(windows), form_(form) {
    following_.push_back(form.Visible.Changed.Subscribe([this] {
      Tell(form_.Visible ? "shown" : "hidden");
      Leave();
      if (form_.Visible) ComeForward();
    }));
    following_.push_back(form.ShowAsked.Subscribe([this] { ComeForward(); }));
    following_.push_back(form.OnTop.Changed.Subscribe([this] { ComeForward(); }));
    for (Component* component : form.Components()) {
      if (auto* pane = dynamic_cast<PictureBox*>(component)) {
        following_.push_back(pane->Picture.Changed.Subscribe([this, pane] { Decode(*pane); }));
      }
    }
    Tell("loaded");
  }
  ~SimWindow() override {
    Leave();
    Tell("unloaded");
  }

  const Form& Shown() const { return form_; }

  void Focus(const Control& control) override { windows_.focus = form_.Name() + "." + control.Name(); }
  void DragWindow(std::function<void()> done) override {
    Tell("dragged");
    windows_.dragDone_ = std::move(done);
  }
  void DragPane(Control& pane, std::function<void()> done) override {
    Tell(pane.Name() + " dragged");
    windows_.dragDone_ = std::move(done);
  }
  void FollowPointer(std::function<void(Twips, Twips)> moved) override { windows_.dragMoved_ = std::move(moved); }
  void PutPointer(Twips right, Twips down) override { windows_.pointerPut = {form_.Left + right, form_.Top + down}; }
  void PopUp(const MenuItem& menu) override {
    Tell("opens " + menu.Name());
    windows_.popUp = form_.Name() + "." + menu.Name();
  }

 private:
  // The pane may be gone by the time the picture is decoded.
  void Decode(PictureBox& pane) {
    const LoadedPicture picture = pane.Picture;
    const bool shows = !windows_.pictures_.undecodable.contains(picture.path);
    windows_.time_.Post([&pane, load = picture.load, shows, alive = std::weak_ptr(alive_)] {
      if (!alive.expired()) pane.Decoded(load, shows);
    });
  }
  void Leave() { std::erase(windows_.shown_, this); }
  void ComeForward() {
    if (!form_.Visible) return;
    Leave();
    windows_.shown_.insert(windows_.shown_.begin(), this);
  }
  void Tell(const std::string& what) { windows_.trace_.Add(form_.Name() + " " + what); }

  SimWindows& windows_;
  Form& form_;
  std::vector<Subscription> following_;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>();
};

std::unique_ptr<FormWindow> SimWindows::Create(Form& form) { return std::make_unique<SimWindow>(*this, form); }

std::vector<std::string> SimWindows::Stack() const {
  std::vector<std::string> names;
  for (const bool onTop : {true, false}) {
    for (const SimWindow* window : shown_) {
      if (window->Shown().OnTop == onTop) names.push_back(window->Shown().Name());
    }
  }
  return names;
}

void SimWindows::MovePointer(Twips right, Twips down) {
  if (dragMoved_) dragMoved_(right, down);
}

void SimWindows::EndDrag() {
  dragMoved_ = nullptr;
  if (const auto done = std::exchange(dragDone_, nullptr)) done();
}
