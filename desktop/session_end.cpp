// A signal handler may do next to nothing, so it writes a byte to a pipe that the event loop watches.
#include "desktop/session_end.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>
#include <QSessionManager>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include "app/program.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"
#include "screen/closing.h"

namespace desktop {
namespace {

constexpr std::array Signals = {SIGTERM, SIGINT, SIGHUP};

// Made once; both ends stay open for the life of the process, since a signal may come at any time.
struct SignalPipe {
  int Read = -1, Write = -1;
  SignalPipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0) Read = ends[0], Write = ends[1];
  }
};
const SignalPipe& Pipe() {
  static const SignalPipe pipe;
  return pipe;
}

std::atomic<int> told = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void TellSignal(int) {
  int error = errno;
  const char mark = 1;
  [[maybe_unused]] ssize_t written = ::write(told, &mark, 1);  // a full pipe has told it already
  errno = error;
}

// A signal that the starter of the program has turned off, as nohup does, stays so.
void Handle(int signal, bool ours) {
  struct sigaction now {};
  ::sigaction(signal, nullptr, &now);
  if (now.sa_handler == SIG_IGN) return;
  struct sigaction wanted {};
  wanted.sa_handler = ours ? TellSignal : SIG_DFL;
  wanted.sa_flags = SA_RESTART;
  ::sigaction(signal, &wanted, nullptr);
}

}  // namespace

SessionEnd::SessionEnd(::Program& program, StackView& view, QtDesk& desk)
    : program_(program), view_(view), desk_(desk), signalled_(Pipe().Read, QSocketNotifier::Read) {
  told = Pipe().Write;
  for (int signal : Signals) Handle(signal, true);
  connect(&signalled_, &QSocketNotifier::activated, this, [this] {
    std::array<char, 16> marks{};
    while (::read(Pipe().Read, marks.data(), marks.size()) > 0) {
    }
    End();
  });
  connect(qApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::Commit, Qt::DirectConnection);
  qApp->installEventFilter(this);
}

SessionEnd::~SessionEnd() {
  for (int signal : Signals) Handle(signal, false);
}

void SessionEnd::End() { desk_.EndSession(); }

// Where no question is allowed nothing is done: the draft stands, and the session manager tells us to quit.
void SessionEnd::Commit(QSessionManager& manager) {
  if (!program_.HasOpenFilm() || view_.Delivering() || !manager.allowsInteraction()) return;
  bool may_end = AskToEnd();
  manager.release();
  if (!may_end) manager.cancel();
}

bool SessionEnd::AskToEnd() {
  if (!program_.HasOpenFilm() || view_.Delivering()) return true;
  QMessageBox box(view_.Front());
  box.setWindowTitle("Reelora Prima");
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(screen::UnsavedQuestion));
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  int pressed = box.exec();
  bool answered = pressed == QMessageBox::Yes || pressed == QMessageBox::No;
  if (answered) view_.Deliver([&] { program_.EndSession(pressed == QMessageBox::Yes); });
  return answered || desk_.SessionHasEnded();
}

bool SessionEnd::eventFilter(QObject* target, QEvent* event) {
  if (target != qApp || event->type() != QEvent::Quit) return QObject::eventFilter(target, event);
  End();
  return true;
}

}  // namespace desktop
