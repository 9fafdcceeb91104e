#include "platform/qt/programs/Channel.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QPointer>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t kLargestMessage = 256 * 1024;

}  // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

Descriptor::~Descriptor() {
  if (number_ >= 0) close(number_);
}

int Descriptor::Release() { return std::exchange(number_, -1); }

Channel::Channel(Descriptor socket, Heard heard, std::function<void()> ended)
    : socket_(std::move(socket)),
      heard_(std::move(heard)),
      ended_(std::move(ended)),
      readable_(socket_.Number(), QSocketNotifier::Read),
      writable_(socket_.Number(), QSocketNotifier::Write) {
  writable_.setEnabled(false);
  connect(&readable_, &QSocketNotifier::activated, this, &Channel::Read);
  connect(&writable_, &QSocketNotifier::activated, this, &Channel::Write);
}

std::optional<std::pair<Descriptor, Descriptor>> Channel::Pair() {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0) return std::nullopt;
  const int room = kLargestMessage * 4;
  for (const int end : ends) setsockopt(end, SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
  return std::pair(Descriptor(ends[0]), Descriptor(ends[1]));
}

void Channel::Send(const QByteArray& message, std::shared_ptr<const Descriptor> with) {
  if (static_cast<std::size_t>(message.size()) > kLargestMessage) return;
  waiting_.push_back({message, std::move(with)});
  if (waiting_.size() == 1) Write();
}

void Channel::Write() {
  while (!waiting_.empty()) {
    if (!WriteOne(waiting_.front())) {
      writable_.setEnabled(errno == EAGAIN);
      return;  // an end that is gone is told by reading
    }
    waiting_.pop_front();
  }
  writable_.setEnabled(false);
}

bool Channel::WriteOne(const Message& message) {
  iovec part{const_cast<char*>(message.bytes.data()), static_cast<std::size_t>(message.bytes.size())};
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
  msghdr head{};
  head.msg_iov = &part;
  head.msg_iovlen = 1;
  if (message.with) {
    head.msg_control = control.data();
    head.msg_controllen = control.size();
    cmsghdr* rights = CMSG_FIRSTHDR(&head);
    rights->cmsg_level = SOL_SOCKET;
    rights->cmsg_type = SCM_RIGHTS;
    rights->cmsg_len = CMSG_LEN(sizeof(int));
    const int number = message.with->Number();
    std::memcpy(CMSG_DATA(rights), &number, sizeof number);
  }
  return sendmsg(socket_.Number(), &head, MSG_NOSIGNAL) >= 0;
}

void Channel::Read() {
  QByteArray bytes(kLargestMessage, Qt::Uninitialized);
  for (const QPointer self(this); self;) {
    iovec part{bytes.data(), kLargestMessage};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    head.msg_control = control.data();
    head.msg_controllen = control.size();
    const ssize_t size = recvmsg(socket_.Number(), &head, MSG_CMSG_CLOEXEC);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (size <= 0) return End();
    Descriptor with;
    for (cmsghdr* one = CMSG_FIRSTHDR(&head); one != nullptr; one = CMSG_NXTHDR(&head, one)) {
      if (one->cmsg_level != SOL_SOCKET || one->cmsg_type != SCM_RIGHTS) continue;
      int number = -1;
      std::memcpy(&number, CMSG_DATA(one), sizeof number);
      with = Descriptor(number);
    }
    heard_(QByteArray(bytes.constData(), size), std::move(with));
  }
}

void Channel::End() {
  readable_.setEnabled(false);
  writable_.setEnabled(false);
  if (const auto ended = std::exchange(ended_, nullptr)) ended();
}
