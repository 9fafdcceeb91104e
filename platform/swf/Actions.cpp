#include "platform/swf/Actions.h"

#include <bit>
#include <cstdint>

#include "platform/swf/Bytes.h"
#include "platform/swf/Tags.h"

namespace swf {

namespace {

std::string Short(int code) { return std::string(1, static_cast<char>(code)); }

std::string Long(int code, const std::string& data) {
  return ByteWriter().U8(code).U16(static_cast<std::uint32_t>(data.size())).Raw(data).Bytes();
}

std::string Push(const ByteWriter& value) { return Long(0x96, value.Bytes()); }

}  // namespace

std::string PushText(std::string_view text) { return Push(ByteWriter().U8(0).Text(text)); }
std::string PushNumber(float number) { return Push(ByteWriter().U8(1).U32(std::bit_cast<std::uint32_t>(number))); }
std::string PushNull() { return Push(ByteWriter().U8(2)); }
std::string PushTrue() { return Push(ByteWriter().U8(5).U8(1)); }

std::string GetProperty() { return Short(0x22); }
std::string TextsEqual() { return Short(0x13); }
std::string NumbersEqual() { return Short(0x0E); }
std::string Not() { return Short(0x12); }
std::string GetVariable() { return Short(0x1C); }
std::string SetVariable() { return Short(0x1D); }
std::string GetMember() { return Short(0x4E); }
std::string CallMethod() { return Short(0x52); }
std::string LoadMovie() { return Long(0x9A, Short(0x40)); }
std::string Drop() { return Short(0x17); }
std::string Return() { return Short(0x3E); }

std::string PropertyOf(std::string_view clip, ClipProperty property) {
  return PushText(clip) + PushNumber(static_cast<float>(property)) + GetProperty();
}

std::string GetUrl(std::string_view address, std::string_view target) {
  return Long(0x83, ByteWriter().Text(address).Text(target).Bytes());
}

std::string Unless(std::string_view actions) {
  return Long(0x9D, ByteWriter().U16(static_cast<std::uint32_t>(actions.size())).Bytes()) + std::string(actions);
}

std::string Function(const std::vector<std::string>& parameters, std::string_view actions) {
  ByteWriter head;
  head.Text("").U16(static_cast<std::uint32_t>(parameters.size()));
  for (const std::string& parameter : parameters) head.Text(parameter);
  head.U16(static_cast<std::uint32_t>(actions.size()));
  return Long(0x9B, head.Bytes()) + std::string(actions);
}

std::string DoActionTag(std::string_view actions) { return WriteTag(kDoAction, std::string(actions) + '\0'); }

}  // namespace swf
