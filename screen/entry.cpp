// Entering a field: refused in view; otherwise the format decides what comes next.
#include "screen/auto_texts.h"
#include "screen/entry_fields.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using screen::EntryField;

namespace {
constexpr std::string_view RefusalText = "Hit edit to change.";
}

// Common part of GotFocus.
void frmPage1::EnterField(const EntryField& field) {
  bool in_view = EditMode == 0 && (field.Refuse == screen::Guard::InView || NewMode == 0);
  if (field.Refuse != screen::Guard::None && in_view) Refuse(field.Title);
  bool edit = EditMode == 1 && (field.Left == screen::LeftWhen::Edit || field.Left == screen::LeftWhen::EditOrNew);
  bool fresh = NewMode == 1 && (field.Left == screen::LeftWhen::New || field.Left == screen::LeftWhen::EditOrNew);
  if (edit || fresh) (this->*field.Box).SetAlignment(forms::Align::Left);
}

void frmPage1::EnterField(forms::TextBox screen::PageControls::*box) { EnterField(screen::EntryOf(box)); }

void frmPage1::Refuse(std::string_view title) {
  Desk.MessageBox(forms::Icon::Warning, title, RefusalText);
  cmdSave.SetFocus();
}

// Refuses a click; the focus stays.
void frmPage1::RefuseClick(std::string_view title) {
  if (EditMode == 0) Desk.MessageBox(forms::Icon::Warning, title, RefusalText);
}

bool frmPage1::InEdit() const { return EditMode == 1 && NewMode == 0; }

void frmPage1::ShowSaveReminder() {
  lblSorting.Show();
  lblSorting.SetCaption("Save Work When Finished!");
}

#define ENTER_FIELD(box, GotFocus) \
  void frmPage1::box##_##GotFocus() { EnterField(&frmPage1::box); }
FIELD_FOCUS_HANDLERS(ENTER_FIELD)
#undef ENTER_FIELD

#define REFUSE_CLICK(box, Click) \
  void frmPage1::box##_##Click() { RefuseClick(screen::EntryOf(&frmPage1::box).Title); }
FIELD_CLICK_HANDLERS(REFUSE_CLICK)
#undef REFUSE_CLICK

void frmPage1::txtTitle_Click() {
  if (EditMode == 0) Refuse("Title");
}

// Selects the topic of Back, not the field's own.
void frmPage1::txtTitle_MouseUp() { HelpContext = cmdPrevious.Ids.HelpId; }

void frmPage1::txtLabel_GotFocus() {
  EnterField(&frmPage1::txtLabel);
  txtFormat.Enable();
}

void frmPage1::txtNumReel_Click() {
  if (EditMode == 1) txtNumReel.SetAlignment(forms::Align::Left);
}

void frmPage1::txtGenreList_LostFocus() {
  if (NewMode == 1) txtTime.SetFocus();
}

void frmPage1::txtYear_GotFocus() {
  EnterField(&frmPage1::txtYear);
  txtLetter.Enable();
}

void frmPage1::txtYear_Change() {
  for (forms::ListBox* list : {&List4, &List5, &List6}) list->Hide();
}

// A new film: tapes go to the cassette number, discs to the aspect.
void frmPage1::txtYear_LostFocus() {
  if (NewMode == 1) {
    if (txtFormat.Text() == store::VHSWord) txtCassNo.SetFocus();
    if (txtFormat.Text() == store::DVDWord || txtFormat.Text() == store::LaserWord) txtLetter_Click();
  }
  if (EditMode == 1) List4.Hide();
}

void frmPage1::txtProducer_GotFocus() {
  EnterField(&frmPage1::txtProducer);
  if (NewMode == 1) {
    lblSorting.Show();
    if (txtAutoSave.Text() == screen::AutoSaveOn && txtAutoSort.Text() == screen::AutoSortOn) {
      lblSorting.SetFontSize(14);
      lblSorting.SetCaption(screen::AutoSaveNote);
    }
    if (txtAutoSave.Text() == screen::AutoSaveOff) lblSorting.SetCaption(screen::AutoSaveOffNote);
    lblEnter.Hide();
  }
  optnoteson.Select();
  for (forms::ListBox* list : {&List3, &List6, &List2}) list->Hide();
}

void frmPage1::txtSound_LostFocus() {
  if (NewMode == 1) txtRating.SetFocus();
}

void frmPage1::txtAwards_Click() {
  if (EditMode == 1 || NewMode == 1) txtAwards.SetAlignment(forms::Align::Left);
}
