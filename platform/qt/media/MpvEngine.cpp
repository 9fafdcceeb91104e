#include "platform/qt/media/MpvEngine.h"

#include "platform/qt/media/MpvInstance.h"
#include "platform/qt/media/MpvPlayer.h"

MpvEngine::~MpvEngine() { MpvInstance::AwaitRest(std::chrono::seconds(2)); }

std::unique_ptr<MediaPlayer> MpvEngine::NewPlayer(MediaListener& listener) {
  return std::make_unique<MpvPlayer>(listener, decoding_ == Decoding::kHardwareWhereThereIs);
}
