// The record screen put together: the wiring of its handlers, and what they share.
#include "screen/frmPage1.h"

#include "forms/window_stack.h"
#include "screen/entry_fields.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

frmPage1::frmPage1(forms::WindowStack& windows, runtime::Files& files)
    : Page1Controls(windows, "frmPage1", "Form1", screen::GridWidth, screen::GridHeight),
      Files(files),
      Desk(windows.Desk) {
  Load = [this] { frmPage1_Load(); };
  Unload = [this] { frmPage1_Unload(); };
  MouseMove = [this] { frmPage1_MouseMove(); };
  CancelButton = &cmdPrevious;
  for (const auto& pair : screen::PageOne) (this->*pair.Box).Tag = &(this->*pair.Tag);
  for (const auto& pair : screen::PageTwo) (this->*pair.Box).Tag = &(this->*pair.Tag);
  WireScreen();
  WireEntry();
  WirePickLists();
  WireBrowse();
  WireSort();
  WireFind();
  WirePrefs();
  WireReports();
}

void frmPage1::WireScreen() {
  WIRE(Toolbar1, MouseMove);
  WIRE(lblsorted, MouseMove);
  WIRE(cmdSave, Click);
  WIRE(cmdNew, Click);
  WIRE(cmdEdit, Click);
  WIRE(cmdReset, Click);
  WIRE(cmdDelete, Click);
  WIRE(mnuSave, Click);
  WIRE(mnuExit, Click);
  WIRE(mnuCopy, Click);
  WIRE(mnuHelp, Click);
  WIRE(optNotesoff, Click);
  WIRE(optnoteson, Click);
  WIRE(txtFormat, Change);
  WIRE(txtLetter, Change);
  WIRE(txtCLV1, Change);
  WIRE(txtColor1, Change);
  WIRE(txtGenre, Change);
  WIRE(txtRating, Change);
  WIRE(txtYear, Change);
  for (forms::Button* button :
       {&cmdSort, &cmdSave, &cmdNew, &cmdNext, &cmdPrevious, &cmdEdit, &cmdReset, &cmdDelete, &cmdMatch}) {
    button->MouseMove = [this, button] { HelpContext = button->Ids.HelpId; };
  }
}

void frmPage1::WireEntry() {
  for (const screen::EntryField& field : screen::EntryFields) {
    (this->*field.Box).GotFocus = [this, &field] { EnterField(field); };
  }
  for (auto box : {&frmPage1::txtDirector, &frmPage1::txtStar1, &frmPage1::txtStar2, &frmPage1::txtStar3,
                   &frmPage1::txtStar4, &frmPage1::txtStar5, &frmPage1::txtStar6}) {
    (this->*box).Click = [this, box] { RefuseClick(screen::EntryOf(box).Title); };
  }
  WIRE(txtTitle, Click);
  WIRE(txtTitle, MouseUp);
  WIRE(txtLabel, GotFocus);
  WIRE(txtNumReel, Click);
  WIRE(txtGenreList, LostFocus);
  WIRE(txtYear, GotFocus);
  WIRE(txtYear, LostFocus);
  WIRE(txtProducer, GotFocus);
  WIRE(txtSound, LostFocus);
  WIRE(txtAwards, Click);
  WIRE(txtRatings, LostFocus);
}

void frmPage1::WirePickLists() {
  WIRE(txtFormat, GotFocus);
  WIRE(txtFormat, Click);
  WIRE(txtFormat, MouseMove);
  WIRE(txtFormat, LostFocus);
  WIRE(txtGenre, GotFocus);
  WIRE(txtGenre, Click);
  WIRE(txtLetter, GotFocus);
  WIRE(txtLetter, Click);
  WIRE(txtLetter, KeyPress);
  WIRE(txtLetter, MouseMove);
  WIRE(txtCLV1, GotFocus);
  WIRE(txtCLV1, Click);
  WIRE(txtCLV1, KeyPress);
  WIRE(txtCLV1, MouseMove);
  WIRE(txtColor1, GotFocus);
  WIRE(txtColor1, Click);
  WIRE(txtColor1, KeyPress);
  WIRE(txtColor1, MouseMove);
  WIRE(txtColor1, LostFocus);
  WIRE(txtRating, GotFocus);
  WIRE(txtRating, Click);
  WIRE(List1, Click);
  WIRE(List1, GotFocus);
  WIRE(List1, KeyPress);
  WIRE(List1, MouseDown);
  WIRE(List1, LostFocus);
  WIRE(List2, Click);
  WIRE(List2, KeyPress);
  WIRE(List2, MouseDown);
  WIRE(List2, LostFocus);
  WIRE(List3, Click);
  WIRE(List3, GotFocus);
  WIRE(List3, KeyPress);
  WIRE(List3, MouseDown);
  WIRE(List3, LostFocus);
  WIRE(List4, Click);
  WIRE(List4, GotFocus);
  WIRE(List4, KeyPress);
  WIRE(List4, MouseDown);
  WIRE(List4, LostFocus);
  WIRE(List5, Click);
  WIRE(List5, GotFocus);
  WIRE(List5, KeyPress);
  WIRE(List5, MouseDown);
  WIRE(List5, LostFocus);
  WIRE(List6, Click);
  WIRE(List6, GotFocus);
  WIRE(List6, KeyPress);
  WIRE(List6, MouseDown);
  WIRE(List6, LostFocus);
}

void frmPage1::frmPage1_MouseMove() {
  HelpContext = PageFlag == 0 ? 150 : 180;
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
