#include "platform/swf/HelperMovie.h"

#include "platform/swf/Actions.h"
#include "platform/swf/Bytes.h"
#include "platform/swf/Tags.h"

namespace swf {

namespace {

std::string Variable(std::string_view name) { return PushText(name) + GetVariable(); }

std::string AnswerTrue() { return PushTrue() + Return(); }

// flash.external.ExternalInterface.addCallback(name, null, function)
std::string Callback(std::string_view name, const std::string& function) {
  return function + PushNull() + PushText(name) + PushNumber(3) + Variable("flash") + PushText("external") +
         GetMember() + PushText("ExternalInterface") + GetMember() + PushText("addCallback") + CallMethod() + Drop();
}

}  // namespace

std::string HelperMovie() {
  const std::string set = Variable("n") + Variable("v") + SetVariable() + AnswerTrue();
  const std::string clear = Variable("n") + PushText("") + SetVariable() + AnswerTrue();
  const std::string pic = Variable("u") + Variable("t") + LoadMovie() + AnswerTrue();
  const std::string frame = Variable("_level0") + PushText("_currentframe") + GetMember() + Return();
  const std::string actions = Callback("set", Function({"n", "v"}, set)) + Callback("clear", Function({"n"}, clear)) +
                              Callback("pic", Function({"t", "u"}, pic)) + Callback("cf", Function({}, frame)) +
                              GetUrl("FSCommand:helper", "1");
  ByteWriter movie;
  movie.Bits(6, 5).Bits(0, 6).Bits(20, 6).Bits(0, 6).Bits(20, 6);  // a stage of one pixel
  movie.U16(25 << 8).U16(1);
  movie.Raw(WriteTag(kFileAttributes, std::string(4, '\0')));
  movie.Raw(DoActionTag(actions) + WriteTag(kShowFrame) + WriteTag(kEnd));
  const std::size_t length = 8 + movie.Bytes().size();
  return ByteWriter().Raw("FWS").U8(8).U32(static_cast<std::uint32_t>(length)).Raw(movie.Bytes()).Bytes();
}

}  // namespace swf
