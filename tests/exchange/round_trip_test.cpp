// What is exported and imported again is the same in every byte of every film, in each format.
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "exchange/films.h"
#include "tests/exchange/exchange_kit.h"
#include "tests/kit/source_tree.h"
#include "tools/film_text.h"

namespace exchange_kit {
namespace {

class RoundTrip : public testing::TestWithParam<std::string> {
 protected:
  void ExpectSame(const Slots& slots, std::size_t piece = 1 << 16) {
    const exchange::Format& format = *exchange::FormatOf(GetParam());
    const std::string text = Export(format, slots);
    const Read read = ReadText(GetParam(), text, exchange::Unstorable::Marked, {}, piece);
    ASSERT_EQ(read.Wrong.value_or(""), "") << text;
    ASSERT_TRUE(read.File.Own || slots.empty());
    const Slots back = Imported(read.File.Films);
    ASSERT_EQ(back.size(), slots.size());
    for (const auto& [number, film] : slots) {
      const auto found = back.find(number);
      ASSERT_NE(found, back.end()) << number;
      for (const store::FilmFieldRow& row : store::FilmFields) {
        ASSERT_EQ(found->second.Get(row.Field), film.Get(row.Field)) << row.Name << " of " << number << "\n" << text;
      }
    }
    for (const exchange::ReadFilm& film : read.File.Films) ASSERT_EQ(Notes(film), "");
  }
  void ExpectSame(const std::string& file) {
    std::ifstream text(kit::SourceFolder() / file);
    const tools::FilmText films = tools::ReadFilmText(text, file);
    ASSERT_EQ(films.Faults, "");
    Slots slots;
    for (std::size_t at = 0; at < films.MasterFile.size(); at += store::RecordLength) {
      store::FilmRecord film;
      films.MasterFile.copy(film.Bytes.data(), store::RecordLength, at);
      if (exchange::HasTitle(film)) slots[static_cast<std::int64_t>(at / store::RecordLength) + 1] = film;
    }
    ASSERT_FALSE(slots.empty());
    ExpectSame(slots);
  }
};

TEST_P(RoundTrip, KeepsTheSample) { ExpectSame("delivered/sample/films.txt"); }
TEST_P(RoundTrip, KeepsTheRealFilms) { ExpectSame("tests/sort/real_films.txt"); }
TEST_P(RoundTrip, KeepsNoFilms) { ExpectSame(Slots{}); }

// Every byte alone, in front, at the end and between others, in every field.
TEST_P(RoundTrip, KeepsEveryByteInEveryField) {
  Slots slots;
  for (int byte = 0; byte < 256; ++byte) {
    for (int place = 0; place < 4; ++place) {
      store::FilmRecord film;
      for (const store::FilmFieldRow& row : store::FilmFields) {
        std::string text(place == 0 ? 1 : static_cast<std::size_t>(row.Width), static_cast<char>(byte));
        if (place == 2 && row.Width > 2) text.replace(1, static_cast<std::size_t>(row.Width) - 2, "=x");
        if (place == 3) text.insert(text.begin() + row.Width / 2, 'x');
        film.Set(row.Field, text);
      }
      if (exchange::HasTitle(film)) slots[static_cast<std::int64_t>(slots.size()) * 3 + 1] = film;
    }
  }
  ExpectSame(slots);
}

// Texts that mean something to a format, or to a spreadsheet.
constexpr std::string_view Pieces[] = {
    "=",     "+",       "-",    "@",   "'",   "\"",       "\"\"",        ",",     ";",    "\\",   "\\n",
    "#",     "%rec: x", ":",    "+ ",  "<",   "</entry>", "&",           "&amp;", "]]>",  "<!--", "\t",
    "\r",    "\n",      "\r\n", "  ",  " ",   "{",        "null",        "\0",    "\x81", "\xA0", "\xFF",
    "\xFEx", "a",       "The ", "DVD", "VHS", "Comedy",   "Wide Screen", "\x1A",  "}",
};

Slots RandomFilms(std::mt19937& engine) {
  auto below = [&](std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine); };
  Slots slots;
  for (std::size_t count = below(4); count > 0; --count) {
    store::FilmRecord film;
    for (const store::FilmFieldRow& row : store::FilmFields) {
      std::string text;
      while (text.size() < static_cast<std::size_t>(row.Width) && below(4) > 0) {
        text += below(3) == 0 ? std::string(1, static_cast<char>(below(256)))
                              : std::string(Pieces[below(std::size(Pieces))]);
      }
      film.Set(row.Field, row.Field == store::FilmField::Tail && below(2) == 0 ? "\r\n" : text);
    }
    if (exchange::HasTitle(film)) slots[static_cast<std::int64_t>(below(exchange::MostSlots)) + 1] = film;
  }
  return slots;
}

TEST_P(RoundTrip, KeepsRandomFilmsOfOddBytes) {
  constexpr int Collections = 10'000;
  std::mt19937 engine(16);
  for (int number = 0; number < Collections; ++number) {
    ExpectSame(RandomFilms(engine), number % 2 == 0 ? 1 << 16 : 1 + static_cast<std::size_t>(number) % 7);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip, testing::Values("csv", "json", "rec", "tellico"),
                         [](const auto& format) { return format.param; });

}  // namespace
}  // namespace exchange_kit
