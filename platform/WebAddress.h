#pragma once

#include <string>
#include <string_view>

// What a browser opens when this was typed into it: "news.example" is "http://news.example", "/srv/page.html" the file
// of that name. Blanks and line ends around it do not count. Empty for what is no page: nothing at all, a script, a
// mail address.
std::string WebAddress(std::string_view typed);

// The address of a file by its full path.
std::string FileAddress(std::string_view path);
