// txtRating with its pick list List2.
#include "screen/entry_fields.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"

void frmPage1::txtRating_GotFocus() {
  EnterField(&frmPage1::txtRating);
  if (EditMode != 1 && NewMode != 1) return;
  List2.Show();
  for (std::string_view rating : store::RatingCodes) List2.Add(rating);
  List2.SetFocus();
  List2.Select(0);
}

void frmPage1::txtRating_Click() {
  if (EditMode != 1) return;
  List2.Show();
  List2.SetFocus();
  List2.Select(0);
}

void frmPage1::List2_Click() { TakeSelected(List2, txtRating); }

void frmPage1::List2_KeyPress() {
  List2.Empty();
  List2.Hide();
  if (EditMode == 1) ShowSaveReminder();
}

void frmPage1::List2_MouseDown() {
  TakeSelected(List2, txtRating);
  List2.Empty();
  List2.Hide();
  if (NewMode == 1) txtPackage.SetFocus();
  if (InEdit()) cmdSave.SetFocus();
}

void frmPage1::List2_LostFocus() {
  List2.Hide();
  List2.Empty();
  if (EditMode == 0) lblSorting.Hide();
  if (EditMode == 1) lblSorting.Show();
  if (NewMode != 1 || ClearOnShow != 1) return;
  txtPackage.SetAlignment(forms::Align::Left);
  txtPackage.SetFocus();
}
