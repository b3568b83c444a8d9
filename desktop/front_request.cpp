// Datagram sockets: nothing to accept, nothing to read but the fact that a message came.
#include "desktop/front_request.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <utility>

namespace desktop {
namespace {

// Empty if there is no such folder or no runtime folder.
QByteArray AddressOf(const QString& folder) {
  struct stat status {};
  QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (runtime.isEmpty() || ::stat(QFile::encodeName(folder).constData(), &status) < 0) return {};
  QString name = QStringLiteral("reelora-prima-%1-%2").arg(status.st_dev, 0, 16).arg(status.st_ino, 0, 16);
  return QFile::encodeName(QDir(runtime).filePath(name));
}

// Runs a call that takes a socket address; false if the address is too long or the call fails.
template <typename Call>
bool WithAddress(const QByteArray& path, Call call) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.isEmpty() || static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) return false;
  std::copy(path.begin(), path.end(), std::begin(address.sun_path));
  return call(reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(sizeof address)) >= 0;
}

int OpenSocket() { return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

}  // namespace

FrontListener::FrontListener(const QString& folder, std::function<void()> asked)
    : address_(AddressOf(folder)), asked_(std::move(asked)) {
  socket_ = OpenSocket();
  if (socket_ < 0 || address_.isEmpty()) return;
  ::unlink(address_.constData());
  if (!WithAddress(address_, [this](auto address, auto length) { return ::bind(socket_, address, length); })) return;
  notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &FrontListener::Receive);
}

FrontListener::~FrontListener() {
  if (notifier_) ::unlink(address_.constData());
  notifier_.reset();
  if (socket_ >= 0) ::close(socket_);
}

void FrontListener::Receive() {
  std::array<char, 1> message{};
  bool came = false;
  while (::recv(socket_, message.data(), message.size(), 0) >= 0) came = true;
  if (came) asked_();
}

bool AskForFront(const QString& folder) {
  int socket = OpenSocket();
  if (socket < 0) return false;
  bool sent = WithAddress(AddressOf(folder),
                          [&](auto address, auto length) { return ::sendto(socket, "", 0, 0, address, length); });
  ::close(socket);
  return sent;
}

}  // namespace desktop
