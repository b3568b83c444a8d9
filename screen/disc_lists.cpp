// The pick lists of aspect, disc mode and colour: txtLetter with List4, txtCLV1 with List5, txtColor1 with List6.
#include <array>

#include "screen/entry_fields.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using store::FilmField;

namespace {

void FillAspectList(forms::ListBox& list) {
  for (const store::CodeRow& aspect : store::Aspects) list.Add(aspect.Word);
  list.Select(0);
}

void FillList(forms::ListBox& list, const std::array<std::string_view, 2>& words) {
  for (std::string_view word : words) list.Add(word);
  list.Select(0);
}

// The record first: the box's own rule puts the stored mode back into the box.
void TakeSelectedMode(frmPage1& window) {
  std::string mode = window.List5.Selected();
  if (mode.empty()) return;
  window.CurrentFilm.Set(FilmField::CLV1, mode);
  window.txtCLV1.SetText(mode);
}

void TakeSelectedColour(frmPage1& window) {
  std::string colour = window.List6.Selected();
  if (colour.empty()) return;
  window.CurrentFilm.Set(FilmField::Color1, colour);
  window.txtColor1.SetText(colour);
}

// PageFlag returns to 0 although page 2 is up: saving and the pointer's help topic depend on it while a film is new.
void TurnToPage2(frmPage1& window) {
  window.optnoteson_Click();
  window.PageFlag = screen::OnPage1;
}

}  // namespace

void frmPage1::txtLetter_GotFocus() {
  EnterField(&frmPage1::txtLetter);
  if (NewMode == 1 || EditMode == 1) {
    List4.Show();
    List4.SetFocus();
    FillAspectList(List4);
  }
  ShowAspect();
}

void frmPage1::txtLetter_Click() {
  if (EditMode != 1) return;
  List4.Show();
  FillAspectList(List4);
  if (ClearOnShow != 0) return;
  if (auto letter = store::CodeOf(store::Aspects, txtLetter.Text())) CurrentFilm.Set(FilmField::Letter, *letter);
  ShowAspect();
}

void frmPage1::txtLetter_KeyPress() {
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
  if (txtFormat.Text() == store::VHSWord && NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::txtLetter_MouseMove() {
  if (txtFormat.Text() == store::VHSWord && NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::List4_Click() {
  HelpContext = txtLetter.Ids.TopicId;
  TakeSelected(List4, txtLetter);
}

void frmPage1::List4_GotFocus() {
  HelpContext = txtLetter.Ids.TopicId;
  if (EditMode == 1) List4.Empty();
  if (NewMode == 1) {
    List4.SetFocus();
    FillAspectList(List4);
  }
  if (InEdit()) ShowSaveReminder();
}

void frmPage1::List4_KeyPress() {
  TakeSelected(List4, txtLetter);
  List4.Hide();
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
}

void frmPage1::List4_MouseDown() { List4_KeyPress(); }

void frmPage1::List4_LostFocus() {
  List4.Empty();
  List4.Hide();
  if (InEdit()) {
    ShowSaveReminder();
    cmdSave.SetFocus();
  }
  if (NewMode == 1 && (txtFormat.Text() == store::VHSWord || txtFormat.Text() == store::DVDWord)) txtColor1.SetFocus();
}

void frmPage1::txtCLV1_GotFocus() {
  if (NewMode == 1) {
    List5.Show();
    List5.SetFocus();
    FillList(List5, store::DiscModes);
  }
  EnterField(&frmPage1::txtCLV1);
  std::string mode(CurrentFilm.Get(FilmField::CLV1));
  if (store::IsOneOf(store::DiscModes, mode)) txtCLV1.SetText(mode);
}

void frmPage1::txtCLV1_Click() {
  RefuseClick("CAV / CLV");
  if (EditMode != 1) return;
  if (txtFormat.Text() == store::LaserWord) txtCLV1.Enable();
  if (txtFormat.Text() == store::VHSWord || txtFormat.Text() == store::DVDWord) txtCLV1.Disable();
  List5.Show();
  List5.SetFocus();
  FillList(List5, store::DiscModes);
  if (ClearOnShow == 0) CurrentFilm.Set(FilmField::CLV1, txtCLV1.Text());
}

void frmPage1::txtCLV1_KeyPress() {
  TakeSelected(List5, txtCLV1);
  List5.Hide();
}

void frmPage1::txtCLV1_MouseMove() { TakeSelected(List5, txtCLV1); }

void frmPage1::List5_Click() {
  HelpContext = txtCLV1.Ids.TopicId;
  TakeSelectedMode(*this);
}

void frmPage1::List5_GotFocus() {
  HelpContext = txtCLV1.Ids.TopicId;
  if (InEdit()) {
    ShowSaveReminder();
    List5.SetFocus();
  }
  if (NewMode == 1 && txtFormat.Text() == store::LaserWord) List5.SetFocus();
  if (!InEdit() && NewMode != 1) return;
  List5.Empty();
  FillList(List5, store::DiscModes);
}

void frmPage1::List5_KeyPress() {
  TakeSelected(List5, txtCLV1);
  if (NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::List5_MouseDown() {
  TakeSelected(List5, txtCLV1);
  List5.Hide();
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
  if (txtFormat.Text() == store::LaserWord && ClearOnShow == screen::ShowRecordBlanks) List6.Show();
}

void frmPage1::List5_LostFocus() {
  List5.Empty();
  List5.Hide();
  if (!InEdit()) return;
  ShowSaveReminder();
  cmdSave.SetFocus();
}

void frmPage1::txtColor1_GotFocus() {
  EnterField(&frmPage1::txtColor1);
  if (NewMode == 1) List6.Show();
  List4.Hide();
  if (NewMode != 1) return;
  List6.SetFocus();
  FillList(List6, store::ColourWords);
}

void frmPage1::txtColor1_Click() {
  ClearOnShow = screen::ColourBoxClicked;
  if (EditMode == 1) {
    List6.Empty();
    List6.Show();
    List6.SetFocus();
    FillList(List6, store::ColourWords);
  }
  if (EditMode == 0 && NewMode == 0) Refuse("Color/B & W");
}

void frmPage1::txtColor1_KeyPress() {
  TakeSelected(List6, txtColor1);
  List6.Hide();
}

void frmPage1::txtColor1_MouseMove() { txtColor1_KeyPress(); }

void frmPage1::txtColor1_LostFocus() {
  if (NewMode == 1) lblEnter.Hide();
}

void frmPage1::List6_Click() {
  HelpContext = txtColor1.Ids.TopicId;
  TakeSelectedColour(*this);
}

void frmPage1::List6_GotFocus() {
  HelpContext = txtColor1.Ids.TopicId;
  if (NewMode == 1) {
    List6.Empty();
    FillList(List6, store::ColourWords);
    lblSorting.Hide();
  }
  if (InEdit()) ShowSaveReminder();
}

void frmPage1::List6_KeyPress() {
  TakeSelectedColour(*this);
  if (NewMode == 1) TurnToPage2(*this);
  if (EditMode == 1 && (InEdit() || ClearOnShow == 0)) cmdSave.SetFocus();
}

void frmPage1::List6_MouseDown() {
  TakeSelectedColour(*this);
  if (EditMode == 1 && (InEdit() || ClearOnShow == 0)) cmdSave.SetFocus();
}

void frmPage1::List6_LostFocus() {
  List6.Empty();
  List6.Hide();
  List4.Hide();
  if (NewMode != 1) return;
  lblEnter.Hide();
  TurnToPage2(*this);
}
