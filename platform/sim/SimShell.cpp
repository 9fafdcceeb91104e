#include "platform/sim/SimShell.h"

#include <utility>

namespace {

template <class T>
T TakeFirst(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

Answer SimDialogs::MsgBox(const std::string& text, const std::string& title, Buttons buttons) {
  trace_.Add("box \"" + text + "\" \"" + title + "\"");
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
