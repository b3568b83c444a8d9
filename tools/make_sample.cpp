// make_sample FILMS_TXT RECPRA_DAT: makes a master file of a collection that is written down as text, a block a slot.
// Every fault of the text is reported as FILE:LINE on standard error; with any of them nothing is written, exit 1.

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <set>
#include <string>
#include <string_view>

#include "runtime/code_page.h"
#include "store/film_codes.h"
#include "store/film_record.h"

namespace {

using store::FilmField;

constexpr std::array<std::string_view, 5> MovableArticles = {"The ", "An ", "A ", "THE ", "AN "};

bool KnownCode(FilmField field, std::string_view value) {
  if (field == FilmField::Format) return store::WordOf(store::Formats, value).has_value();
  if (field == FilmField::Letter) return store::WordOf(store::Aspects, value).has_value();
  if (field == FilmField::Genre) return store::GenreOf(value) != nullptr;
  if (field == FilmField::CLV1) return value == "CLV" || value == "CAV";
  if (field == FilmField::Color1) return value == "Color" || value == "B & W";
  return field != FilmField::Rating || std::ranges::find(store::RatingCodes, value) != store::RatingCodes.end();
}

class SampleReader {
 public:
  explicit SampleReader(std::string_view file) : File(file) {}

  // One line of the text, without its line end.
  void Take(std::string_view line) {
    ++LineNumber;
    if (line.starts_with('#')) return;
    if (line.empty()) return EndSlot();
    if (line != "free") return TakeField(line);
    if (Free || !Named.empty()) Fault("\"free\" stands in a block of its own");
    Free = true;
  }

  // The slot that the lines since the last empty one make up, if any.
  void EndSlot() {
    if (!Named.empty() && !Named.contains(FilmField::Title)) Fault("the block above has no Title");
    if (Free || !Named.empty()) {
      Slot.Set(FilmField::Tail, "\r\n");
      MasterFile.append(Slot.Bytes.data(), Slot.Bytes.size());
    }
    Slot.Clear();
    Named.clear();
    Free = false;
  }

  bool Faulty() const { return HasFault; }
  const std::string& Records() const { return MasterFile; }

 private:
  void TakeField(std::string_view line) {
    std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return Fault("neither Field=value nor \"free\"");
    std::string_view name = line.substr(0, equals), text = line.substr(equals + 1);
    const auto* row = std::ranges::find(store::FilmFields, name, &store::FilmFieldRow::Name);
    if (row == store::FilmFields.end() || row->Field == FilmField::Tail) return Fault("unknown field", name);
    if (Free) return Fault("a free slot has no fields");
    if (!Named.insert(row->Field).second) return Fault("field named twice in the block", name);

    auto value = runtime::FromUtf8(text);
    if (!value) return Fault("not in Windows-1252", text);
    if (value->find_first_not_of(' ') == std::string::npos) return Fault("no value", name);
    if (std::ranges::any_of(*value, [](unsigned char byte) { return byte < ' '; })) Fault("control character", name);
    if (value->size() > static_cast<std::size_t>(row->Width)) Fault("wider than " + std::to_string(row->Width), text);
    if (!KnownCode(row->Field, *value)) Fault("unknown code", text);
    auto begins = [&](std::string_view article) { return value->starts_with(article); };
    bool article_first = row->Field == FilmField::Title && std::ranges::any_of(MovableArticles, begins);
    if (article_first) Fault("the article belongs to the title's end", text);
    Slot.Set(row->Field, *value);
  }

  void Fault(std::string_view what, std::string_view where = {}) {
    std::cerr << File << ':' << LineNumber << ": " << what << (where.empty() ? "" : ": ") << where << '\n';
    HasFault = true;
  }

  std::string_view File;
  int LineNumber = 0;
  store::FilmRecord Slot;
  std::set<FilmField> Named;  // the fields of the block so far
  bool Free = false;
  bool HasFault = false;
  std::string MasterFile;
};

int Fail(std::string_view what, std::string_view file) {
  std::cerr << file << ": " << what << '\n';
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return Fail("usage: make_sample FILMS_TXT RECPRA_DAT", "make_sample");
  std::ifstream source(arguments[1], std::ios::binary);
  if (!source) return Fail("cannot be read", arguments[1]);
  SampleReader reader(arguments[1]);
  for (std::string line; std::getline(source, line);) {
    if (line.ends_with('\r')) line.pop_back();
    reader.Take(line);
  }
  reader.EndSlot();
  if (source.bad()) return Fail("cannot be read", arguments[1]);
  if (reader.Faulty()) return 1;

  std::ofstream target(arguments[2], std::ios::binary);
  target << reader.Records() << std::flush;
  return target ? 0 : Fail("cannot be written", arguments[2]);
}
