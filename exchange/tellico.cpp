// Tellico's XML, a collection of videos. Expat reads: it is small, keeps nothing of the document and fetches nothing.
// A file that declares entities is refused.
#include <expat.h>

#include <memory>

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

// Elements by depth: 1 tellico, 2 collection, 3 entry, 4 a field or the list of its values, 5 a value or a row of a
// table, 6 a column of it.
class TellicoReading {
 public:
  explicit TellicoReading(Rows& rows) : rows_(rows), parser_(XML_ParserCreate(nullptr), XML_ParserFree) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), OnStart, OnEnd);
    XML_SetCharacterDataHandler(parser_.get(), OnText);
    XML_SetEntityDeclHandler(parser_.get(), OnEntity);
  }

  // False: read no further.
  bool Feed(std::string_view bytes, bool last) {
    fed_ += static_cast<std::int64_t>(bytes.size());
    const XML_Status status = XML_Parse(parser_.get(), bytes.data(), static_cast<int>(bytes.size()), last);
    if (status == XML_STATUS_ERROR && !stopped_ && !fault_) fault_ = XML_ErrorString(XML_GetErrorCode(parser_.get()));
    // What is not a token yet, the parser has to keep.
    const std::int64_t kept = fed_ - XML_GetCurrentByteIndex(parser_.get());
    if (!fault_ && kept > static_cast<std::int64_t>(LongestPiece)) fault_ = TooLong;
    return !fault_ && !stopped_;
  }
  Fault Finish() const {
    if (!fault_) return std::nullopt;
    return "line " + std::to_string(XML_GetCurrentLineNumber(parser_.get())) + ": " + *fault_;
  }

 private:
  static TellicoReading& Of(void* self) { return *static_cast<TellicoReading*>(self); }
  static void OnStart(void* self, const char* name, const char** attributes) { Of(self).Start(name, attributes); }
  static void OnEnd(void* self, const char*) { Of(self).End(); }
  static void OnText(void* self, const char* text, int length) {
    TellicoReading& reading = Of(self);
    if (!reading.in_entry_ || reading.text_.size() > LongestPiece) return;
    reading.text_.append(text, static_cast<std::size_t>(length));
  }
  static void OnEntity(void* self, const char*, int, const char*, int, const char*, const char*, const char*,
                       const char*) {
    Of(self).Stop("it declares an entity, which no such file needs");
  }

  void Stop(std::string_view fault) {
    if (!fault_) fault_ = fault;
    XML_StopParser(parser_.get(), XML_FALSE);
  }
  void Start(std::string_view name, const char** attributes) {
    ++depth_;
    if (depth_ > MostLevels) return Stop(TooDeep);
    if (depth_ == 1 && name != "tellico") return Stop("this is no file of Tellico");
    if (depth_ == 3) in_entry_ = name == "entry";
    if (depth_ == 4 && name == "field") NoteField(attributes);
    if (!in_entry_) return;
    text_.clear();
    if (depth_ >= 4 && depth_ <= 6) names_[static_cast<std::size_t>(depth_) - 4] = name;
    if (depth_ == 4) {
      parts_ = 0;
      table_row_ = 0;
    }
    if (depth_ == 5) {
      ++parts_;
      columns_ = 0;
    }
    if (depth_ == 6) ++columns_;
  }
  // An own file says so by a field that no other has.
  void NoteField(const char** attributes) {
    for (; attributes[0]; attributes += 2) {
      if (std::string_view(attributes[0]) == "name" && attributes[1] == TellicoTail) rows_.Own = true;
    }
  }
  void End() {
    if (in_entry_) EndInEntry();
    if (depth_ == 3 && in_entry_) {
      in_entry_ = false;
      if (!rows_.End()) {
        stopped_ = true;
        XML_StopParser(parser_.get(), XML_FALSE);
      }
    }
    --depth_;
  }
  void EndInEntry() {
    if (depth_ == 6 && columns_ == 1) {
      Add(names_[1] + " " + std::to_string(++table_row_));
    } else if (depth_ == 5 && columns_ == 0) {
      EndPart();
    } else if (depth_ == 4 && parts_ == 0) {
      Add(names_[0]);
    } else if (depth_ == 4 && !date_.empty()) {
      text_ = date_;
      date_.clear();
      Add(names_[0]);
    }
    text_.clear();
  }
  // One of several values, or of the year, month and day of a date.
  void EndPart() {
    if (names_[0] == names_[1] + "s") return Add(names_[1]);
    if (date_.size() < 16) date_.append(date_.empty() ? "" : "-").append(text_.size() == 1 ? "0" : "").append(text_);
  }
  void Add(std::string_view name) {
    const bool beyond = table_row_ > static_cast<int>(MostTableRows) && parts_ > 0;
    if (beyond) return;
    const std::size_t column = rows_.Column(name);
    if (column == MostColumns) return Stop(TooManyColumns);
    rows_.Add(column, text_);
  }

  static constexpr std::size_t MostTableRows = 40;
  Rows& rows_;
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
  std::array<std::string, 3> names_;
  std::string text_, date_;
  int depth_ = 0;
  int parts_ = 0;    // of the field: values, or rows of its table
  int columns_ = 0;  // of the row
  int table_row_ = 0;
  bool in_entry_ = false;
  bool stopped_ = false;
  std::int64_t fed_ = 0;
  Fault fault_;
};

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

Fault ReadTellico(const ByteSource& source, Rows& rows) {
  TellicoReading reading(rows);
  std::string block(std::size_t(64) * 1024, '\0');
  bool more = true;
  while (more) {
    const std::size_t count = source(block.data(), block.size());
    more = reading.Feed({block.data(), count}, count == 0) && count > 0;
  }
  return reading.Finish();
}

}  // namespace exchange
