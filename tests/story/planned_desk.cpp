// Each thing asked of the desk becomes a line of the stories' notation, which the next planned line must equal.
#include "tests/story/planned_desk.h"

#include <iterator>
#include <utility>

#include "runtime/clock.h"
#include "runtime/failure.h"

namespace story {
namespace {

using Form = Argument::Form;

Line Event(std::string verb, std::vector<Argument> arguments = {}) {
  return {0, Role::Effect, std::move(verb), std::move(arguments)};
}

Argument Word(std::string text) { return {Form::Word, std::move(text)}; }
Argument Text(std::string_view text) { return {Form::Text, std::string(text)}; }

// A planned line may say ANY for a text; the answer may follow.
bool Equals(const Line& planned, const Line& got) {
  if (planned.Verb != got.Verb || planned.Arguments.size() < got.Arguments.size()) return false;
  for (std::size_t index = 0; index < got.Arguments.size(); ++index) {
    const Argument& wanted = planned.Arguments[index];
    bool any = wanted.Is("ANY") && got.Arguments[index].As == Form::Text;
    if (!any && wanted != got.Arguments[index]) return false;
  }
  return true;
}

std::string_view NameOf(forms::Icon icon) {
  switch (icon) {
    case forms::Icon::Warning:
      return "warning";
    case forms::Icon::Question:
      return "question";
    default:
      return "none";
  }
}

// The answer that a button's name gives, if the box has that button.
std::optional<forms::Answer> AnswerOf(std::string_view button, forms::Buttons buttons) {
  if (buttons == forms::Buttons::Ok) return button == "OK" ? std::optional(forms::Answer::Ok) : std::nullopt;
  if (button == "Yes") return forms::Answer::Yes;
  if (button == "No") return forms::Answer::No;
  return std::nullopt;
}

}  // namespace

void PlannedDesk::Plan(int action_line, std::vector<Line> effects) {
  action_line_ = action_line;
  planned_.assign(std::make_move_iterator(effects.begin()), std::make_move_iterator(effects.end()));
}

void PlannedDesk::Finish() {
  if (!planned_.empty()) Note(planned_.front().Number, Differs(planned_.front().Notation(), "nothing"));
}

void PlannedDesk::Note(int line, std::string what) {
  if (!first_) first_ = Difference{line, std::move(what)};
  planned_.clear();
}

std::optional<Line> PlannedDesk::Take(const Line& got, std::string_view remark) {
  std::string shown = got.Notation() + std::string(remark);
  if (planned_.empty()) {
    Note(action_line_, Differs("nothing more", shown));
    return std::nullopt;
  }
  if (!Equals(planned_.front(), got)) {
    Note(planned_.front().Number, Differs(planned_.front().Notation(), shown));
    return std::nullopt;
  }
  Line line = std::move(planned_.front());
  planned_.pop_front();
  return line;
}

forms::Answer PlannedDesk::AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                                         forms::Buttons buttons) {
  bool ok_only = buttons == forms::Buttons::Ok;
  forms::Answer harmless = ok_only ? forms::Answer::Ok : forms::Answer::No;
  std::optional<Line> line = Take(Event("box", {Word(std::string(NameOf(icon))), Text(title), Text(text)}),
                                  ok_only ? " with OK" : " with Yes and No");
  if (!line) return harmless;
  std::optional<forms::Answer> answer = AnswerOf(line->Text(3), buttons);
  if (!answer) Note(line->Number, Differs("the button " + line->Text(3), ok_only ? "OK alone" : "Yes and No"));
  return answer.value_or(harmless);
}

std::string PlannedDesk::InputBox(std::string_view title, std::string_view prompt) {
  std::optional<Line> line = Take(Event("input", {Text(title), Text(prompt)}));
  if (!line) return "";
  if (line->Arguments[2].As == Form::Text) return line->Text(2);
  if (!line->Arguments[2].Is("cancel")) Note(line->Number, Differs("an answer in quotes or cancel", line->Text(2)));
  return "";
}

void PlannedDesk::Beep() { Take(Event("beep")); }

std::optional<std::uint32_t> PlannedDesk::ColourDialog(std::uint32_t start) {
  static_cast<void>(start);
  std::optional<Line> line = Take(Event("colour"));
  if (!line || line->Arguments[0].Is("cancel")) return std::nullopt;
  if (line->Text(0).find_first_not_of("0123456789") != std::string::npos || line->Text(0).size() > 8) {
    Note(line->Number, Differs("a colour or cancel", line->Text(0)));
    return std::nullopt;
  }
  return static_cast<std::uint32_t>(line->Number32(0));
}

void PlannedDesk::PrinterDialog() { Take(Event("printer-setup")); }

void PlannedDesk::Print(const runtime::PrintJob& job) {
  world_.Document = job;
  Take(Event("printed", {Word(std::to_string(job.Pages.size()))}));
}

void PlannedDesk::Help(int topic) { Take(Event("help", {Word(topic == 0 ? "contents" : std::to_string(topic))})); }

std::chrono::local_seconds PlannedDesk::Now() { return world_.Clock.value_or(runtime::LocalTime()); }

std::string PlannedDesk::DriveLetters() {
  std::string letters;
  for (const auto& [letter, folder] : world_.Drives) letters += letter;
  return letters;
}

std::optional<std::string> PlannedDesk::DriveFolder(char letter) {
  auto drive = world_.Drives.find(DriveLetter({&letter, 1}));
  if (drive == world_.Drives.end() || !drive->second) return std::nullopt;
  return drive->second->string();
}

void PlannedDesk::Closed() { Take(Event("end")); }

void PlannedDesk::FailureReport(const runtime::Failure& failure) {
  Take(Event("stop", {Text(failure.Name)}), failure.File.empty() ? "" : " for " + failure.File);
}

}  // namespace story
