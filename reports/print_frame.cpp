// The steps that all reports share.
#include "reports/print_frame.h"

#include <array>
#include <charconv>

#include "runtime/clock.h"
#include "runtime/text.h"
#include "store/key_file.h"

namespace reports {
namespace {

constexpr std::string_view FontName = "Courier New";
constexpr int FontSize = 12;
constexpr std::string_view Rule = "____________________________________________________________________________";
static_assert(Rule.size() == 76);

constexpr std::size_t FigureLength = 5;

std::string DecimalText(double value) {
  std::array<char, 32> text{};
  auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

}  // namespace

void PrintFrame::Estimate(double pages) {
  Page.PageEstimate = pages < 1 ? "1" : DecimalText(pages);
  if (pages == 1) Page.PageEstimateTail = " page to print.";
  if (pages > 1) Page.PageEstimateTail = " pages to print.";
}

bool PrintFrame::Confirm(std::string_view question) {
  std::string prompt(question);
  prompt.append(Page.PageEstimate.Value(), 0, FigureLength).append(Page.PageEstimateTail);
  Page.PromptText = prompt;
  return Page.Desk.MessageBox(forms::Icon::Question, PrintBoxTitle, prompt, forms::Buttons::YesNo) ==
         forms::Answer::Yes;
}

bool PrintFrame::OpenKeys(std::string_view key_file) {
  if (Page.KeyFilePos >= 1) return true;
  if (Page.KeyFilePos == 0) Page.OpenKeyFile(key_file);
  Page.KeyFilePos = 1;
  return runtime::RoundToInt32(Keys()) >= 1;
}

double PrintFrame::Keys() const { return static_cast<double>(Page.Files.Length(KeyFileNo)) / store::KeyLength; }

void PrintFrame::TakeKey() {
  Page.KeyLengthWord = store::KeyLength;
  Page.TakeScanRecNo();
  Page.KeyRecNoText = runtime::Fixed(Page.KeyRecord, store::KeyLength).substr(store::KeyTitleWidth);
  Page.KeyFilePos += 1;
  if (keys_ == 0) keys_ = Keys();
  Page.Desk.Progress("Preparing the report", static_cast<double>(Page.KeyFilePos) / keys_);
}

bool PrintFrame::NextFilm(std::string_view key_file) {
  if (!OpenKeys(key_file)) return true;
  Page.ReadKeyPastBlank();
  if (PastLastKey()) return false;
  TakeKey();
  return true;
}

void PrintFrame::LoadFilm() {
  Page.ReadRecord(Page.ScanRecNo);
  Page.CurrentRecNo = Page.ScanRecNo;
}

void PrintFrame::SetUpFont() {
  Paper.SetFont(FontName, FontSize);
  Paper.SetBold(true);
}

void PrintFrame::FeedLines(std::int64_t count) {
  for (std::int64_t line = 1; line <= count; ++line) Paper.CarriageReturn();
}

void PrintFrame::PrintHeading(int tab, std::string_view title) {
  auto now = Page.Desk.Now();
  Paper.Print({runtime::Tab{tab}, title, runtime::DateText(now), "  ", runtime::TimeText(now)});
}

void PrintFrame::PrintRule() { Paper.Print({runtime::Tab{3}, Rule}); }

void PrintFrame::PrintPageNumber(int tab) {
  Paper.Print({runtime::Tab{tab}, "Page ", runtime::NumberItem{Page.PrintPending}});
}

void PrintFrame::TurnPage() {
  Page.PrintPending += 1;
  Paper.NewPage();
  LineCount = 0;
}

void PrintFrame::Release(std::string_view title) { Page.Desk.Print(Paper.EndDocument(runtime::Trim(title))); }

void PrintFrame::Close(const Closing& closing) {
  if (Page.PrintPending == 1) {
    Page.ClosingLead = "There is ";
    Page.ClosingTail = closing.OnePage;
  }
  if (Page.PrintPending > 1) {
    Page.ClosingLead = "There are ";
    Page.ClosingTail = " pages to print.";
  }
  std::string text(closing.EndText);
  text.append(Page.ClosingLead).append(std::to_string(Page.PrintPending)).append(Page.ClosingTail);
  Page.Desk.MessageBox(forms::Icon::Warning, closing.BoxTitle, text);
  Page.cmdReset_Click();
}

}  // namespace reports
