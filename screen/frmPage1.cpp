// Puts the record screen together: wires its handlers and holds what they share.
#include "screen/frmPage1.h"

#include "forms/window_stack.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

namespace {
// Help topics of the bare window.
constexpr int Page1Topic = 150;
constexpr int Page2Topic = 180;
}  // namespace

frmPage1::frmPage1(forms::WindowStack& windows, runtime::Files& files)
    : PageControls(windows, "frmPage1", "Form1", screen::GridWidth, screen::GridHeight),
      Files(files),
      Desk(windows.Desk) {
  CancelButton = &cmdPrevious;
  txtAutoSave.TakesTyping = false;
  txtAutoSort.TakesTyping = false;
  for (const auto& pair : screen::PageOne) (this->*pair.Box).Tag = &(this->*pair.Tag);
  for (const auto& pair : screen::PageTwo) (this->*pair.Box).Tag = &(this->*pair.Tag);
#define WIRE_WINDOW_HANDLER(Event) Event = [this] { frmPage1_##Event(); };
  WINDOW_HANDLERS(WIRE_WINDOW_HANDLER)
  CONTROL_HANDLERS(WIRE)
#undef WIRE_WINDOW_HANDLER
}

#define SELECT_HELP_TOPIC(button, MouseMove) \
  void frmPage1::button##_##MouseMove() { HelpContext = (button).Ids.HelpId; }
POINTER_HANDLERS(SELECT_HELP_TOPIC)
#undef SELECT_HELP_TOPIC

void frmPage1::frmPage1_MouseMove() {
  HelpContext = PageFlag == screen::OnPage1 ? Page1Topic : Page2Topic;
  lblSave.Hide();
}

void frmPage1::Toolbar1_MouseMove() { lblSave.Hide(); }

void frmPage1::lblsorted_MouseMove() { lblSave.Hide(); }

void frmPage1::ShowNewHint() { lblHead.SetCaption("To write a new record click \"New\" button or ALT \"W\""); }

forms::Answer frmPage1::Ask(std::string_view question) {
  return Desk.MessageBox(forms::Icon::Question, BoxTitle, question, forms::Buttons::YesNo);
}

void frmPage1::ReadRecord(std::int64_t record) {
  store::ReadRecord(Files, static_cast<int>(MasterFileNo), record, CurrentFilm);
}

std::string frmPage1::ReadOneItem(int number, std::string_view file) {
  Files.OpenInput(number, file);
  std::string item = Files.ReadItem(number);
  Files.Close(number);
  return item;
}
