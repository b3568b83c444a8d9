// A row of a file as the film that would be stored, with what is changed on the way.
#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

#include "exchange/columns.h"
#include "exchange/film_text.h"
#include "exchange/rows.h"
#include "store/film_record.h"

namespace exchange {

struct Note {
  store::FilmField Field = store::FilmField::Title;
  std::string What;  // in words
};

struct ReadFilm {
  std::int64_t Number = 0;  // of its record in the file; 0 if it has none
  // From an export of this program: stored as it is, including odd bytes and line end. Otherwise as a save would do it.
  bool Exact = false;
  store::FilmRecord Film;
  std::bitset<store::FilmFields.size()> Given;  // the fields that the row has a text for
  std::vector<Note> Notes;
};

class FilmMaker {
 public:
  FilmMaker(std::vector<ColumnMap> maps, Unstorable as) : maps_(std::move(maps)), as_(as) {}

  // A row without a title is not a film; the title is then blank.
  ReadFilm Make(const Rows& row);
  // Of the columns so far, in their order.
  const std::vector<Target>& Targets() const { return targets_; }

 private:
  void SetField(ReadFilm& film, store::FilmField field, std::string_view utf8);
  void SetStars(ReadFilm& film, std::string_view utf8);
  // The bytes of a text; adds a note of the characters that have none.
  std::string Bytes(ReadFilm& film, store::FilmField field, std::string_view utf8);

  std::vector<ColumnMap> maps_;
  Unstorable as_;
  std::vector<Target> targets_;
};

}  // namespace exchange
