#include "platform/WebAddress.h"

#include <algorithm>
#include <cstddef>

#include "platform/CaseFold.h"

namespace {

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Line ends and tabs are nowhere part of an address; browsers leave them out.
std::string Cleaned(std::string_view typed) {
  while (!typed.empty() && IsBlank(typed.front())) typed.remove_prefix(1);
  while (!typed.empty() && IsBlank(typed.back())) typed.remove_suffix(1);
  std::string clean(typed);
  std::erase_if(clean, [](char c) { return c == '\r' || c == '\n' || c == '\t' || c == '\0'; });
  return clean;
}

// What stands before the first colon, if it can be a scheme: "localhost:8080" and "10.0.0.1:80" have none.
std::string_view SchemeOf(std::string_view address) {
  const std::size_t colon = address.find(':');
  if (colon == std::string_view::npos || colon == 0 || !IsLetter(address.front())) return {};
  const std::string_view scheme = address.substr(0, colon);
  const bool isName = std::all_of(scheme.begin(), scheme.end(),
                                  [](char c) { return IsLetter(c) || IsDigit(c) || c == '+' || c == '-' || c == '.'; });
  const std::string_view rest = address.substr(colon + 1);
  const std::size_t digits = std::min(rest.find_first_not_of("0123456789"), rest.size());
  const bool isPort = digits > 0 && (digits == rest.size() || rest[digits] == '/' || rest[digits] == '?');
  return isName && !isPort ? scheme : std::string_view();
}

}  // namespace

std::string WebAddress(std::string_view typed) {
  const std::string address = Cleaned(typed);
  if (address.empty()) return "";
  if (address.starts_with("//")) return "http:" + address;
  if (address.front() == '/') return FileAddress(address);
  const std::string_view scheme = SchemeOf(address);
  if (scheme.empty()) return "http://" + address;
  for (const char* known : {"http", "https", "file"}) {
    if (EqualIgnoringCase(scheme, known)) return address;
  }
  return "";
}

std::string FileAddress(std::string_view path) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsLetter(c) || IsDigit(c) || (c != '\0' && std::string_view("/-_.~+,=@").find(c) != std::string_view::npos)) {
      address += c;
    } else {
      address += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return address;
}
