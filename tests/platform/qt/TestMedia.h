#pragma once

#include <QColor>
#include <QSize>
#include <chrono>
#include <functional>
#include <string>

// Media files made for the tests, in a folder that goes with the process.
namespace test_media {

// The path of a file of that name in the folder; nothing is made there.
std::string PathOf(const std::string& name);
// A clip of one colour with a tone, 25 frames a second.
std::string Clip(const std::string& name, const QColor& colour, double seconds, QSize size = {320, 180});
// A tone alone.
std::string Tone(const std::string& name, double seconds);
std::string Picture(const std::string& name, const QColor& colour, QSize size);
std::string Text(const std::string& name, const std::string& content);
// The first part of another file, under a new name.
std::string FirstPart(const std::string& name, const std::string& of, double share);

}  // namespace test_media

// Runs the event loop until `condition` holds; false when it does not within `patience`, which is far longer than it
// takes on any machine.
bool Until(const std::function<bool()>& condition, std::chrono::milliseconds patience = std::chrono::seconds(60));
// Runs the event loop for that long.
void Pass(std::chrono::milliseconds time);
