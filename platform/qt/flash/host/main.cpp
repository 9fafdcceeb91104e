#include <QGuiApplication>

#include "platform/qt/flash/host/Answers.h"
#include "platform/qt/flash/host/MovieHost.h"
#include "platform/qt/programs/host/Unseen.h"

namespace {

// One process renders all pages. None is kept for starting processes without a box: none of those is ever many.
//
// Of the player's code each function is looked through and translated when it is first called, since the most of it
// never is. Locking the memory that it goes into behind each of them would take longer than translating it does. What
// is called often is translated once more, better, on other threads: not before the first movie is up, which would wait
// for them.
constexpr char kBrowser[] =
    "--process-per-site --no-unsandboxed-zygote "
    "--js-flags=\"--wasm-lazy-compilation --wasm-lazy-validation --no-wasm-write-protect-code-memory "
    "--wasm-tiering-budget=30000000\"";

}  // namespace

// Plays the movies of the station that started it, and ends with it.
int main(int argc, char** argv) {
  SettleUnseen();
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", kBrowser);
  Answers::RegisterScheme();
  QGuiApplication application(argc, argv);
  MovieHost host;
  return QGuiApplication::exec();
}
