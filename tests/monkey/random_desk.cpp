// Answers and their lines.
#include "tests/monkey/random_desk.h"

#include "runtime/failure.h"
#include "runtime/print_job.h"
#include "store/film_codes.h"
#include "tests/monkey/collections.h"
#include "tests/story/story_file.h"

namespace monkey {
namespace {

// Half of the answers fit the question.
std::string AnswerTo(std::string_view prompt, Dice& dice) {
  if (dice.OneIn(2)) return RandomText(dice);
  if (prompt.find("Genre") != std::string_view::npos) return std::string(dice.OneOf(store::Genres).Code);
  if (prompt.find("File No") != std::string_view::npos) return std::to_string(1 + dice.Below(9));
  return RandomText(dice);
}

}  // namespace

forms::Answer RandomDesk::AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                                        forms::Buttons buttons) {
  constexpr std::string_view Icons[] = {"none", "warning", "question"};
  if (BeforeAnswer) BeforeAnswer();
  forms::Answer answer = forms::Answer::Ok;
  if (buttons == forms::Buttons::YesNo) answer = dice_.OneIn(2) ? forms::Answer::Yes : forms::Answer::No;
  constexpr std::string_view Answers[] = {"OK", "Yes", "No"};
  Effects.push_back("box " + std::string(Icons[static_cast<std::size_t>(icon)]) + " " + story::Quoted(title) + " " +
                    story::Quoted(text) + " " + std::string(Answers[static_cast<std::size_t>(answer)]));
  return answer;
}

std::string RandomDesk::InputBox(std::string_view title, std::string_view prompt) {
  const bool is_cancelled = dice_.OneIn(8);
  std::string answer = is_cancelled ? "" : AnswerTo(prompt, dice_);
  Effects.push_back("input " + story::Quoted(title) + " " + story::Quoted(prompt) + " " +
                    (is_cancelled ? "cancel" : story::Quoted(answer)));
  return answer;
}

std::optional<std::uint32_t> RandomDesk::ColourDialog(std::uint32_t) {
  if (dice_.OneIn(3)) {
    Effects.emplace_back("colour cancel");
    return std::nullopt;
  }
  auto colour = static_cast<std::uint32_t>(dice_.Below(0x1000000));
  Effects.push_back("colour " + std::to_string(colour));
  return colour;
}

void RandomDesk::Print(const runtime::PrintJob& job) {
  if (dice_.OneIn(20)) throw runtime::Failure{runtime::PrinterError, ""};
  Effects.push_back("printed " + std::to_string(job.Pages.size()));
}

void RandomDesk::Help(int topic) { Effects.push_back("help " + (topic == 0 ? "contents" : std::to_string(topic))); }

std::optional<std::string> RandomDesk::DriveFolder(char letter) {
  if (letter != 'a' || dice_.OneIn(4)) return std::nullopt;
  return std::string(DriveFolderName);
}

forms::DraftAnswer RandomDesk::AskDraft(std::string_view title) {
  constexpr forms::DraftAnswer Answers[] = {forms::DraftAnswer::Keep, forms::DraftAnswer::Drop,
                                            forms::DraftAnswer::Later};
  constexpr std::string_view Names[] = {"kept", "dropped", "asked about later"};
  std::size_t answer = dice_.Below(std::size(Answers));
  Effects.push_back("# the draft " + story::Quoted(title) + " is " + std::string(Names[answer]));
  return Answers[answer];
}

void RandomDesk::FailureReport(const runtime::Failure& failure) {
  ++Reports;
  Effects.push_back("stop " + story::Quoted(failure.Name));
}

}  // namespace monkey
