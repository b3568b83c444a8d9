// The text fields that a user types into, and their content.
#include "tests/kit/films.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/source_tree.h"

namespace kit {
namespace {

using store::FilmField;

struct TypedField {
  FilmField Field;
  forms::TextBox frmPage1::*Box;
};
// clang-format off
constexpr TypedField TypedFields[] = {
  { FilmField::Title,           &frmPage1::txtTitle },
  { FilmField::Director,        &frmPage1::txtDirector },
  { FilmField::Star1,           &frmPage1::txtStar1 },
  { FilmField::Star2,           &frmPage1::txtStar2 },
  { FilmField::Star3,           &frmPage1::txtStar3 },
  { FilmField::Star4,           &frmPage1::txtStar4 },
  { FilmField::Star5,           &frmPage1::txtStar5 },
  { FilmField::Star6,           &frmPage1::txtStar6 },
  { FilmField::Label,           &frmPage1::txtLabel },
  { FilmField::Producer,        &frmPage1::txtProducer },
  { FilmField::Cinematographer, &frmPage1::txtCinematographer },
  { FilmField::Written,         &frmPage1::txtWritten },
  { FilmField::Music,           &frmPage1::txtMusic },
  { FilmField::Choreography,    &frmPage1::txtChoreography },
  { FilmField::SetDirection,    &frmPage1::txtSetDirection },
  { FilmField::Costume,         &frmPage1::txtCostume },
  { FilmField::Sound,           &frmPage1::txtSound },
  { FilmField::Awards,          &frmPage1::txtAwards },
  { FilmField::Package,         &frmPage1::txtPackage },
  { FilmField::Purchase,        &frmPage1::txtPurchase },
  { FilmField::Cost,            &frmPage1::txtCost },
  { FilmField::Ratings,         &frmPage1::txtRatings },
};
// clang-format on

std::string TextOf(FilmField field, int slot, int version) {
  auto width = static_cast<std::size_t>(store::RowOf(field).Width);
  std::string text =
      field == FilmField::Title ? "Film " + std::to_string(slot) + "." + std::to_string(version) + "." : "";
  return text + std::string(width - text.size(), static_cast<char>('a' + version % 26));
}

Folder Delivered() {
  Folder folder;
  for (const auto& entry : std::filesystem::directory_iterator(DeliveredFolder())) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    folder[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
  }
  for (const char* name : {"AutoSave", "AutoSort", "Fo1"}) folder[name] = "NO\r\n";
  return folder;
}

}  // namespace

std::string FilmBytes(int slot, int version) {
  store::FilmRecord film;
  for (const TypedField& typed : TypedFields) film.Set(typed.Field, TextOf(typed.Field, slot, version));
  film.Set(FilmField::Format, "V");
  film.Set(FilmField::Tail, "\r\n");
  return {film.Bytes.data(), film.Bytes.size()};
}

std::string Films(int first, int last) {
  std::string films;
  for (int slot = first; slot <= last; ++slot) films += FilmBytes(slot, 0);
  return films;
}

void TypeFilm(frmPage1& screen, int slot, int version) {
  for (const TypedField& typed : TypedFields) (screen.*typed.Box).SetText(TextOf(typed.Field, slot, version));
  screen.txtFormat.SetText("VHS");
}

Folder FolderOfFilms(int films, const std::string& behind) {
  static const Folder delivered = Delivered();
  Folder folder = delivered;
  folder[std::string(store::MasterFileName)] = Films(1, films) + behind;
  return folder;
}

}  // namespace kit
