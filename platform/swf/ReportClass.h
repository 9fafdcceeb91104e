#pragma once

#include <string>

namespace swf {

// The tags' content for a movie of ActionScript 3: a class `station__.X` over the document class X that tells the page
// every frame ("frame" with the number) and lets it set texts and properties of the root:
//   set(name, value)   the text of the child of that name, else the property; answers true
// It is ready with the command "helper". `documentClass` is the name in the movie's own table: "a.b::X" or "a.b.X".
std::string ReportClassAbc(const std::string& documentClass);

// The name of that class.
std::string ReportClassName(const std::string& documentClass);

}  // namespace swf
