// txtFormat with its pick list List3, and txtGenre with List1.
#include "screen/entry_fields.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using store::FilmField;

void frmPage1::txtFormat_GotFocus() {
  EnterField(&frmPage1::txtFormat);
  if (EditMode == 1 || NewMode == 1) List3.Show();
  if (EditMode == 1) {
    List3.SetFocus();
    List3.Add({store::DVDWord, store::LaserWord, store::VHSWord});
    List3.Select(0);
  }
  if (EditMode != 1 || ClearOnShow != 0) return;
  if (txtFormat.Text() == store::LaserWord) CurrentFilm.Set(FilmField::Format, store::FormatLaser);
  // Stores V for a DVD too, until Save or a choice.
  if (txtFormat.Text() == store::VHSWord || txtFormat.Text() == store::DVDWord)
    CurrentFilm.Set(FilmField::Format, store::FormatVHS);
}

void frmPage1::txtFormat_Click() {
  if (EditMode == 0) Desk.MessageBox(forms::Icon::None, "", "Hit Edit To Change");
  if (EditMode == 1) List3.Show();
}

void frmPage1::txtFormat_MouseMove() {
  if (NewMode == 1) StoreFormatLetter();
}

void frmPage1::txtFormat_LostFocus() {
  if (txtFormat.Text() == store::LaserWord) txtCLV1.Enable();
  if (txtFormat.Text() == store::VHSWord || txtFormat.Text() == store::DVDWord) txtCLV1.Disable();
  if (NewMode == 1) StoreFormatLetter();
}

void frmPage1::List3_Click() {
  CurrentFilm.Set(FilmField::Format, std::string_view(txtFormat.Text()).substr(0, 1));
  TakeSelected(List3, txtFormat);
}

void frmPage1::List3_GotFocus() {
  if (InEdit()) ShowSaveReminder();
}

void frmPage1::List3_KeyPress() {
  List3.Hide();
  if (EditMode == 1) ShowSaveReminder();
}

void frmPage1::List3_MouseDown() {
  TakeSelected(List3, txtFormat);
  List3.Hide();
  if (EditMode == 1 && ClearOnShow == 0) cmdSave.SetFocus();
}

void frmPage1::List3_LostFocus() {
  List3.Empty();
  List3.Hide();
  if (EditMode != 1) return;
  if (InEdit()) ShowSaveReminder();
  if (ClearOnShow == 0) cmdSave.SetFocus();
}

// If nothing is selected, the box stays as it is.
void frmPage1::TakeSelected(const forms::ListBox& list, forms::TextBox& box) {
  if (list.ListIndex() >= 0) box.SetText(list.Selected());
}

void frmPage1::txtGenre_GotFocus() {
  EnterField(&frmPage1::txtGenre);
  if (EditMode != 1) return;
  List1.Show();
  for (const store::GenreRow& genre : store::Genres) List1.Add(genre.ListItem);
  List1.SetFocus();
  List1.Select(0);
  for (forms::TextBox* box : {&txtCLV1, &txtStar6, &txtColor1}) box->Hide();
  lblSelect.Show();
  if (InEdit()) ShowSaveReminder();
}

void frmPage1::txtGenre_Click() {
  if (EditMode != 1) return;
  List1.Show();
  List1.Select(0);
  txtCLV1.Hide();
  txtColor1.Hide();
  if (!InEdit()) return;
  ShowSaveReminder();
  lblSelect.Show();
}

void frmPage1::List1_Click() {
  CurrentFilm.Set(FilmField::Genre, txtGenre.Text());
  std::string item = List1.Selected();
  if (EditMode == 1) {
    txtGenre.SetText(item.substr(0, item.find(" = ")));
    if (item == "SF = Science Fiction") txtGenreList.SetText("Science Fiction");
  }
  List1.Show();
  txtLetter.Hide();
}

void frmPage1::List1_GotFocus() {
  if (InEdit()) ShowSaveReminder();
}

void frmPage1::List1_KeyPress() {
  List1.Empty();
  List1.Hide();
  if (EditMode == 1) ShowSaveReminder();
}

void frmPage1::List1_MouseDown() {
  std::string item = List1.Selected();
  if (EditMode == 1 && !item.empty()) {
    txtGenre.SetText(item.substr(0, item.find(" = ")));
    if (const store::GenreRow* genre = store::GenreOf(txtGenre.Text())) txtGenreList.SetText(genre->Name);
  }
  List1.Empty();
  List1.Hide();
  lblSelect.Hide();
}

void frmPage1::List1_LostFocus() {
  List1.Hide();
  for (forms::TextBox* box : {&txtColor1, &txtCLV1, &txtLetter, &txtStar6}) box->Show();
  if (EditMode == 0) lblSorting.Hide();
  if (EditMode == 1) lblSorting.Show();
  if (EditMode == 1) {
    lblSelect.Hide();
    txtGenre.Show();
    txtGenreList.Show();
  }
  if (InEdit()) cmdSave.SetFocus();
  if (NewMode == 1) txtTime.SetFocus();
  List1.Empty();
}
