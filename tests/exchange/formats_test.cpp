// What the formats look like, and what their readers make of files of others.
#include <gtest/gtest.h>

#include <fstream>

#include "exchange/film_text.h"
#include "tests/exchange/exchange_kit.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/source_tree.h"

namespace exchange_kit {
namespace {

using store::FilmField;

Slots OneFilm(std::string_view title, std::string_view director = "") {
  store::FilmRecord film;
  film.Set(FilmField::Title, title);
  film.Set(FilmField::Director, director);
  film.Set(FilmField::Format, "D");
  film.Set(FilmField::Tail, "\r\n");
  return {{7, film}};
}

std::string ExportOne(std::string_view format, std::string_view title, std::string_view director = "") {
  return Export(*exchange::FormatOf(format), OneFilm(title, director));
}

// The titles that a text holds, with bars between; "!" and the fault if there is one.
std::string Titles(std::string_view format, std::string_view text) {
  const Read read = ReadText(format, text);
  if (read.Wrong) return "!" + *read.Wrong;
  std::string titles;
  for (const exchange::ReadFilm& film : read.File.Films) titles += Field(film.Film, FilmField::Title) + "|";
  return titles;
}

TEST(Formats, AreFoundByNameAndByFileName) {
  EXPECT_EQ(exchange::FormatOf("xls"), nullptr);
  EXPECT_EQ(exchange::FormatOfFile("a/Films.CSV")->Name, "csv");
  EXPECT_EQ(exchange::FormatOfFile("films.tc")->Name, "tellico");
  EXPECT_EQ(exchange::FormatOfFile("csv"), nullptr);
  EXPECT_EQ(exchange::GuessImportFormat("films.html"), nullptr);
}

TEST(Csv, BeginsWithTheNamesOfTheFields) {
  const std::string text = ExportOne("csv", "Am\xE9lie, \"the\"");
  EXPECT_TRUE(text.starts_with("Record,Title,Director,Star1,")) << text;
  EXPECT_NE(text.find(",Ratings,Tail\r\n7,\"Am\xC3\xA9lie, \"\"the\"\"\",,"), std::string::npos) << text;
  EXPECT_TRUE(text.ends_with("\r\n")) << text;
}

TEST(Csv, HasNoCellThatASpreadsheetRuns) {
  for (std::string_view title : {"=1+1", "+1", "-30-", "@SUM(1)", "\t=1", "\r=1", "'=1", "''@"}) {
    const std::string text = ExportOne("csv", title);
    const char first = text[text.find("\r\n7,") + 4];
    EXPECT_TRUE(first == '\'' || first == '\xE2') << text;
    const Read read = ReadText("csv", text);
    EXPECT_EQ(Field(read[0].Film, FilmField::Title), title);
  }
  EXPECT_NE(ExportOne("csv", "'Til Death").find("\r\n7,'Til Death,"), std::string::npos);
}

TEST(Csv, ReadsOtherSeparatorsMarksAndLineEnds) {
  EXPECT_EQ(Titles("csv", "\xEF\xBB\xBFTitle;Year\nAlien;1979\nBrazil;1985\n"), "Alien|Brazil|");
  EXPECT_EQ(Titles("csv", "Year\tTitle\r1979\tAlien\r"), "Alien|");
  EXPECT_EQ(Titles("csv", "Title,Year\n\"Eat Drink, Man \"\"Woman\"\"\",1994"), "Eat Drink, Man \"Woman\"|");
  EXPECT_EQ(Titles("csv", "Title\n\n\nAlien\n\n"), "Alien|");
  EXPECT_EQ(Titles("csv", "Title\nAm\xE9lie\n"), "Am\xE9lie|");
  EXPECT_EQ(Titles("csv", ""), "");
  EXPECT_EQ(Titles("csv", "Title,Year\nAlien\nBrazil,1985,and,more\n"), "Alien|Brazil|");
}

TEST(Csv, NamesWhatIsWrong) {
  EXPECT_EQ(Titles("csv", "Title\n\"Alien"), "!row 2: a quoted value without an end");
  EXPECT_EQ(Titles("csv", "Title\n" + std::string(exchange::LongestPiece + 10, 'x')),
            "!row 2: a value of more than a megabyte");
  std::string header;
  for (std::size_t column = 0; column <= exchange::MostColumns; ++column) header += "c" + std::to_string(column) + ",";
  EXPECT_EQ(Titles("csv", header + "Title\n"), "!row 1: more than 1,000 columns");
}

TEST(Json, IsAnObjectOfFilms) {
  EXPECT_EQ(ExportOne("json", "A \"\\\"\xE9"),
            "{\"collection\": \"reelora-films\", \"films\": [\n"
            "{\"Record\": 7, \"Title\": \"A \\\"\\\\\\\"\xC3\xA9\", \"Format\": \"D\"}\n]}\n");
}

TEST(Json, ReadsObjectsInAList) {
  EXPECT_EQ(Titles("json", R"([{"title":"Alien"},{"title":"Brazil","year":1985,"tags":["a"],"seen":true,"x":null}])"),
            "Alien|Brazil|");
  EXPECT_EQ(Titles("json", "\xEF\xBB\xBF{\"data\":{\"movies\":[{\"name\":\"Am\\u00e9lie\"}]}}"), "Am\xE9lie|");
  EXPECT_EQ(Titles("json", "{}"), "");
  EXPECT_EQ(Titles("json", R"([{"title":-12},{"title":1.50}])"), "-12|1.50|");
  const Read read = ReadText("json", R"([{"title":"Heat","directors":[{"id":1,"name":"Michael Mann"},{"name":"B"}]}])");
  EXPECT_EQ(Field(read[0].Film, FilmField::Director), "Michael Mann; B");
}

TEST(Json, NamesWhatIsWrong) {
  EXPECT_EQ(Titles("json", "[{\"title\":\"Alien\"}"),
            "!line 1, column 19: syntax error while parsing array - unexpected end of input; expected ']'");
  EXPECT_EQ(Titles("json", "[88.8e880"), "!number overflow parsing '88.8e880'");
  EXPECT_EQ(Titles("json", std::string(100, '[')), "!more than 64 levels");
  EXPECT_EQ(Titles("json", "[{\"title\":\"" + std::string(exchange::LongestPiece + 200'000, 'x')),
            "!a value of more than a megabyte");
}

TEST(Rec, IsARecordOfLines) {
  EXPECT_EQ(ExportOne("rec", "A\\"),
            "%rec: ReeloraFilm\n%key: Record\n%type: Record int\n%mandatory: Title\n\n"
            "Record: 7\nTitle: A\xEF\x9D\x9C\nFormat: D\n");
}

TEST(Rec, ReadsFilesOfOthers) {
  EXPECT_EQ(Titles("rec", "# films\n\n%rec: Movie\n\nTitle: Alien\nYear: 1979\n\n\nTitle: Braz\\\nil\r\n"),
            "Alien|Brazil|");
  const Read read = ReadText("rec", "Title: Alien\nNotes: one\n+ two\n+three\nAudio: a\nAudio: b\n");
  EXPECT_EQ(Field(read[0].Film, FilmField::Awards), "one two three");
  EXPECT_EQ(Field(read[0].Film, FilmField::Sound), "a; b");
}

TEST(Rec, NamesWhatIsWrong) {
  EXPECT_EQ(Titles("rec", "Title: Alien\nno field\n"), "!line 2: no \"Name: value\"");
  EXPECT_EQ(Titles("rec", "+ x\n"), "!line 1: a line with + after no value");
  EXPECT_EQ(Titles("rec", "Title: " + std::string(exchange::LongestPiece, 'x')),
            "!line 0: a value of more than a megabyte");
}

constexpr std::string_view TellicoHead = "<tellico><collection type='3'><fields><field name='title'/></fields>";

TEST(Tellico, ReadsFilesOfOthers) {
  const std::string text =
      std::string(TellicoHead) +
      "<entry id='1'><title>Heat &amp; Dust</title><directors><director>A</director><director>B</director></directors>"
      "<casts><cast><column>Julie</column><column>Anne</column></cast><cast><column>Greta</column></cast></casts>"
      "<pur_date calendar='gregorian'><year>2004</year><month>5</month><day>12</day></pur_date>"
      "<medium>VHS</medium><certification>PG (USA)</certification></entry>"
      "<images><image>data</image></images></collection></tellico>";
  const Read read = ReadText("tellico", text);
  ASSERT_EQ(read.Wrong.value_or(""), "");
  ASSERT_EQ(read.File.Films.size(), 1u);
  const store::FilmRecord& film = read[0].Film;
  EXPECT_EQ(Field(film, FilmField::Title), "Heat & Dust");
  EXPECT_EQ(Field(film, FilmField::Director), "A; B");
  EXPECT_EQ(Field(film, FilmField::Star1), "Julie");
  EXPECT_EQ(Field(film, FilmField::Star2), "Greta");
  EXPECT_EQ(Field(film, FilmField::Purchase), "05/12/04");
  EXPECT_EQ(Field(film, FilmField::Format), "V");
  EXPECT_EQ(Field(film, FilmField::Rating), "PG");
}

TEST(Tellico, NamesWhatIsWrong) {
  EXPECT_EQ(Titles("tellico", "<html/>"), "!line 1: this is no file of Tellico");
  EXPECT_EQ(Titles("tellico", "<tellico>\n<x"), "!line 2: unclosed token");
  EXPECT_EQ(Titles("tellico", "<!DOCTYPE tellico [<!ENTITY a 'b'>]><tellico/>"),
            "!line 1: it declares an entity, which no such file needs");
  EXPECT_EQ(Titles("tellico", "<tellico a='" + std::string(exchange::LongestPiece + 200'000, 'x')),
            "!line 1: a value of more than a megabyte");
  std::string deep = "<tellico>";
  for (int level = 0; level < 80; ++level) deep += "<x>";
  EXPECT_EQ(Titles("tellico", deep), "!line 1: more than 64 levels");
}

std::string ManyColumns(std::string_view before, std::string_view after) {
  std::string text;
  for (std::size_t column = 0; column <= exchange::MostColumns; ++column) {
    text.append(before).append("c").append(std::to_string(column)).append(after);
  }
  return text;
}

TEST(Formats, NameTooManyColumns) {
  EXPECT_EQ(Titles("json", "[{" + ManyColumns("\"", "\":1,")), "!more than 1,000 columns");
  EXPECT_EQ(Titles("rec", ManyColumns("", ": x\n")), "!line 1001: more than 1,000 columns");
  std::string entry = std::string(TellicoHead) + "<entry>";
  for (std::size_t column = 0; column <= exchange::MostColumns; ++column) entry += "<c" + std::to_string(column) + "/>";
  EXPECT_EQ(Titles("tellico", entry), "!line 1: more than 1,000 columns");
}

TEST(Formats, EndTheReadingAtTooManyFilms) {
  std::string csv = "Title\n", json = "[", rec, tellico = std::string(TellicoHead);
  for (std::int64_t film = 0; film <= exchange::MostSlots; ++film) {
    csv += "x\n";
    json += "{\"title\":\"x\"},";
    rec += "Title: x\n\n";
    tellico += "<entry><title>x</title></entry>";
  }
  EXPECT_EQ(Titles("csv", csv), "!more than 32,767 films");
  EXPECT_EQ(Titles("json", json), "!more than 32,767 films");
  EXPECT_EQ(Titles("rec", rec), "!more than 32,767 films");
  EXPECT_EQ(Titles("tellico", tellico), "!more than 32,767 films");
}

TEST(Html, TellsTheSummaryAndTheColours) {
  store::FilmRecord film = OneFilm("Alien").at(7);
  film.Set(FilmField::Cost, "$10.50");
  film.Set(FilmField::Time, "120");
  film.Set(FilmField::Genre, "<\"");
  exchange::Collection collection;
  collection.Each = [&](const exchange::Visit& visit) { visit(7, film); };
  collection.Look.Tag = 0x0A0B0C;
  collection.When = "Sunday & more";
  std::string page;
  exchange::WriteHtml(collection, [&](std::string_view bytes) { page += bytes; });
  EXPECT_NE(page.find("1 film, 2 hours, cost 10.50 (1 with a price, 10.50 each)"), std::string::npos);
  EXPECT_NE(page.find("--tag: #0a0b0c;"), std::string::npos);
  EXPECT_NE(page.find("Sunday &amp; more"), std::string::npos);
  EXPECT_NE(page.find("data-value=\"&lt;&quot;\""), std::string::npos);
}

TEST(Html, HoldsNothingThatRuns) {
  const std::string page = ExportOne("html", "</script><b>&", "Tarkovsky <x>");
  EXPECT_EQ(page.find("</script><b>"), std::string::npos);
  EXPECT_NE(page.find("\xEF\x9C\xBC/script>\xEF\x9C\xBC"), std::string::npos) << "the title with a sign for each <";
  EXPECT_EQ(page.find("{{"), std::string::npos);
  EXPECT_EQ(page.find("http:"), std::string::npos);
  EXPECT_EQ(page.find("https:"), std::string::npos);
}

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The title that the zip holds, or "!" and what is wrong.
std::string TitleInZip(const std::string& zip) {
  const kit::FreshFolder folder;
  const std::string path = (folder.Path() / "films.tc").string();
  std::ofstream(path, std::ios::binary) << zip;
  const exchange::ImportFile file(path);
  exchange::FilmsOfFile films;
  const exchange::Fault fault =
      exchange::ReadFilms(file.Source(), *exchange::GuessImportFormat(path), {{}, exchange::Unstorable::Marked}, films);
  if (file.Wrong() || fault) return "!" + file.Wrong().value_or("the XML");
  return Field(films.Films.at(0).Film, FilmField::Title);
}

TEST(ImportFile, ReadsZippedFiles) {
  const std::filesystem::path zips = kit::SourceFolder() / "tests/fuzz/corpus/zip";
  for (const char* name : {"stored", "deflated"}) {
    std::string zip = Bytes(zips / name);
    EXPECT_EQ(TitleInZip(zip), "A & B");
    const std::size_t data = zip.find("tellico.xml") + 40;
    zip[data] = static_cast<char>(zip[data] ^ 1);
    EXPECT_TRUE(TitleInZip(zip).starts_with("!the ")) << TitleInZip(zip);
    for (std::size_t at = zip.find("tellico.xml"); at != std::string::npos; at = zip.find("tellico.xml", at))
      zip[at] = 'T';
    EXPECT_EQ(TitleInZip(zip), "!a zip without a readable tellico.xml");
  }
}

TEST(ImportFile, ReadsPlainFilesAndTellsMissingOnes) {
  const kit::FreshFolder folder;
  const std::string path = (folder.Path() / "films.csv").string();
  std::ofstream(path) << "Title\nAlien\n";
  const exchange::ImportFile file(path);
  exchange::FilmsOfFile films;
  EXPECT_FALSE(
      exchange::ReadFilms(file.Source(), *exchange::FormatOf("csv"), {{}, exchange::Unstorable::Marked}, films));
  EXPECT_FALSE(file.Wrong());
  EXPECT_EQ(films.Films.size(), 1u);
  EXPECT_EQ(exchange::ImportFile(path + "x").Wrong().value_or(""), "it cannot be opened");
  EXPECT_TRUE(exchange::ImportFile(folder.Path().string()).Wrong());
}

}  // namespace
}  // namespace exchange_kit
