// All that a handler may ask of the world outside the program's windows and files.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace runtime {
struct Failure;
struct PrintJob;
}  // namespace runtime

namespace forms {

enum class Icon { None, Warning, Question };
enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };
// What happens to a film that was being typed when the program stopped. Later: it is asked about at the next start.
enum class DraftAnswer { Keep, Drop, Later };

// Thrown by a box that the end of the session closes unanswered: the event goes no further.
struct SessionEnded {};

class Desk {
 public:
  virtual ~Desk() = default;

  // Shows the box and waits for its answer.
  Answer MessageBox(Icon icon, std::string_view title, std::string_view text, Buttons buttons = Buttons::Ok) {
    ++boxes_shown_;
    Answer answer = AskMessageBox(icon, title, text, buttons);
    if (answer == Answer::No) ++no_answers_;
    return answer;
  }
  // How many message boxes have come up so far.
  unsigned BoxesShown() const { return boxes_shown_; }
  // How many of them were answered No.
  unsigned NoAnswers() const { return no_answers_; }

  // The answer as typed, "" on Cancel.
  virtual std::string InputBox(std::string_view title, std::string_view prompt) = 0;
  virtual void Beep() = 0;
  // The colour dialog, starting from that colour; nothing on Cancel. 24 bits, red in the low byte.
  virtual std::optional<std::uint32_t> ColourDialog(std::uint32_t start) = 0;
  virtual void PrinterDialog() = 0;
  // Releases a job to the printer; throws the failure "Printer error".
  virtual void Print(const runtime::PrintJob& job) = 0;
  // Opens the help viewer at a topic, at its contents for 0.
  virtual void Help(int topic) = 0;
  virtual std::chrono::local_seconds Now() = 0;
  // The letters of the drives that there are, in order, and the folder of the disk in one; nothing where it holds no
  // disk.
  virtual std::string DriveLetters() = 0;
  virtual std::optional<std::string> DriveFolder(char letter) = 0;
  // What has changed is painted: at most once a display frame, or at once.
  virtual void Repaint() = 0;
  virtual void RepaintNow() = 0;
  // How far long work is, from 0 to 1; may be called often.
  virtual void Progress(std::string_view work, double done) {
    static_cast<void>(work);
    static_cast<void>(done);
  }
  // A file has been copied to the disk in a drive.
  virtual void Copied(std::string_view file, char drive, std::int64_t bytes) {
    static_cast<void>(file);
    static_cast<void>(drive);
    static_cast<void>(bytes);
  }
  // One plain box at the start: whether to keep the film of that title.
  virtual DraftAnswer AskDraft(std::string_view title) {
    static_cast<void>(title);
    return DraftAnswer::Later;
  }
  // Something that the user should know and need not answer.
  virtual void Notice(std::string_view text) { static_cast<void>(text); }
  // A handler ends the program: no event is delivered any more.
  void End() { ended_ = true; }
  bool Ended() const { return ended_; }
  // The program has ended by its own doing.
  virtual void Closed() = 0;
  // The program stops: a box that names the failure and the file concerned, if any.
  virtual void FailureReport(const runtime::Failure& failure) = 0;

 protected:
  virtual Answer AskMessageBox(Icon icon, std::string_view title, std::string_view text, Buttons buttons) = 0;

 private:
  unsigned boxes_shown_ = 0;
  unsigned no_answers_ = 0;
  bool ended_ = false;
};

}  // namespace forms
