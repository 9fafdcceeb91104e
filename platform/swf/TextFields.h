#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/swf/Tags.h"

namespace swf {

// How a text field looks. Measures in twentieths of a pixel; colour as 0xRRGGBBAA.
struct TextLooks {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int fontHeight = 240;
  std::uint32_t colour = 0x000000FF;
  int align = 0;  // 0 left, 1 right, 2 centre, 3 justified
  int leftMargin = 0;
  int rightMargin = 0;
  bool multiline = false;
};

// A field as its tag defines it.
struct TextField {
  int character = 0;
  std::string variable;  // what it shows; empty: only its own text
  std::size_t variableAt = 0;
  TextLooks looks;
};

std::optional<TextField> ReadTextField(const Tag& tag);

// A field that stands in a clip of its own now, with an empty clip "p" beside it. Empty the field and load a picture
// into "p", and the picture is where the text was.
struct WrappedField {
  std::string variable;            // as the movie knows it, on its root
  std::vector<std::string> clips;  // the clips that hold it: "_level0.T3", one for each depth that it is placed at
  TextLooks looks;
};

// Puts fields into clips of their own. Only fields that show a variable, are placed on the root and never with a name,
// and are neither exported nor part of a sprite or a button: a movie that reaches for them must find them as they were.
class TextWrapping {
 public:
  explicit TextWrapping(const std::vector<Tag>& tags);

  // What stands in the movie in place of the tag; nothing where it stays as it is.
  std::optional<std::string> Replacement(const Tag& tag);
  const std::vector<WrappedField>& Fields() const { return fields_; }

 private:
  struct Wrap {
    int field = 0;          // characters that the movie does not use: of the field itself
    int empty = 0;          // and of the empty clip beside it
    std::size_t index = 0;  // in fields_
  };

  std::string Definition(const Tag& tag, const TextField& field, const Wrap& wrap) const;

  std::map<int, Wrap> wraps_;  // by the field's character
  std::vector<WrappedField> fields_;
};

}  // namespace swf
