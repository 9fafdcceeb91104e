#include "platform/qt/forms/KeyCodes.h"

#include <QKeyEvent>
#include <algorithm>

#include "platform/toolkit/UserControl.h"

namespace {

struct Row {
  int key;
  std::int16_t code;
};
constexpr Row kControlKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Backtab, 9}, {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},   {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},
    {Qt::Key_Home, 36},     {Qt::Key_Left, 37},    {Qt::Key_Up, 38},     {Qt::Key_Right, 39},    {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},
};
constexpr std::int16_t kFirstFunctionKey = 112;

bool IsBetween(int key, int first, int last) { return key >= first && key <= last; }

}  // namespace

std::int16_t KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  const bool isItsOwn = IsBetween(key, Qt::Key_0, Qt::Key_9) || IsBetween(key, Qt::Key_A, Qt::Key_Z);
  if (isItsOwn) return static_cast<std::int16_t>(key);
  if (IsBetween(key, Qt::Key_F1, Qt::Key_F24)) return static_cast<std::int16_t>(kFirstFunctionKey + key - Qt::Key_F1);
  const auto row = std::ranges::find(kControlKeys, key, &Row::key);
  return row == std::end(kControlKeys) ? std::int16_t{0} : row->code;
}

std::int16_t KeyAsciiOf(const QKeyEvent& event) {
  const QString text = event.text();
  const char16_t letter = text.isEmpty() ? u'\0' : text[0].unicode();
  return letter < 256 ? static_cast<std::int16_t>(letter) : std::int16_t{0};
}

std::int16_t ShiftOf(Qt::KeyboardModifiers held) {
  int sum = 0;
  if (held.testFlag(Qt::ShiftModifier)) sum += UserControl::kShift;
  if (held.testFlag(Qt::ControlModifier)) sum += UserControl::kCtrl;
  if (held.testFlag(Qt::AltModifier)) sum += UserControl::kAlt;
  return static_cast<std::int16_t>(sum);
}
