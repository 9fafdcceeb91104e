#include "platform/qt/programs/SideProgram.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>

#include "platform/qt/programs/Wire.h"

namespace {

using std::chrono::milliseconds;

// One that does not even live so long is started again ever more seldom.
constexpr milliseconds kAGoodLife{10'000};
constexpr milliseconds kFirstPause{0};
constexpr milliseconds kLongestPause{30'000};

}  // namespace

SideProgram::SideProgram(std::string path, Heard heard, std::function<void()> begun)
    : path_(std::move(path)), heard_(std::move(heard)), begun_(std::move(begun)) {
  startAgain_.setSingleShot(true);
  startAgain_.setInterval(kFirstPause);
  connect(&startAgain_, &QTimer::timeout, this, &SideProgram::Start);
}

SideProgram::~SideProgram() {
  channel_.reset();
  if (!process_) return;
  process_->disconnect(this);
  process_->kill();
  process_->waitForFinished(1000);
}

// Nobody waits for its end: it comes when it comes.
void SideProgram::Stop() {
  startAgain_.stop();
  channel_.reset();
  if (!process_) return;
  process_->disconnect(this);
  process_->kill();
  QProcess* ending = process_.release();
  connect(ending, &QProcess::finished, ending, &QObject::deleteLater);
}

void SideProgram::Start() {
  if (channel_ || startAgain_.isActive()) return;
  auto ends = Channel::Pair();
  if (!ends) return;
  process_ = std::make_unique<QProcess>();
  process_->setProcessChannelMode(QProcess::ForwardedChannels);
  process_->setStandardInputFile(QProcess::nullDevice());
  process_->setChildProcessModifier([end = ends->second.Number()] {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (end == wire::kStation) {
      fcntl(end, F_SETFD, 0);
    } else {
      dup2(end, wire::kStation);
    }
  });
  const auto ended = [this] { QMetaObject::invokeMethod(this, &SideProgram::Ended, Qt::QueuedConnection); };
  connect(process_.get(), &QProcess::finished, this, ended);
  connect(process_.get(), &QProcess::errorOccurred, this, ended);
  channel_ = std::make_unique<Channel>(
      std::move(ends->first), [this](const QByteArray& message, Descriptor) { heard_(wire::Parts(message)); }, ended);
  sinceStart_.start();
  process_->start(QString::fromStdString(path_), QStringList());
  begun_();
}

void SideProgram::Send(const QCborArray& message, std::shared_ptr<const Descriptor> with) {
  if (channel_) channel_->Send(wire::Message(message), std::move(with));
}

void SideProgram::Ended() {
  if (!channel_) return;
  channel_.reset();
  process_->disconnect(this);
  process_->kill();
  process_.release()->deleteLater();
  const milliseconds pause = startAgain_.intervalAsDuration();
  const bool livedWell = milliseconds(sinceStart_.elapsed()) >= kAGoodLife;
  startAgain_.setInterval(livedWell ? kFirstPause : std::clamp(pause * 2, milliseconds(250), kLongestPause));
  startAgain_.start();
}
