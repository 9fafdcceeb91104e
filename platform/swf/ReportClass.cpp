#include "platform/swf/ReportClass.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "platform/swf/Bytes.h"

// Source of the layout and of all numbers: the published overview of the ActionScript virtual machine 2, chapters 4
// and 5.
namespace swf {

namespace {

constexpr char kPackage[] = "station__";

struct ClassName {
  std::string package;
  std::string name;
};

ClassName Split(const std::string& full) {
  if (const std::size_t at = full.rfind("::"); at != std::string::npos)
    return {full.substr(0, at), full.substr(at + 2)};
  if (const std::size_t at = full.rfind('.'); at != std::string::npos) return {full.substr(0, at), full.substr(at + 1)};
  return {"", full};
}

std::string U30(std::size_t value) {
  std::string bytes;
  for (; value >= 0x80; value >>= 7) bytes.push_back(static_cast<char>((value & 0x7F) | 0x80));
  bytes.push_back(static_cast<char>(value));
  return bytes;
}

// A pool of constants: the first of its kind has the number 1.
class Pool {
 public:
  std::string Number(const std::string& entry) {
    auto found = std::ranges::find(entries_, entry);
    if (found == entries_.end()) found = entries_.insert(entries_.end(), entry);
    return U30(static_cast<std::size_t>(found - entries_.begin()) + 1);
  }
  std::string Bytes() const {
    std::string bytes = U30(entries_.size() + 1);
    for (const std::string& entry : entries_) bytes += entry;
    return bytes;
  }

 private:
  std::vector<std::string> entries_;
};

class Constants {
 public:
  std::string Text(const std::string& text) { return strings_.Number(U30(text.size()) + text); }
  std::string Namespace(const std::string& package) { return namespaces_.Number("\x16" + Text(package)); }
  std::string Name(const std::string& package, const std::string& name) {
    const std::string space = Namespace(package);
    return names_.Number("\x07" + space + Text(name));
  }
  // A name that is only known while running, in the public namespace.
  std::string LateName() {
    const std::string space = Namespace("");
    sets_.Number(U30(1) + space);
    return names_.Number("\x1B" + U30(1));
  }
  std::string Bytes() const {
    const std::string noNumbers(3, '\0');  // no integers, no unsigned ones, no doubles
    return noNumbers + strings_.Bytes() + namespaces_.Bytes() + sets_.Bytes() + names_.Bytes();
  }

