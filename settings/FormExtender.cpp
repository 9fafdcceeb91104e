#include "settings/FormExtender.h"

#include "settings/Numbers.h"

namespace {

// A window that is being dragged is written once it rests.
constexpr std::chrono::milliseconds kRest(300);

}  // namespace

FormExtender::FormExtender(Form& form, std::string name)
    : Component(form, std::move(name)),
      RecordWindowPosTo("",
                        [this](const std::string& path) {
                          RecordWindowPosTo.Store(path);
                          file_.SetPath(path);
                          Restore();
                          Hold();
                        }),
      OnTop(form.OnTop),
      file_(form.Outside().files) {
  for (Property<Twips>* measure : {&form.Left, &form.Top, &form.Width, &form.Height}) {
    measure->Changed.Connect([this] { Note(); });
  }
}

FormExtender::~FormExtender() { StopWaiting(); }

void FormExtender::Retire() {
  if (waiting_ != 0) Write();
  holding_ = false;
}

void FormExtender::Release() { holding_ = false; }

void FormExtender::Hold() {
  holding_ = true;
  Note();
}

void FormExtender::Restore() {
  if (!seen_) seen_ = written_ = Stored();
  if (!seen_) return;
  const Place place = *seen_;
  Owner().Left = place.left;
  Owner().Top = place.top;
  Owner().Width = place.width;
  Owner().Height = place.height;
}

std::optional<FormExtender::Place> FormExtender::Stored() {
  const auto read = [this](const char* key) { return file_.ReadValue(Owner().Name(), key, ""); };
  const Place place{Val(read("Left")), Val(read("Top")), Val(read("Width")), Val(read("Height"))};
  // A file that somebody has torn must not make a window that nobody can see.
  constexpr Twips kSmallest = 300, kFarthest = 1e6;
  const auto within = [](Twips value, Twips low) { return value >= low && value <= kFarthest; };
  const bool usable = within(place.width, kSmallest) && within(place.height, kSmallest) &&
                      within(place.left, -kFarthest) && within(place.top, -kFarthest);
  return usable ? std::optional(place) : std::nullopt;
}

void FormExtender::Note() {
  if (!holding_) return;
  const Place now{Owner().Left, Owner().Top, Owner().Width, Owner().Height};
  if (seen_ == now) return;
  seen_ = now;
  StopWaiting();
  waiting_ =
      Owner().Outside().scheduler.Start(kRest, TickPhase::kFromStart, [this] { Handle("Rest", [this] { Write(); }); });
}

void FormExtender::Write() {
  StopWaiting();
  if (seen_ == written_) return;
  written_ = seen_;
  file_.Rewrite([this](const IniDocument& before) {
    IniDocument after = before;
    const auto put = [&](const char* key, Twips value) {
      after = after.WithValue(Owner().Name(), key, SingleText(static_cast<float>(value)));
    };
    put("Left", seen_->left);
    put("Top", seen_->top);
    put("Width", seen_->width);
    put("Height", seen_->height);
    return after;
  });
}

void FormExtender::StopWaiting() {
  Owner().Outside().scheduler.Cancel(waiting_);
  waiting_ = 0;
}
