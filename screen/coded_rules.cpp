// The rules of the six coded boxes, which run whenever the text of the box changes, whoever changes it, and keep the
// word in the box and the letter in the record together. A rule that sets the text again is run again inside itself.
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using store::FilmField;

void frmPage1::txtFormat_Change() {
  HelpContext = txtFormat.Ids.TopicId;
  if (EditMode == 1 && txtFormat.Text() == "V") {
    txtFormat.SetText("VHS");
    txtCLV1.Disable();
    txtCassNo.Enable();
  }
  if (EditMode == 1 && txtFormat.Text() == "L") {
    txtFormat.SetText("Laser");
    txtCLV1.Enable();
    txtCassNo.Disable();
  }
  if (txtFormat.Text() == "D") {
    txtFormat.SetText("DVD");
    txtCLV1.Disable();
    txtCassNo.Disable();
  }
  StoreFormatLetter();
  if (EditMode == 1) {
    std::string chosen = List3.Selected();
    if (auto letter = store::CodeOf(store::Formats, chosen)) {
      txtFormat.SetText(chosen);
      if (NewMode == 1) CurrentFilm.Set(FilmField::Format, *letter);
    }
  }
  if (EditMode == 0) {
    if (auto word = store::WordOf(store::Formats, CurrentFilm.Get(FilmField::Format))) txtFormat.SetText(*word);
  }
  if (txtFormat.Text() == "Laser") {
    txtCassNo.Disable();
    txtCLV1.Enable();
  }
  if (txtFormat.Text() == "VHS") txtCassNo.Enable();
  if (txtFormat.Text() == "DVD" && EditMode == 1) txtCassNo.Disable();
}

// The record's letter by the word in the box; any other text leaves it.
void frmPage1::StoreFormatLetter() {
  if (auto letter = store::CodeOf(store::Formats, txtFormat.Text())) CurrentFilm.Set(FilmField::Format, *letter);
}

void frmPage1::txtLetter_Change() {
  if (EditMode == 1 && List4.ListIndex() >= 0) txtLetter.SetText(List4.Selected());
  if (auto letter = store::CodeOf(store::Aspects, txtLetter.Text())) CurrentFilm.Set(FilmField::Letter, *letter);
  if (EditMode != 0) return;
  std::string_view letter = CurrentFilm.Get(FilmField::Letter);
  if (letter == " ") txtLetter.SetText(" ");
  if (auto word = store::WordOf(store::Aspects, letter)) txtLetter.SetText(*word);
}

// The box always goes back to the stored letters, so that nothing typed into it stays.
void frmPage1::txtCLV1_Change() {
  txtCLV1.SetText(CurrentFilm.Get(FilmField::CLV1));
  CurrentFilm.Set(FilmField::CLV1, txtCLV1.Text());
  if (txtFormat.Text() != "Laser") txtCLV1.Disable();
  std::string chosen = List5.Selected();
  if (chosen != "CLV" && chosen != "CAV") return;
  CurrentFilm.Set(FilmField::CLV1, chosen);
  txtCLV1.SetText(chosen);
}

void frmPage1::txtColor1_Change() {
  std::string chosen = List6.Selected();
  if (chosen != "Color" && chosen != "B & W") return;
  CurrentFilm.Set(FilmField::Color1, chosen);
  txtColor1.SetText(chosen);
}

// A code outside the table leaves the name of the film before.
void frmPage1::txtGenre_Change() {
  if (txtGenre.Text() == "  ") txtGenreList.SetText(std::string(16, ' '));
  if (const store::GenreRow* genre = store::GenreOf(txtGenre.Text())) txtGenreList.SetText(genre->Name);
}

void frmPage1::txtRating_Change() {
  if (List2.ListIndex() >= 0) txtRating.SetText(List2.Selected());
}
