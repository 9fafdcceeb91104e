#pragma once

#include <string>
#include <string_view>
#include <vector>

// Actions of ActionScript 1 and 2, as bytes; they are joined by joining the texts.
namespace swf {

std::string PushText(std::string_view text);
std::string PushNumber(float number);  // known from version 4 on
std::string PushTrue();
std::string PushNull();

std::string GetProperty();   // clip path, property number -> value
std::string TextsEqual();    // two texts -> whether they are the same
std::string NumbersEqual();  // two numbers -> whether they are the same
std::string Not();
std::string GetVariable();  // name -> value
std::string SetVariable();  // name, value ->
std::string GetMember();    // object, name -> value
std::string CallMethod();   // arguments, last first, their count, object, name -> result
std::string LoadMovie();    // address, clip path ->
std::string Drop();
std::string Return();

// Properties of a clip by their numbers.
enum ClipProperty : int { kCurrentFrame = 4, kTotalFrames = 5, kTarget = 11, kUrl = 15 };
std::string PropertyOf(std::string_view clip, ClipProperty property);

// The address is opened in the target: a command to the page, or a movie into a level.
std::string GetUrl(std::string_view address, std::string_view target);
// Runs `actions` unless the value on the stack is true; takes the value.
std::string Unless(std::string_view actions);
// A function value without a name.
std::string Function(const std::vector<std::string>& parameters, std::string_view actions);

// The actions of a frame as a tag.
std::string DoActionTag(std::string_view actions);

}  // namespace swf
