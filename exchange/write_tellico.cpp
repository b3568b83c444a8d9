// Writes Tellico's XML: a collection of videos, with a field for each of ours.
#include "exchange/coded_words.h"
#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/tellico_fields.h"
#include "exchange/text_out.h"
#include "store/film_codes.h"

namespace exchange {
namespace {

using store::FilmField;

constexpr std::string_view Head =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE tellico PUBLIC \"-//Robby Stephenson/DTD Tellico V11.0//EN\" "
    "\"http://periapsis.org/tellico/dtd/v11/tellico.dtd\">\n"
    "<tellico xmlns=\"http://periapsis.org/tellico/\" syntaxVersion=\"11\">\n"
    " <collection title=\"Films\" type=\"3\">\n"
    "  <fields>\n";

void AppendEscaped(std::string_view text, std::string& out) {
  if (text.find_first_of("<>&\"") == std::string_view::npos) {
    out.append(text);
    return;
  }
  for (char byte : text) {
    switch (byte) {
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '&':
        out += "&amp;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += byte;
    }
  }
}

// The choices of a coded field, in words.
std::string Choices(FilmField field) {
  std::string choices;
  auto add = [&](std::string_view word) { choices.append(choices.empty() ? "" : ";").append(word); };
  if (field == FilmField::Format) {
    for (const store::CodeRow& row : store::Formats) add(row.Word);
  } else if (field == FilmField::Letter) {
    for (const store::CodeRow& row : store::Aspects) add(row.Word);
  } else if (field == FilmField::Genre) {
    for (const store::GenreRow& row : store::Genres) add(row.Name);
  } else if (field == FilmField::Color1) {
    for (std::string_view word : store::ColourWords) add(word);
  } else if (field == FilmField::Rating) {
    for (std::string_view code : store::RatingCodes) add(code);
  }
  return choices;
}

void AppendFieldRow(std::string_view name, std::string_view title, std::string_view category, int type, int flags,
                    std::string_view rest, std::string& out) {
  out.append("   <field name=\"").append(name).append("\" title=\"").append(title).append("\" category=\"");
  out.append(category).append("\" type=\"").append(std::to_string(type)).append("\" flags=\"");
  out.append(std::to_string(flags)).append("\" format=\"").append(name == "title" ? "1" : "4").append("\"");
  if (rest.empty()) {
    out.append("/>\n");
  } else {
    out.append(rest);
  }
}

// Two columns: Tellico writes a table of one in another way.
constexpr std::string_view CastColumns =
    ">\n    <prop name=\"columns\">2</prop>\n    <prop name=\"column1\">Star</prop>\n"
    "    <prop name=\"column2\">Role</prop>\n   </field>\n";
constexpr int TableType = 8;
// Its flags of a field: texts are completed as they are typed, entries grouped by it, it stays in the collection.
constexpr int Completed = 2, Grouped = 4, Kept = 8;

int FlagsOf(const TellicoField& row) {
  if (row.Field == FilmField::Title) return Kept;
  if (row.Type == TellicoType::Choice || row.Field == FilmField::Year) return Grouped;
  return row.Category == PeoplePage || row.Field == FilmField::Label ? Completed | Grouped : 0;
}

void AppendFields(std::string& out) {
  for (const TellicoField& row : TellicoFields) {
    if (row.Field == FilmField::Star1) {
      AppendFieldRow(TellicoCast, "Stars", PeoplePage, TableType, Grouped, CastColumns, out);
    }
    if (row.Name.empty()) continue;
    std::string allowed;
    if (row.Type == TellicoType::Choice) {
      allowed = " allowed=\"";
      AppendEscaped(Choices(row.Field), allowed);
      allowed += "\"/>\n";
    }
    AppendFieldRow(row.Name, row.Title, row.Category, static_cast<int>(row.Type), FlagsOf(row), allowed, out);
  }
  AppendFieldRow(TellicoRecord, "Record", PersonalPage, static_cast<int>(TellicoType::Number), 0, "", out);
}

constexpr std::array Stars = {FilmField::Star1, FilmField::Star2, FilmField::Star3,
                              FilmField::Star4, FilmField::Star5, FilmField::Star6};

// One row for each star up to the last, so that each keeps its place.
void AppendCast(const store::FilmRecord& film, std::string& out) {
  std::array<std::string, Stars.size()> texts;
  std::size_t rows = 0;
  for (std::size_t star = 0; star < Stars.size(); ++star) {
    AppendField(film, Stars[star], texts[star]);
    if (!texts[star].empty()) rows = star + 1;
  }
  if (rows == 0) return;
  out += "   <casts>\n";
  for (std::size_t row = 0; row < rows; ++row) {
    out += "    <cast><column>";
    AppendEscaped(texts[row], out);
    out += "</column><column/></cast>\n";
  }
  out += "   </casts>\n";
}

void AppendEntry(std::int64_t number, const store::FilmRecord& film, std::string& text, std::string& out) {
  const std::string digits = std::to_string(number);
  out.append("  <entry id=\"").append(digits).append("\">\n");
  for (const TellicoField& row : TellicoFields) {
    if (row.Field == FilmField::Star1) AppendCast(film, out);
    if (row.Name.empty()) continue;
    text.clear();
    AppendWord(film, row.Field, text);
    if (text.empty()) continue;
    out.append("   <").append(row.Name).append(">");
    AppendEscaped(text, out);
    out.append("</").append(row.Name).append(">\n");
  }
  out.append("   <").append(TellicoRecord).append(">").append(digits).append("</").append(TellicoRecord);
  out.append(">\n  </entry>\n");
}

}  // namespace

void WriteTellico(const Collection& collection, const ByteSink& sink) {
  TextOut out(sink);
  out.Text = Head;
  AppendFields(out.Text);
  out.Text += "  </fields>\n";
  std::string text;
  collection.Each([&](std::int64_t number, const store::FilmRecord& film) {
    AppendEntry(number, film, text, out.Text);
    out.Pass();
  });
  out.Text += " </collection>\n</tellico>\n";
  out.End();
}

}  // namespace exchange
