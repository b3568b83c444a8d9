// The filter keeps every film that contains the text and drops most others.
#include "find/film_filter.h"

#include <gtest/gtest.h>

#include <random>

#include "runtime/text.h"
#include "store/film_record.h"

namespace {

using find::FilmFilter;
using store::FilmField;

bool Passes(const FilmFilter& filter, const store::FilmRecord& film) {
  return filter.CountNonMatches({film.Bytes.data(), film.Bytes.size()}, 1) == 1;
}

FilmFilter FilterFor(std::string_view capitals, FilmField field) {
  const store::FilmFieldRow& row = store::RowOf(field);
  return {capitals, row.Offset, row.Width};
}

TEST(FilmFilter, NeverPassesOverAHit) {
  std::mt19937 random(7);
  const std::string letters = "aAzZ 0-\xe9\xc9\x9a\x8a\xff\x9f\xfe";
  for (const store::FilmFieldRow& row : store::FilmFields) {
    for (int round = 0; round < 300 && row.Width > 1; ++round) {
      store::FilmRecord film;
      std::string text;
      for (int index = 0; index < row.Width; ++index) text += letters[random() % letters.size()];
      film.Set(row.Field, text);
      std::size_t begin = random() % (text.size() - 1);
      std::string sought = runtime::Upper(text.substr(begin, 2 + random() % 5));
      EXPECT_FALSE(Passes(FilterFor(sought, row.Field), film))
          << row.Name << " \"" << text << "\" \"" << sought << "\"";
    }
  }
}

TEST(FilmFilter, PassesOverOthers) {
  store::FilmRecord film;
  film.Set(FilmField::Director, "Alfred Hitchcock");
  EXPECT_TRUE(Passes(FilterFor("LEAN", FilmField::Director), film));
  EXPECT_FALSE(Passes(FilterFor("HITCH", FilmField::Director), film));
  EXPECT_FALSE(Passes(FilterFor("HIxx", FilmField::Director), film)) << "only the first two characters are looked at";
}

TEST(FilmFilter, StopsAtTheFirstThatMayHold) {
  std::string records;
  for (const char* director : {"David Lean", "Jean Renoir", "Alfred Hitchcock", "Orson Welles"}) {
    store::FilmRecord film;
    film.Set(FilmField::Director, director);
    records.append(film.Bytes.data(), film.Bytes.size());
  }
  FilmFilter filter = FilterFor("HITCH", FilmField::Director);
  EXPECT_EQ(filter.CountNonMatches(records, 4), 2);
  EXPECT_EQ(filter.CountNonMatches(records, 1), 1);
  EXPECT_EQ(filter.CountNonMatches(std::string_view(records).substr(0, 2 * store::RecordLength - 1), 4), 1);
  EXPECT_EQ(filter.CountNonMatches("", 4), 0);
}

TEST(FilmFilter, TakesAnyFilmForAShortText) {
  EXPECT_FALSE(Passes(FilterFor("X", FilmField::Director), store::FilmRecord()));
}

}  // namespace
