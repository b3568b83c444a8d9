// The switch between page 1 and page 2 shows and hides boxes; it neither reads nor writes the record. It turns the page
// as one step, so that the fields hidden one by one do not hand the focus to each other.
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"

void frmPage1::optNotesoff_Click() {
  PassFocusOnAfter([this] { ShowPage1(); });
}

void frmPage1::optnoteson_Click() {
  PassFocusOnAfter([this] { ShowPage2(); });
}

void frmPage1::ShowPage1() {
  PageFlag = screen::OnPage1;
  lblPage.SetCaption("PAGE 1");
  txtGenre.Show();
  txtGenreList.Show();
  lblSorting.SetCaption("");
  lblHead.Show();
  lblSorting.Hide();
  SetPageVisible(screen::PageTwo, false);
  lblNotes1.Hide();
  lblSave.Show();
  SetPageVisible(screen::PageOne, true);
  lblNumrec.Show();
  lblRetcode.Show();
  lblSave.Hide();
}

void frmPage1::ShowPage2() {
  PageFlag = screen::OnPage2;
  lblPage.SetCaption("PAGE 2");
  SetPageVisible(screen::PageOne, false);
  List6.Hide();
  lblNumrec.Hide();
  lblRetcode.Hide();
  SetPageVisible(std::span(screen::PageTwo).first<screen::CreditPairs>(), true);
  if (NewMode == 1) txtRating.SetText("");
  SetPageVisible(std::span(screen::PageTwo).subspan<screen::CreditPairs>(), true);
  if (EditMode == 0) cmdSave.SetFocus();
  if (NewMode == 1) txtProducer.SetFocus();
  if (EditMode == 1) txtAwards.SetAlignment(forms::Align::Left);
}

void frmPage1::SetPageVisible(std::span<const screen::PagePair> pairs, bool visible) {
  for (const screen::PagePair& pair : pairs) {
    (this->*pair.Box).SetVisible(visible);
    (this->*pair.Tag).SetVisible(visible);
  }
}
