#include "platform/qt/flash/QtFlash.h"

#include "platform/qt/flash/MovieHeader.h"

namespace {

class QtSurface : public FlashSurface {
 public:
  void Put(const std::string& path) override {
    const auto header = ReadMovieHeader(path);
    totalFrames_ = header ? header->frameCount : 0;
  }
  int TotalFrames() const override { return totalFrames_; }
  void SetVariable(const std::string&, const std::string&) override {}
  void SetLooks(const FlashLooks&) override {}

 private:
  int totalFrames_ = 0;
};

}  // namespace

std::unique_ptr<FlashSurface> QtFlash::NewSurface(const std::string&, FlashListener&) {
  return std::make_unique<QtSurface>();
}
