#include "platform/qt/media/MpvEngine.h"

#include "platform/qt/media/MpvInstance.h"
#include "platform/qt/media/MpvPlayer.h"

MpvEngine::~MpvEngine() { MpvInstance::AwaitRest(std::chrono::seconds(2)); }

std::unique_ptr<MediaPlayer> MpvEngine::NewPlayer(const std::string& name, MediaListener& listener) {
  auto player = std::make_unique<MpvPlayer>(listener);
  player->setObjectName(QString::fromStdString(name));
  return player;
}
