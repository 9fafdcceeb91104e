#pragma once

#include <QAbstractNativeEventFilter>
#include <functional>
#include <map>

// Keys with Ctrl that the station hears whatever program has the keyboard, with Caps Lock and Num Lock on or off. A key
// that is held down counts once. Nothing happens for a key that another program holds, and without X.
class HotKeys : public QAbstractNativeEventFilter {
 public:
  HotKeys();
  ~HotKeys() override;

  // `pressed` runs from the message loop. The same id again takes the place of the former key.
  void Register(int id, char letter, std::function<void()> pressed);

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  struct Key {
    unsigned int code;
    std::function<void()> pressed;
  };

  std::map<int, Key> keys_;
  std::map<unsigned int, unsigned int>
      released_;  // key code, and when it was let go last, in the server's milliseconds
};
