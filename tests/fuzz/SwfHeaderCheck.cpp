#include "tests/fuzz/SwfHeaderCheck.h"

#include "overlay/clsSWFHeaderParser.h"
#include "platform/sim/SimFiles.h"
#include "tests/fuzz/Require.h"

void CheckSwfHeader(const std::string& bytes) {
  SimFiles files;
  files.Put("/movie.swf", bytes);
  int warnings = 0;
  clsSWFHeaderParser parser(files, [&](const std::string&, const std::string&) { ++warnings; });
  parser.OpenFile("/movie.swf");
  Require(warnings == (bytes.empty() ? 1 : 0), "only an empty file is warned of");
  Require(parser.CompressionState() == bytes.starts_with('C'), "the first byte tells the packing");
  for (const int size : {parser.WidthDimension(), parser.HeightDimension()}) {
    Require(size >= INT16_MIN && size <= INT16_MAX, "a size has 16 bits");
  }
  Require(parser.FrameRate() >= 0 && parser.FrameRate() <= 255, "a rate is one byte");
  Require(parser.FrameCount() >= 0 && parser.FrameCount() <= 65535, "a count is two bytes");
  Require(parser.Version() > 4 || parser.FrameCount() <= 255, "an old count is one byte");
  parser.OpenFile("/absent.swf");
  Require(parser.Version() == 0 && parser.WidthDimension() == 0, "nothing is left of the former file");
}
