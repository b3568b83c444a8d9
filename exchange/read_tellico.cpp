// Reads Tellico's XML. Expat parses it: it is small, keeps nothing of the document and fetches nothing. A file that
// declares entities is refused.
#include <expat.h>

#include <array>
#include <memory>

#include "exchange/formats.h"
#include "exchange/tellico_fields.h"

namespace exchange {
namespace {

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
