// How a second start on a folder brings the window of the first to the front: it sends an empty message to a socket in
// the user's runtime folder, named by the collection's device and inode.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <functional>
#include <memory>

namespace desktop {

// Listens while it lives. Hold the folder's lock: a socket that a killed run has left behind is replaced.
class FrontListener final : public QObject {
 public:
  // Without a runtime folder it never hears anything.
  FrontListener(const QString& folder, std::function<void()> asked);
  ~FrontListener() override;

 private:
  void Receive();

  QByteArray address_;
  int socket_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void()> asked_;
};

// False if nobody listens for the folder, or another user does.
bool AskForFront(const QString& folder);

}  // namespace desktop
