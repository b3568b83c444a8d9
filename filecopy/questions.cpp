// The questions of the copy window.
#include "filecopy/frmCopy.h"
#include "runtime/clock.h"

namespace {

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::string Sentence(const std::string& name, const runtime::FileFacts& facts) {
  return runtime::Upper(name) + " was created or last modified on " + runtime::LongDateText(facts.Modified) + " at " +
         runtime::ShortTimeText(facts.Modified) + ". Its size is " + std::to_string(facts.Size) + " bytes. ";
}

}  // namespace

// Whether to close the window: yes, whatever the answer.
bool frmCopy::AskToReplace(const runtime::FileFacts& source, const runtime::FileFacts& target) {
  std::string question = std::string(15, ' ') + "REPLACE CURRENT FILE ON DRIVE " + Quoted(LetterWord) + "\r\n\r\n";
  question += Sentence(TargetPath, target) + " To replace this file with the one below, click " + Quoted("Yes") +
              " or quit click " + Quoted("No") + ".\r\n\r\n";
  question += "    WITH CURRENT FILE ON " + Quoted("HARD DISK") + "\r\n\r\n" + Sentence(SourceName, source);
  if (RecordScreen.Ask(question) == forms::Answer::Yes) {
    CopyToDrive(source.Size);
  } else {
    SkipChange = 1;
  }
  return true;
}

// Whether to close the window: only after Yes.
bool frmCopy::AskToCopy(const runtime::FileFacts& source) {
  bool yes = RecordScreen.Ask("Do you want to copy " + SourceName + " to Drive " + LetterWord + " hit Yes, or No ") ==
             forms::Answer::Yes;
  if (yes) {
    CopyToDrive(source.Size);
  } else {
    SkipChange = 1;
  }
  return yes;
}
