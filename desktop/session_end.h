// The end of the session: SIGTERM, SIGINT and SIGHUP end the program cleanly, the draft of an open film stands. When
// the session manager asks, the user is asked as on closing and may call the logout off.
#pragma once

#include <QObject>
#include <QSocketNotifier>

class Program;
class QSessionManager;

namespace desktop {

class QtDesk;
class StackView;

// One at a time; the signals have their former effect again when it goes.
class SessionEnd final : public QObject {
 public:
  SessionEnd(::Program& program, StackView& view, QtDesk& desk);
  ~SessionEnd() override;

  // Asks about an open film unless a handler runs: true if the session may end. Yes and No end the program.
  bool AskToEnd();
  // The program ends at once, without a question. A box that is up closes unanswered.
  void End();

 protected:
  // The session manager tells the application to quit.
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Commit(QSessionManager& manager);

  ::Program& program_;
  StackView& view_;
  QtDesk& desk_;
  QSocketNotifier signalled_;
};

}  // namespace desktop
