#include <gtest/gtest.h>

#include "tests/fuzz/SwfCheck.h"
#include "tests/fuzz/SwfHeaderCheck.h"
#include "tests/platform/swf/MovieWriter.h"

namespace {

using namespace test_movies;

std::vector<std::string> Movies() {
  const std::string field = TextField(5, "text1") + Place(5, 1);
  const std::string script3 = Script3Attributes() + Symbol(0, "Main") + Show() + End();
  const std::string plain = Plain(field + Show() + Sprite(6, Place(7, 1)) + Export(6, "part") + Show() + End());
  return {plain, Plain(script3), WithZlib(plain), WithLzma(plain)};
}

TEST(SwfHarmTest, EveryHarmedMovieKeepsThePromises) {
  for (const std::string& whole : Movies()) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      CheckSwf(whole.substr(0, at));
      std::string harmed = whole;
      for (const char harm : {'\0', '\x01', '\x3F', '\x7F', '\x80', '\xFF'}) {
        harmed[at] = harm;
        CheckSwf(harmed);
      }
    }
  }
}

TEST(SwfHarmTest, TheReaderOfHeadersKeepsItsPromisesOfEveryHarmedHeader) {
  const std::string whole = Movies().front();
  for (std::size_t at = 0; at < 24; ++at) {
    CheckSwfHeader(whole.substr(0, at));
    std::string harmed = whole;
    for (int harm = 0; harm < 256; ++harm) {
      harmed[at] = static_cast<char>(harm);
      CheckSwfHeader(harmed);
    }
  }
}

}  // namespace
