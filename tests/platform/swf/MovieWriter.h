#pragma once

#include <string>
#include <string_view>

#include "platform/swf/Tags.h"

// Small movies for the tests, made from tags.
namespace test_movies {

struct Shape {
  int version = 8;
  int frameCount = 3;
  int framesPerSecond = 25;
  int width = 550;  // pixels
  int height = 400;
};

std::string Plain(const std::string& tags, const Shape& shape = {});
std::string WithZlib(const std::string& plain);
std::string WithLzma(const std::string& plain);

// A text field that shows `variable`, of that many pixels.
std::string TextField(int character, std::string_view variable);
std::string Place(int character, int depth, std::string_view name = {});
std::string Sprite(int character, const std::string& tags);
std::string Export(int character, std::string_view name);
std::string Script3Attributes();
std::string Symbol(int character, std::string_view name);

inline std::string Show() { return swf::WriteTag(swf::kShowFrame); }
inline std::string End() { return swf::WriteTag(swf::kEnd); }

}  // namespace test_movies
