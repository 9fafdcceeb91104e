#include "platform/sim/SimShell.h"

#include <algorithm>
#include <utility>

#include "platform/CaseFold.h"
#include "platform/sim/SimFiles.h"
#include "platform/sim/SimTime.h"

namespace {

constexpr std::chrono::milliseconds kCopyBoxAfter{500};

template <class T>
T TakeFirst(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

Answer SimDialogs::MsgBox(const std::string& text, const std::string& title, Buttons buttons) {
  trace_.Add("box \"" + text + "\" \"" + title + "\"" + (buttons == Buttons::kOkWarning ? " warning" : ""));
  if (whileStanding) whileStanding();
  return TakeFirst(answers, buttons == Buttons::kYesNo ? Answer::kNo : Answer::kOk);
}

std::string SimDialogs::InputBox(const std::string& prompt, const std::string& title) {
  trace_.Add("input \"" + prompt + "\" \"" + title + "\"");
  if (whileStanding) whileStanding();
  return TakeFirst(inputs, std::string());
}

std::string SimDialogs::BrowseFolder(const std::string& title, const std::string& start) {
  trace_.Add("browse \"" + title + "\" from " + start);
  if (whileStanding) whileStanding();
  return TakeFirst(folders, std::string());
}

std::string SimDialogs::OpenFile(const std::string& title, const std::string& filter) {
  trace_.Add("open \"" + title + "\" \"" + filter + "\"");
  if (whileStanding) whileStanding();
  return TakeFirst(files, std::string());
}

CopyResult SimDialogs::CopyFile(const std::string& from, const std::string& to) {
  trace_.Add("copy " + from + " to " + to);
  const auto cancel = std::exchange(cancelsCopyAfter, std::nullopt);
  const auto content = files_.Read(from);
  if (!content) return CopyResult::kFailed;
  if (FoldCase(from) == FoldCase(to)) return CopyResult::kCopied;
  time_.Advance(std::min<std::chrono::nanoseconds>(copyTakes, kCopyBoxAfter));
  if (copyTakes > kCopyBoxAfter) {
    trace_.Add("copy box");
    if (whileStanding) whileStanding();
    const bool cancelled = cancel && *cancel < copyTakes;
    time_.Advance(std::max<std::chrono::nanoseconds>(cancelled ? *cancel : copyTakes, kCopyBoxAfter) - kCopyBoxAfter);
    if (cancelled) return CopyResult::kCancelled;
  }
  return files_.Replace(to, *content) ? CopyResult::kCopied : CopyResult::kFailed;
}

void SimDesktop::RunAtLogOn(const std::string& name, const std::string& command) {
  trace_.Add("run at log-on \"" + name + "\" " + command);
}

void SimDesktop::RegisterHotKey(int id, char letter, std::function<void()> pressed) {
  trace_.Add("hot key " + std::to_string(id) + " Ctrl+" + letter);
  hotKeys_[letter] = std::move(pressed);
}

void SimDesktop::SetScreenSaverActive(int value) { trace_.Add("screen saver " + std::to_string(value)); }

void SimDesktop::SetTaskbarVisible(bool show) {
  trace_.Add(show ? "taskbar shown" : "taskbar hidden");
  taskbarVisible = show;
}

void SimDesktop::ShowCursor(bool show) {
  trace_.Add(show ? "cursor up" : "cursor down");
  cursorCount += show ? 1 : -1;
}

void SimDesktop::TurnOffMonitor() { trace_.Add("monitor off"); }

void SimDesktop::StartTool(const std::string& path) { trace_.Add("tool " + path); }

void SimDesktop::OpenVolumePanel() {
  if (hasPanels) trace_.Add("volume panel");
}

void SimDesktop::OpenDatePanel() {
  if (hasPanels) trace_.Add("date panel");
}

void SimDesktop::ShowGuide() { trace_.Add("guide"); }

void SimDesktop::EndProcess() {
  trace_.Add("process ends");
  ended = true;
}

void SimDesktop::PressCtrl(char letter) {
  if (const auto key = hotKeys_.find(letter); key != hotKeys_.end()) key->second();
}

std::optional<PixelSize> SimPictures::Size(const std::string& path) const {
  const auto found = sizes.find(path);
  const bool stands = files_.Resolve(path) == path && files_.Kind(path) == FileKind::kRegular;
  return found == sizes.end() || !stands ? std::nullopt : std::optional(found->second);
}