 private:
  Pool strings_, namespaces_, sets_, names_;
};

// Instructions by their numbers.
const std::string kThis = "\xD0";
const std::string kFirst = "\xD1";
const std::string kSecond = "\xD2";
const std::string kThird = "\xD3";
const std::string kScope = std::string("\xD0\x30");  // every method begins with it: this as scope
const std::string kReturnNothing = "\x47";
const std::string kTrueBack = "\x26\x48";
std::string GetProperty(const std::string& name) { return "\x66" + name; }
std::string SetProperty(const std::string& name) { return "\x61" + name; }
std::string Lexical(const std::string& name) { return "\x60" + name; }
std::string Find(const std::string& name) { return "\x5D" + name; }
std::string Push(const std::string& text) { return "\x2C" + text; }
std::string Call(const std::string& name, std::size_t arguments) { return "\x46" + name + U30(arguments); }
std::string CallDropping(const std::string& name, std::size_t arguments) { return "\x4F" + name + U30(arguments); }
// Skips `code` when the value on the stack is false.
std::string If(const std::string& code) {
  const auto size = static_cast<std::uint32_t>(code.size());
  return "\x12" + ByteWriter().U8(size).U8(size >> 8).U8(size >> 16).Bytes() + code;
}

struct Method {
  std::size_t arguments = 0;
  std::size_t stack = 0;
  std::size_t locals = 0;
  std::size_t scopeBegin = 0;
  std::size_t scopeEnd = 0;
  std::string code;
};

std::string Declaration(const Method& method) {
  return U30(method.arguments) + U30(0) + std::string(method.arguments, '\0') + U30(0) + std::string(1, '\0');
}

std::string Body(std::size_t number, const Method& method) {
  return U30(number) + U30(method.stack) + U30(method.locals) + U30(method.scopeBegin) + U30(method.scopeEnd) +
         U30(method.code.size()) + method.code + U30(0) + U30(0);  // no exceptions, no traits
}

}  // namespace

std::string ReportClassName(const std::string& documentClass) {
  return std::string(kPackage) + "." + Split(documentClass).name;
}

std::string ReportClassAbc(const std::string& documentClass) {
  const auto [package, name] = Split(documentClass);
  Constants constants;
  constants.Text("");
  const std::string own = constants.Name(kPackage, name);
  const std::string above = constants.Name(package, name);
  const std::string report = constants.Name("", "__f");
  const std::string set = constants.Name("", "__s");
  const std::string command = constants.Name("flash.system", "fscommand");
  const std::string listen = constants.Name("", "addEventListener");
  const std::string external = constants.Name("flash.external", "ExternalInterface");
  const std::string addCallback = constants.Name("", "addCallback");
  const std::string frame = constants.Name("", "currentFrame");
  const std::string childByName = constants.Name("", "getChildByName");
  const std::string text = constants.Name("", "text");
  const std::string late = constants.LateName();
  const auto push = [&constants](const std::string& value) { return Push(constants.Text(value)); };

  // First the listeners, then the class above: if that one throws, the frames are told all the same.
  const std::string make = kScope + kThis + push("exitFrame") + kThis + GetProperty(report) + CallDropping(listen, 2) +
                           Lexical(external) + push("set") + kThis + GetProperty(set) + CallDropping(addCallback, 2) +
                           Find(command) + push("helper") + push("1") + CallDropping(command, 2) + kThis + "\x49" +
                           std::string(1, '\0') + kReturnNothing;
  const std::string tell = kScope + Find(command) + push("frame") + kThis + GetProperty(frame) + "\x70" +
                           CallDropping(command, 2) + kReturnNothing;
  const std::string setText = kThird + kSecond + SetProperty(text) + kTrueBack;
  const std::string hasText = push("text") + kThird + "\xB4" + If(setText);
  const std::string setAny = kScope + kThis + kFirst + Call(childByName, 1) + "\x63\x03" + kThird + If(hasText) +
                             kThis + kFirst + kSecond + SetProperty(late) + kTrueBack;
  const std::string script = kScope + "\x65" + std::string(1, '\0') + Lexical(above) + "\x58" + std::string(1, '\0') +
                             "\x68" + own + kReturnNothing;
  const std::vector<Method> methods = {{0, 4, 1, 0, 2, make},
                                       {1, 4, 2, 0, 2, tell},
                                       {2, 4, 4, 0, 2, setAny},
                                       {0, 3, 1, 0, 2, script},
                                       {0, 1, 1, 0, 1, kScope + kReturnNothing}};

  const auto method = [](const std::string& called, std::size_t number) {
    return called + '\x01' + U30(0) + U30(number);
  };
  std::string abc = ByteWriter().U16(16).U16(46).Bytes() + constants.Bytes() + U30(methods.size());
  for (const Method& one : methods) abc += Declaration(one);
  abc += U30(0);                                                                  // no metadata
  abc += U30(1) + own + above + std::string(1, '\0') + U30(0);                    // one class, open, no interfaces
  abc += U30(0) + U30(2) + method(report, 1) + method(set, 2);                    // its constructor and methods
  abc += U30(4) + U30(0);                                                         // the class itself
  abc += U30(1) + U30(3) + U30(1) + own + std::string("\x04") + U30(1) + U30(0);  // one script that makes it
  abc += U30(methods.size());
  for (std::size_t i = 0; i < methods.size(); ++i) abc += Body(i, methods[i]);
  return abc;
}

}  // namespace swf
