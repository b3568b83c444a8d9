// Collections written as text: the slots they make and the faults they report.
#include "tools/film_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "store/film_record.h"
#include "tests/kit/source_tree.h"

namespace tools {
namespace {

FilmText Read(const std::string& text) {
  std::istringstream stream(text);
  return ReadFilmText(stream, "films");
}

// The master file of films with these fields; an empty list is a free slot.
std::string MasterOf(const std::vector<std::vector<std::pair<store::FilmField, std::string>>>& slots) {
  std::string master;
  for (const auto& fields : slots) {
    store::FilmRecord film;
    for (const auto& [field, value] : fields) film.Set(field, value);
    film.Set(store::FilmField::Tail, "\r\n");
    master.append(film.Bytes.data(), film.Bytes.size());
  }
  return master;
}

using store::FilmField;

TEST(FilmText, OfBlocksMakesASlotOfEach) {
  FilmText films = Read("# two films\nTitle=Amélie\nFormat=D\n\nfree\n\n\nTitle=Ran\n");
  EXPECT_EQ(films.Faults, "");
  EXPECT_EQ(films.MasterFile,
            MasterOf({{{FilmField::Title, "Am\xE9lie"}, {FilmField::Format, "D"}}, {}, {{FilmField::Title, "Ran"}}}));
}

TEST(FilmText, OfATableMakesASlotOfEachRow) {
  FilmText films = Read("Fields=Title|Year|Format\nRan|1985|L\n# a comment\nM||V\nBabe\n");
  EXPECT_EQ(films.Faults, "");
  EXPECT_EQ(films.MasterFile,
            MasterOf({{{FilmField::Title, "Ran"}, {FilmField::Year, "1985"}, {FilmField::Format, "L"}},
                      {{FilmField::Title, "M"}, {FilmField::Format, "V"}},
                      {{FilmField::Title, "Babe"}}}));
}

TEST(FilmText, ReportsEachFaultWithItsLine) {
  struct Row {
    const char *Text, *Faults;
  };
  for (const Row& row : {
           Row{"Title=Ran\nYear", "films:2: neither Field=value nor \"free\"\n"},
           Row{"Title=Ran\nStars=7", "films:2: unknown field: Stars\n"},
           Row{"Title=Ran\nTail=x", "films:2: unknown field: Tail\n"},
           Row{"Title=Ran\nTitle=M", "films:2: field named twice in the block: Title\n"},
           Row{"Year=1985\n", "films:1: the block above has no Title\n"},
           Row{"free\nTitle=Ran", "films:2: a free slot has no fields\n"},
           Row{"Title=Ran\nfree", "films:2: \"free\" needs a block of its own\n"},
           Row{"Title=Ран", "films:1: not in Windows-1252: Ран\n"},
           Row{"Title=Ran\nYear=", "films:2: no value: Year\n"},
           Row{"Title=Ran\nYear=19855", "films:2: wider than 4: 19855\n"},
           Row{"Title=Ran\nFormat=X", "films:2: unknown code: X\n"},
           Row{"Title=The Fly", "films:1: the article belongs at the end of the title: The Fly\n"},
           Row{"Title=R\tn", "films:1: control character: Title\n"},
           Row{"Fields=Title|Stars\nRan", "films:1: unknown field: Stars\n"},
           Row{"Fields=Title|Year\nRan|1985|L", "films:2: more values than columns: Ran|1985|L\n"},
           Row{"Fields=Title|Year\n|1985", "films:2: the block above has no Title\n"},
           Row{"Title=Ran\nFields=Title", "films:2: a table begins after an empty line\n"},
       }) {
    EXPECT_EQ(Read(row.Text).Faults, row.Faults) << row.Text;
  }
}

TEST(FilmText, OfTheSampleMakesTheDeliveredMasterFile) {
  std::ifstream text(kit::SampleFile().replace_filename("films.txt"));
  std::ifstream master(kit::SampleFile(), std::ios::binary);
  FilmText films = ReadFilmText(text, "films.txt");
  EXPECT_EQ(films.Faults, "");
  EXPECT_TRUE(films.MasterFile == std::string(std::istreambuf_iterator<char>(master), {}));
  EXPECT_EQ(films.MasterFile.size(), 99u * store::RecordLength);
}

}  // namespace
}  // namespace tools
