// The rules of the six coded boxes: whoever changes the text of a box, its rule keeps the word in the box and the
// letter in the record together. Setting the text inside a rule runs it recursively.
#include "screen/frmPage1.h"
#include "store/film_codes.h"

using store::FilmField;

void frmPage1::txtFormat_Change() {
  HelpContext = txtFormat.Ids.TopicId;
  if (EditMode == 1 && txtFormat.Text() == store::FormatVHS) {
    txtFormat.SetText(store::VHSWord);
    txtCLV1.Disable();
    txtCassNo.Enable();
  }
  if (EditMode == 1 && txtFormat.Text() == store::FormatLaser) {
    txtFormat.SetText(store::LaserWord);
    txtCLV1.Enable();
    txtCassNo.Disable();
  }
  if (txtFormat.Text() == store::FormatDVD) {
    txtFormat.SetText(store::DVDWord);
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
  if (txtFormat.Text() == store::LaserWord) {
    txtCassNo.Disable();
    txtCLV1.Enable();
  }
  if (txtFormat.Text() == store::VHSWord) txtCassNo.Enable();
  if (txtFormat.Text() == store::DVDWord && EditMode == 1) txtCassNo.Disable();
}

// Stores the letter of the word in the box; other texts leave the record unchanged.
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

// The box always returns to the stored mode, so that nothing typed into it stays.
void frmPage1::txtCLV1_Change() {
  txtCLV1.SetText(CurrentFilm.Get(FilmField::CLV1));
  CurrentFilm.Set(FilmField::CLV1, txtCLV1.Text());
  if (txtFormat.Text() != store::LaserWord) txtCLV1.Disable();
  std::string chosen = List5.Selected();
  if (!store::IsOneOf(store::DiscModes, chosen)) return;
  CurrentFilm.Set(FilmField::CLV1, chosen);
  txtCLV1.SetText(chosen);
}

void frmPage1::txtColor1_Change() {
  std::string chosen = List6.Selected();
  if (!store::IsOneOf(store::ColourWords, chosen)) return;
  CurrentFilm.Set(FilmField::Color1, chosen);
  txtColor1.SetText(chosen);
}

// An unknown code keeps the previous name.
void frmPage1::txtGenre_Change() {
  if (txtGenre.Text() == "  ") txtGenreList.SetText(std::string(16, ' '));
  if (const store::GenreRow* genre = store::GenreOf(txtGenre.Text())) txtGenreList.SetText(genre->Name);
}

void frmPage1::txtRating_Change() {
  if (List2.ListIndex() >= 0) txtRating.SetText(List2.Selected());
}
