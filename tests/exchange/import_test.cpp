// Rows become films as a save would store them, and films go where New would put them.
#include <gtest/gtest.h>

#include "exchange/coded_words.h"
#include "exchange/films.h"
#include "store/master_file.h"
#include "tests/exchange/exchange_kit.h"
#include "tests/kit/memory_disk.h"

namespace exchange_kit {
namespace {

using exchange::Action;
using exchange::Doubles;
using store::FilmField;

struct Stored {
  FilmField In;
  std::string_view Header, Text, Bytes, Notes;
};

class RowBecomesFilm : public testing::TestWithParam<Stored> {};

TEST_P(RowBecomesFilm, AsASaveWouldStoreIt) {
  const Stored& row = GetParam();
  const std::string title = row.In == FilmField::Title ? "" : "Title: Alien\n";
  const Read read = ReadText("rec", title + std::string(row.Header) + ": " + std::string(row.Text) + "\n");
  ASSERT_EQ(read.File.Films.size(), 1u);
  EXPECT_EQ(Field(read[0].Film, row.In), row.Bytes);
  EXPECT_EQ(Notes(read[0]), row.Notes);
  EXPECT_EQ(read[0].Film.Get(FilmField::Tail), "\r\n");
}

// clang-format off
constexpr Stored Rows[] = {
  { FilmField::Title,    "Title",         "The Third Man", "Third Man, The", "Title: the article moves: \"Third Man, The\"\n" },
  { FilmField::Title,    "Movie_Name",    "A Star Is Born", "Star Is Born, A", "Title: the article moves: \"Star Is Born, A\"\n" },
  { FilmField::Title,    "name",          "Third Man, The", "Third Man, The", "" },
  { FilmField::Title,    "Title",         "the thing", "the thing", "" },
  { FilmField::Title,    "Title",         "The", ", The", "Title: the article moves: \", The\"\n" },
  { FilmField::Title,    "Title",         "The Assassination of Jesse James by the Coward Robert Ford",
                                          "Assassination of Jesse James by the, The",
    "Title: the article moves, cut at 40: \"Assassination of Jesse James by the Coward Robert Ford, The\"\n" },
  { FilmField::Title,    "Title",         "Dr. Strangelove or: How I Learned to Stop Worrying",
                                          "Dr. Strangelove or: How I Learned to Sto",
    "Title: cut at 40: \"Dr. Strangelove or: How I Learned to Stop Worrying\"\n" },
  { FilmField::Director, "Directed_By",   "Krzysztof Kie\xC5\x9Blowski", "Krzysztof Kie?lowski",
    "Director: cannot be stored: \xC5\x9B becomes ? (s with --transliterate)\n" },
  { FilmField::Director, "Director",      "\xE9\xBB\x92\xE6\xBE\xA4", "??",
    "Director: cannot be stored: \xE9\xBB\x92 becomes ?, \xE6\xBE\xA4 becomes ?\n" },
  { FilmField::Format,   "Media",         "DVD", "D", "Format: \"DVD\" becomes D\n" },
  { FilmField::Format,   "Format",        "laserdisc", "L", "Format: \"laserdisc\" becomes L\n" },
  { FilmField::Format,   "Format",        "v", "V", "Format: \"v\" becomes V\n" },
  { FilmField::Format,   "Format",        "Betamax", "", "Format: left blank, there is no code for \"Betamax\"\n" },
  { FilmField::Genre,    "Genres",        "Romance; Sci-Fi; Drama", "SF", "Genre: \"Romance; Sci-Fi; Drama\" becomes SF\n" },
  { FilmField::Genre,    "Genre",         "Musical", "MU", "Genre: \"Musical\" becomes MU\n" },
  { FilmField::Genre,    "Genre",         "DR", "DR", "" },
  { FilmField::Letter,   "Aspect_Ratio",  "2.35:1", "W", "Letter: \"2.35:1\" becomes W\n" },
  { FilmField::Color1,   "Color",         "Black & White", "B & W", "Color1: \"Black & White\" becomes B & W\n" },
  { FilmField::Rating,   "MPAA",          "Rated PG-13", "PG-13", "Rating: \"Rated PG-13\" becomes PG-13\n" },
  { FilmField::Rating,   "Certification", "R (USA)", "R", "Rating: \"R (USA)\" becomes R\n" },
  { FilmField::Rating,   "Rating",        "8.5", "8.5", "Rating: \"8.5\" is no code of the program\n" },
  { FilmField::Time,     "Runtime",       "104", "104", "" },
  { FilmField::Time,     "Runtime",       "1h 44m", "104", "Time: \"1h 44m\" becomes 104\n" },
  { FilmField::Time,     "Length",        "PT2H5M", "125", "Time: \"PT2H5M\" becomes 125\n" },
  { FilmField::Time,     "Length",        "1:44:00", "104", "Time: \"1:44:00\" becomes 104\n" },
  { FilmField::Time,     "Duration",      "98 min.", "98", "Time: \"98 min.\" becomes 98\n" },
  { FilmField::Year,     "Release_Year",  "1949-09-02", "1949", "Year: \"1949-09-02\" becomes 1949\n" },
  { FilmField::Purchase, "Purchase_Date", "2004-12-25", "12/25/04", "Purchase: \"2004-12-25\" becomes 12/25/04\n" },
  { FilmField::Cost,     "Price",         "USD 1234.50", "1234.50", "Cost: \"USD 1234.50\" becomes 1234.50\n" },
  { FilmField::NumReel,  "Discs",         "2 discs", "2", "NumReel: \"2 discs\" becomes 2\n" },
  { FilmField::NumReel,  "Discs",         "12", "1", "NumReel: cut at 1: \"12\"\n" },
  { FilmField::CLV1,     "Disc_Mode",     "cav", "CAV", "CLV1: \"cav\" becomes CAV\n" },
  { FilmField::Letter,   "Letter",        "TV 1.33:1", "T", "Letter: \"TV 1.33:1\" becomes T\n" },
  { FilmField::Year,     "Year",          "19491", "1949", "Year: cut at 4: \"19491\"\n" },
  { FilmField::Time,     "Runtime",       "long", "lon", "Time: cut at 3: \"long\"\n" },
  { FilmField::Time,     "Runtime",       "1000 min", "100", "Time: cut at 3: \"1000 min\"\n" },
  { FilmField::Purchase, "Purchase",      "December 2004", "December", "Purchase: cut at 8: \"December 2004\"\n" },
  { FilmField::Cost,     "Cost",          "a present", "a presen", "Cost: cut at 8: \"a present\"\n" },
  { FilmField::Awards,   "Comments",      "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9 six six six six six six six six six six six six six six six six six six end",
                                          "\xE9\xE9\xE9\xE9\xE9 six six six six six six six six six six six six six si",
    "Awards: cut at 60: \"\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9 six six six six six six six six six six six six six six six six six s...\"\n" },
  { FilmField::Star4,    "Actor_4",       "Carol Kane", "Carol Kane", "" },
  { FilmField::Star2,    "Actors",        "Joseph Cotten (Holly), Alida Valli as Anna, Orson Welles", "Alida Valli", "" },
  { FilmField::Star6,    "Cast",          "A; B; C; D; E; F; G; H", "F", "Star6: more stars than six: 2 are left out\n" },
  { FilmField::Star3,    "Star3",         "Welles, Orson", "Welles, Orson", "" },
  { FilmField::Awards,   "Notes",         "  two  blanks ", "two  blanks", "" },
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Rows, RowBecomesFilm, testing::ValuesIn(Rows));

TEST(RowBecomesFilm, WithOtherLettersInPlaceOfThoseThatCannotBeStored) {
  const Read read = ReadText("csv",
                             "Title,Director\n\xC4\x8C\xC3\xA9sk\xC3\xBD \xE2\x80\x90 s\xCC\x8C"
                             "en,"
                             "\xD0\x90\xD0\xBD\xD0\xB4\xD1\x80\xD0\xB5\xD0\xB9 \xE6\xBE\xA4\n",
                             exchange::Unstorable::Transliterated);
  EXPECT_EQ(Field(read[0].Film, FilmField::Title), "C\xE9sk\xFD - sen");
  EXPECT_EQ(Field(read[0].Film, FilmField::Director), "Andrey ?");
  EXPECT_NE(Notes(read[0]).find("\xD0\x90 becomes A"), std::string::npos) << Notes(read[0]);
}

TEST(RowBecomesFilm, WithColumnsAsTold) {
  const auto maps = {*exchange::ParseColumnMap("Plot=Awards"), *exchange::ParseColumnMap("Year="),
                     *exchange::ParseColumnMap("Crew=Stars")};
  const Read read =
      ReadText("csv", "Movie Name,PLOT,Year,Crew\nAlien,Space,1979,\"A, B\"\n", exchange::Unstorable::Marked, maps);
  EXPECT_EQ(Field(read[0].Film, FilmField::Awards), "Space");
  EXPECT_EQ(Field(read[0].Film, FilmField::Year), "");
  EXPECT_EQ(Field(read[0].Film, FilmField::Star2), "B");
  EXPECT_EQ(exchange::NameOf(exchange::ParseColumnMap("No=Record")->To), "Record");
  EXPECT_EQ(exchange::NameOf(maps.begin()[2].To), "Stars");
  EXPECT_FALSE(exchange::ParseColumnMap("Plot"));
  EXPECT_FALSE(exchange::ParseColumnMap("=Title"));
  EXPECT_FALSE(exchange::ParseColumnMap("Plot=Colour"));
}

TEST(RowBecomesFilm, NotWithoutATitle) {
  const Read read = ReadText("csv", "Title,Year\n,1979\nBrazil,1985\n  ,\n");
  EXPECT_EQ(read.File.Films.size(), 1u);
  EXPECT_EQ(read.File.Untitled, 2);
}

TEST(RowBecomesFilm, UpToTheLastRecordOfACollection) {
  std::string text = "Title\n";
  for (std::int64_t film = 0; film < exchange::MostSlots; ++film) text += "x\n";
  EXPECT_EQ(ReadText("csv", text).File.Films.size(), static_cast<std::size_t>(exchange::MostSlots));
  EXPECT_EQ(ReadText("csv", text + "x\n").Wrong.value_or(""), "more than 32,767 films");
}

// "Alien 1979" for each slot, "" for a free one.
std::vector<store::FilmRecord> SlotsOf(const std::vector<std::string>& films) {
  std::vector<store::FilmRecord> slots;
  for (const std::string& film : films) {
    slots.emplace_back();
    if (film.empty()) continue;
    slots.back().Set(FilmField::Title, film.substr(0, film.size() - 5));
    slots.back().Set(FilmField::Year, film.substr(film.size() - 4));
    slots.back().Set(FilmField::Tail, "\r\n");
  }
  return slots;
}

// Each step as a letter and a slot, after which the slots hold what they are to hold.
std::string Plan(std::vector<store::FilmRecord>& slots, std::string_view csv, Doubles doubles) {
  const Read read = ReadText("csv", csv);
  EXPECT_EQ(read.Wrong.value_or(""), "");
  std::string plan;
  for (const exchange::Step& step : exchange::PlanImport(slots, read.File.Films, doubles)) {
    plan +=
        (plan.empty() ? "" : " ") + std::string(1, "+u=-!"[static_cast<int>(step.What)]) + std::to_string(step.Slot);
    if (step.What != Action::Add && step.What != Action::Update) continue;
    if (slots.size() < static_cast<std::size_t>(step.Slot)) slots.resize(static_cast<std::size_t>(step.Slot));
    slots[static_cast<std::size_t>(step.Slot) - 1] = step.Bytes;
  }
  return plan;
}

TEST(ImportPlan, TakesFreeSlotsFirst) {
  auto slots = SlotsOf({"", "Alien 1979", "", "Brazil 1985"});
  EXPECT_EQ(Plan(slots, "Title\nA1\nB1\nC1\n", Doubles::Skip), "+1 +3 +5");
}

TEST(ImportPlan, NeverTakesTheOnlySlotOfAFilm) {
  auto slots = SlotsOf({"Alien 1979"});
  EXPECT_EQ(Plan(slots, "Title\nBrazil\n", Doubles::Skip), "+2");
}

constexpr std::string_view Films = "Title,Year,Director\nALIEN,1979,Scott\nBrazil,1985,Gilliam\nalien,1979,Other\n";

TEST(ImportPlan, SkipsUpdatesOrAddsDoubles) {
  auto slots = SlotsOf({"Alien 1979", "Alien 1980"});
  auto skip = slots, update = slots, add = slots;
  EXPECT_EQ(Plan(skip, Films, Doubles::Skip), "-1 +3 -1");
  EXPECT_EQ(Plan(update, Films, Doubles::Update), "u1 +3 +4");
  EXPECT_EQ(Field(update[0], FilmField::Director), "Scott");
  EXPECT_EQ(Plan(add, Films, Doubles::Add), "+3 +4 +5");
}

TEST(ImportPlan, ChangesNothingTheSecondTime) {
  for (Doubles doubles : {Doubles::Skip, Doubles::Update, Doubles::Add}) {
    auto slots = SlotsOf({"", "Alien 1979", "", "Brazil 1985"});
    Plan(slots, Films, doubles);
    const std::string second = Plan(slots, Films, doubles);
    EXPECT_EQ(second.find_first_of("+u"), std::string::npos) << second;
  }
}

// Rows of one title that tell different things: the first is there as the second's film, too.
TEST(ImportPlan, ChangesNothingTheSecondTimeWithFilmsThatSuitTwoRows) {
  auto slots = SlotsOf({"", "Alien 1979"});
  slots[1].Set(FilmField::Music, "Goldsmith");
  constexpr std::string_view films = "Title,Year,Director\nAlien,1979,\nAlien,1979,Scott\n";
  EXPECT_EQ(Plan(slots, films, Doubles::Update), "=2 +1");
  EXPECT_EQ(Plan(slots, films, Doubles::Update), "=2 =1");
}

TEST(ImportPlan, AnUpdateKeepsWhatTheFileDoesNotTell) {
  auto slots = SlotsOf({"Alien 1979"});
  slots[0].Set(FilmField::Music, "Goldsmith");
  Plan(slots, "Title,Year,Director,Music\nAlien,1979,Scott,\n", Doubles::Update);
  EXPECT_EQ(Field(slots[0], FilmField::Music), "Goldsmith");
  EXPECT_EQ(Field(slots[0], FilmField::Director), "Scott");
}

std::string OwnCsv(const Slots& films) { return Export(*exchange::FormatOf("csv"), films); }

TEST(ImportPlan, FilmsOfAnExportKeepTheirNumbersInAnEmptyCollection) {
  const auto films = SlotsOf({"The Same 1950", "The Same 1950", "Other 1950"});
  const std::string text = OwnCsv({{3, films[0]}, {5, films[1]}, {9, films[2]}});
  std::vector<store::FilmRecord> empty, others = SlotsOf({"", "", "", "Alien 1979"});
  EXPECT_EQ(Plan(empty, text, Doubles::Skip), "+3 +5 +9");
  EXPECT_EQ(Field(empty[2], FilmField::Title), "The Same");
  EXPECT_EQ(Plan(empty, text, Doubles::Skip), "=3 =5 =9");
  EXPECT_EQ(Plan(empty, text, Doubles::Add), "=3 =5 =9");
  EXPECT_EQ(Plan(others, text, Doubles::Skip), "+1 +2 +3");
}

TEST(ImportPlan, AnExportStaysOneWithAColumnMore) {
  Slots films;
  films[2] = SlotsOf({"The Odd One 1950"})[0];
  std::string text = OwnCsv(films);
  const std::size_t end = text.find("\r\n");
  for (const std::size_t at : {text.size() - 2, end}) text.insert(at, at == end ? ",Mine" : ",x");
  const Read read = ReadText("csv", text);
  EXPECT_TRUE(read[0].Exact);
  EXPECT_EQ(Field(read[0].Film, FilmField::Title), "The Odd One");
}

TEST(ImportPlan, StopsAtTheLastRecord) {
  std::vector<store::FilmRecord> slots(static_cast<std::size_t>(exchange::MostSlots), SlotsOf({"Alien 1979"})[0]);
  slots[4] = store::FilmRecord();
  EXPECT_EQ(Plan(slots, "Title\nA1\nB1\n", Doubles::Skip), "+5 !32768");
}

TEST(ApplyImport, WritesThroughTheJournal) {
  kit::MemoryDisk disk({});
  runtime::Files files(disk);
  store::OpenMaster(files, 1);
  const Read read = ReadText("csv", "Title,Year\nAlien,1979\nBrazil,1985\n");
  std::int64_t told = 0;
  exchange::ApplyImport(files, exchange::PlanImport({}, read.File.Films, Doubles::Skip),
                        [&](std::int64_t done) { told = done; });
  EXPECT_EQ(told, 2);
  const auto slots = exchange::ReadSlots(disk);
  ASSERT_EQ(slots.size(), 2u);
  EXPECT_EQ(slots[1].Bytes, read[1].Film.Bytes);
  EXPECT_TRUE(disk.Content().contains(".reelora/journal"));
}

TEST(ReadSlots, HasNoneWithoutAMasterFile) {
  kit::MemoryDisk disk({});
  EXPECT_TRUE(exchange::ReadSlots(disk).empty());
}

TEST(Visible, SteersNoTerminal) {
  EXPECT_EQ(exchange::Visible("a\x1B[2J\xFF\xE2\x80\xAE"
                              "b\xC2\x9B"),
            "a\xE2\x90\x9B[2J\xC3\xBF?b\xEF\x9E\x9B");
}

TEST(FilmsOf, LeavesFreeSlotsOutAndPadsTheLast) {
  const auto films = SlotsOf({"Alien 1979", ""});
  std::string master(films[0].Bytes.data(), store::RecordLength);
  master.append(films[1].Bytes.data(), store::RecordLength).append("Braz");
  kit::MemoryDisk disk({{"Recpra.Dat", master}, {"BGColor", "255\r\n"}, {"tagForColor", "red"}});
  std::string seen;
  exchange::FilmsOf(disk)([&](std::int64_t number, const store::FilmRecord& film) {
    seen += std::to_string(number) + Field(film, FilmField::Title) + "|";
  });
  EXPECT_EQ(seen, "1Alien|3Braz|");
  EXPECT_EQ(exchange::ReadColours(disk).Background, 0xFF0000u);
  EXPECT_EQ(exchange::ReadColours(disk).Tag, 0xFFFF00u);
}

}  // namespace
}  // namespace exchange_kit
