// The summary of a collection.
#include "exchange/summary.h"

#include <gtest/gtest.h>

namespace exchange {
namespace {

using store::FilmField;

TEST(Summary, CountsByFormatGenreAndDecade) {
  const std::string_view films[] = {"DDR1949104$12.50", "VDR1951 98 1,234", "DCO    xxx", " SF2001130free"};
  const Summary summary = Summarize([&](const Visit& visit) {
    for (std::string_view text : films) {
      store::FilmRecord film;
      film.Set(FilmField::Format, text.substr(0, 1));
      film.Set(FilmField::Genre, text.substr(1, 2));
      film.Set(FilmField::Year, text.substr(3, 4));
      film.Set(FilmField::Time, text.substr(7, 3));
      film.Set(FilmField::Cost, text.substr(10));
      visit(1, film);
    }
  });
  std::string seen;
  for (const auto* shares : {&summary.Formats, &summary.Genres, &summary.Decades}) {
    for (const Share& share : *shares) seen += share.Name + " " + std::to_string(share.Films) + ", ";
  }
  EXPECT_EQ(seen,
            "DVD 2, VHS 1, no format 1, Drama 2, Comedy 1, Science Fiction 1, 1940s 1, 1950s 1, 2000s 1, no year 1, ");
  EXPECT_EQ(summary.Films, 4);
  EXPECT_EQ(summary.Minutes, 332);
  EXPECT_EQ(summary.Timed, 3);
  EXPECT_EQ(MoneyText(summary.Cents), "1,246.50");
  EXPECT_EQ(summary.Priced, 2);
}

TEST(Summary, ReadsPrices) {
  EXPECT_EQ(CentsOf("$39.95"), 3995);
  EXPECT_EQ(CentsOf("19,9 EUR"), 1990);
  EXPECT_EQ(CentsOf("1.234,50"), 123450);
  EXPECT_EQ(CentsOf("5"), 500);
  EXPECT_EQ(CentsOf("5.999"), 599900);
  EXPECT_EQ(CentsOf("12.505x"), 1250500);
  EXPECT_EQ(CentsOf("gift"), -1);
}

}  // namespace
}  // namespace exchange
