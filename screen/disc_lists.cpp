// The pick lists of aspect, disc mode and colour: txtLetter with List4, txtCLV1 with List5, txtColor1 with List6.
#include "screen/entry_fields.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using store::FilmField;

void frmPage1::OpenAspectList() {
  List4.Add({"Wide Screen", "Pan & Scan", "TV 1.33:1"});
  List4.Select(0);
}

void frmPage1::txtLetter_GotFocus() {
  EnterField(&frmPage1::txtLetter);
  if (NewMode == 1 || EditMode == 1) {
    List4.Show();
    List4.SetFocus();
    OpenAspectList();
  }
  ShowAspect("WPT");
}

void frmPage1::txtLetter_Click() {
  if (EditMode != 1) return;
  List4.Show();
  OpenAspectList();
  if (ClearOnShow != 0) return;
  if (auto letter = store::CodeOf(store::Aspects, txtLetter.Text())) CurrentFilm.Set(FilmField::Letter, *letter);
  ShowAspect("WPT");
}

void frmPage1::txtLetter_KeyPress() {
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
  if (txtFormat.Text() == "VHS" && NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::txtLetter_MouseMove() {
  if (txtFormat.Text() == "VHS" && NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::List4_Click() {
  HelpContext = 500;
  TakeSelected(List4, txtLetter);
}

void frmPage1::List4_GotFocus() {
  HelpContext = 500;
  if (EditMode == 1) List4.Empty();
  if (NewMode == 1) {
    List4.SetFocus();
    OpenAspectList();
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
  if (NewMode == 1 && (txtFormat.Text() == "VHS" || txtFormat.Text() == "DVD")) txtColor1.SetFocus();
}

void frmPage1::OpenModeList() {
  List5.Add({"CLV", "CAV"});
  List5.Select(0);
}

void frmPage1::txtCLV1_GotFocus() {
  if (NewMode == 1) {
    List5.Show();
    List5.SetFocus();
    OpenModeList();
  }
  EnterField(&frmPage1::txtCLV1);
  std::string mode(CurrentFilm.Get(FilmField::CLV1));
  if (mode == "CAV" || mode == "CLV") txtCLV1.SetText(mode);
}

void frmPage1::txtCLV1_Click() {
  RefuseClick("CAV / CLV");
  if (EditMode != 1) return;
  if (txtFormat.Text() == "Laser") txtCLV1.Enable();
  if (txtFormat.Text() == "VHS" || txtFormat.Text() == "DVD") txtCLV1.Disable();
  List5.Show();
  List5.SetFocus();
  OpenModeList();
  if (ClearOnShow == 0) CurrentFilm.Set(FilmField::CLV1, txtCLV1.Text());
}

void frmPage1::txtCLV1_KeyPress() {
  TakeSelected(List5, txtCLV1);
  List5.Hide();
}

void frmPage1::txtCLV1_MouseMove() { TakeSelected(List5, txtCLV1); }

// The record first: the box's own rule puts the stored mode back into the box.
void frmPage1::TakeSelectedMode() {
  std::string mode = List5.Selected();
  if (mode.empty()) return;
  CurrentFilm.Set(FilmField::CLV1, mode);
  txtCLV1.SetText(mode);
}

void frmPage1::List5_Click() {
  HelpContext = 17;
  TakeSelectedMode();
}

void frmPage1::List5_GotFocus() {
  HelpContext = 17;
  if (InEdit()) {
    ShowSaveReminder();
    List5.SetFocus();
  }
  if (NewMode == 1 && txtFormat.Text() == "Laser") List5.SetFocus();
  if (!InEdit() && NewMode != 1) return;
  List5.Empty();
  OpenModeList();
}

void frmPage1::List5_KeyPress() {
  TakeSelected(List5, txtCLV1);
  if (NewMode == 1) txtColor1.SetFocus();
}

void frmPage1::List5_MouseDown() {
  TakeSelected(List5, txtCLV1);
  List5.Hide();
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
  if (txtFormat.Text() == "Laser" && ClearOnShow == 1) List6.Show();
}

void frmPage1::List5_LostFocus() {
  List5.Empty();
  List5.Hide();
  if (!InEdit()) return;
  ShowSaveReminder();
  cmdSave.SetFocus();
}

void frmPage1::OpenColourList() {
  List6.Add({"Color", "B & W"});
  List6.Select(0);
}

void frmPage1::txtColor1_GotFocus() {
  EnterField(&frmPage1::txtColor1);
  if (NewMode == 1) List6.Show();
  List4.Hide();
  if (NewMode != 1) return;
  List6.SetFocus();
  OpenColourList();
}

void frmPage1::txtColor1_Click() {
  ClearOnShow = 2;
  if (EditMode == 1) {
    List6.Empty();
    List6.Show();
    List6.SetFocus();
    OpenColourList();
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

void frmPage1::TakeSelectedColour() {
  std::string colour = List6.Selected();
  if (colour.empty()) return;
  CurrentFilm.Set(FilmField::Color1, colour);
  txtColor1.SetText(colour);
}

void frmPage1::List6_Click() {
  HelpContext = 18;
  TakeSelectedColour();
}

void frmPage1::List6_GotFocus() {
  HelpContext = 18;
  if (NewMode == 1) {
    List6.Empty();
    OpenColourList();
    lblSorting.Hide();
  }
  if (InEdit()) ShowSaveReminder();
}

// PageFlag goes back to 0 although page 2 is up: saving and the pointer's topic go by it during a new film.
void frmPage1::TurnToPage2() {
  optnoteson_Click();
  PageFlag = 0;
}

void frmPage1::List6_KeyPress() {
  TakeSelectedColour();
  if (NewMode == 1) TurnToPage2();
  if (EditMode == 1 && (InEdit() || ClearOnShow == 0)) cmdSave.SetFocus();
}

void frmPage1::List6_MouseDown() {
  TakeSelectedColour();
  if (EditMode == 1 && (InEdit() || ClearOnShow == 0)) cmdSave.SetFocus();
}

void frmPage1::List6_LostFocus() {
  List6.Empty();
  List6.Hide();
  List4.Hide();
  if (NewMode != 1) return;
  lblEnter.Hide();
  TurnToPage2();
}
