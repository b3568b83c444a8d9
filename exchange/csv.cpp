// CSV as in RFC 4180, in UTF-8. A cell that a spreadsheet would run gets an apostrophe in front, and loses it when it
// is read. libcsv reads: it takes quotes, line ends and blanks as they come, in pieces of any length, and calls back.
#include <csv.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/text_out.h"

namespace exchange {
namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// The text begins with apostrophes, or none, and then with a sign of a formula. A tab or carriage return at its start
// has a sign of its own already.
bool LooksLikeFormula(std::string_view text) {
  const std::size_t first = text.find_first_not_of('\'');
  return first != std::string_view::npos && std::string_view("=+-@").find(text[first]) != std::string_view::npos;
}

void AppendCell(std::string_view text, std::string& out) {
  const bool quoted = text.find_first_of(",;\"") != std::string_view::npos;
  if (quoted) out += '"';
  if (LooksLikeFormula(text)) out += '\'';
  for (std::size_t quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"')) {
    out.append(text.substr(0, quote)).append("\"\"");
    text.remove_prefix(quote + 1);
  }
  out.append(text);
  if (quoted) out += '"';
}

// The one of the first line that stands there most often outside quotes.
char GuessSeparator(std::string_view start) {
  static constexpr std::string_view separators = ",;\t";
  std::array<int, separators.size()> counts{};
  bool quoted = false;
  for (char byte : start) {
    if (byte == '"') quoted = !quoted;
    if (quoted) continue;
    if (byte == '\r' || byte == '\n') break;
    const std::size_t row = separators.find(byte);
    if (row != std::string_view::npos) ++counts[row];
  }
  return separators[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

void* BoundedRealloc(void* memory, std::size_t bytes) {
  return bytes > LongestPiece ? nullptr
                              : std::realloc(memory, bytes);  // NOLINT(cppcoreguidelines-owning-memory): libcsv's
}

class CsvReading {
 public:
  explicit CsvReading(Rows& rows) : rows_(rows) {
    csv_init(&parser_, 0);
    csv_set_space_func(&parser_, [](unsigned char) { return 0; });
    csv_set_realloc_func(&parser_, BoundedRealloc);
    csv_set_blk_size(&parser_, 4096);
  }
  ~CsvReading() { csv_free(&parser_); }
  CsvReading(const CsvReading&) = delete;
  CsvReading& operator=(const CsvReading&) = delete;

  void SeparateBy(char separator) { csv_set_delim(&parser_, static_cast<unsigned char>(separator)); }
  // False: read no further.
  bool Feed(std::string_view bytes) {
    const std::size_t read = csv_parse(&parser_, bytes.data(), bytes.size(), OnCell, OnRow, this);
    if (read < bytes.size() && !fault_) fault_ = TooLong;
    return !stopped_ && !fault_;
  }
  Fault Finish() {
    if (stopped_ || fault_) return Told();
    csv_set_opts(&parser_, CSV_STRICT | CSV_STRICT_FINI);
    if (csv_fini(&parser_, OnCell, OnRow, this) != 0) fault_ = "a quoted value without an end";
    return Told();
  }

 private:
  static void OnCell(void* text, std::size_t length, void* self) {
    static_cast<CsvReading*>(self)->Cell({static_cast<const char*>(text), length});
  }
  static void OnRow(int, void* self) { static_cast<CsvReading*>(self)->Row(); }

  void Cell(std::string_view text) {
    if (stopped_ || fault_) return;
    if (row_ == 0) {
      const std::size_t column = rows_.Column(text);
      if (column == MostColumns) fault_ = TooManyColumns;
      columns_.push_back(column);
    } else if (cell_ < columns_.size()) {
      rows_.Add(columns_[cell_], text.starts_with('\'') && LooksLikeFormula(text) ? text.substr(1) : text);
    }
    ++cell_;
  }
  void Row() {
    if (stopped_ || fault_) return;
    if (row_++ == 0) {
      rows_.Own = IsOwnHeader();
    } else if (!rows_.End()) {
      stopped_ = true;
    }
    cell_ = 0;
  }
  // Every field has its column, in any order.
  bool IsOwnHeader() const {
    const std::vector<std::string>& names = rows_.Names();
    auto has = [&](std::string_view name) { return std::find(names.begin(), names.end(), name) != names.end(); };
    return has(RecordColumn) && std::all_of(store::FilmFields.begin(), store::FilmFields.end(),
                                            [&](const store::FilmFieldRow& row) { return has(row.Name); });
  }
  Fault Told() const {
    if (!fault_) return std::nullopt;
    return "row " + std::to_string(row_ + 1) + ": " + *fault_;
  }

  Rows& rows_;
  csv_parser parser_{};
  std::vector<std::size_t> columns_;
  std::size_t cell_ = 0;
  std::int64_t row_ = 0;  // 0: the header
  bool stopped_ = false;
  Fault fault_;
};

}  // namespace

void WriteCsv(const Collection& collection, const ByteSink& sink) {
  TextOut out(sink);
  out.Text = RecordColumn;
  for (const store::FilmFieldRow& row : store::FilmFields) out.Text.append(",").append(row.Name);
  out.Text += LineEnd;
  std::string cell;
  collection.Each([&](std::int64_t number, const store::FilmRecord& film) {
    out.Text += std::to_string(number);
    for (const store::FilmFieldRow& row : store::FilmFields) {
      cell.clear();
      AppendField(film, row.Field, cell);
      out.Text += ',';
      AppendCell(cell, out.Text);
    }
    out.Text += LineEnd;
    out.Pass();
  });
  out.End();
}

Fault ReadCsv(const ByteSource& source, Rows& rows) {
  CsvReading reading(rows);
  std::string block(std::size_t(64) * 1024, '\0');
  bool first = true;
  while (const std::size_t count = source(block.data(), block.size())) {
    std::string_view bytes(block.data(), count);
    if (first) {
      if (bytes.starts_with(ByteOrderMark)) bytes.remove_prefix(ByteOrderMark.size());
      reading.SeparateBy(GuessSeparator(bytes));
    }
    first = false;
    if (!reading.Feed(bytes)) break;
  }
  return reading.Finish();
}

}  // namespace exchange
