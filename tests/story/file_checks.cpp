// What is seen on the disk and on paper.
#include <algorithm>
#include <cstddef>
#include <map>

#include "runtime/code_page.h"
#include "runtime/text.h"
#include "store/film_record.h"
#include "tests/story/checks.h"

namespace story {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t KeyBytes = 49;
constexpr std::size_t TitleBytes = 40;
constexpr std::size_t NumberBytes = 7;

std::string_view WithoutBlanks(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

void Compare(const Line& line, std::string_view expected, std::string_view got) {
  if (expected != got) throw Difference{line.Number, Differs(expected, got)};
}

std::string BytesOf(const Line& line, const fs::path& path) {
  std::optional<std::string> bytes = ReadBytes(path);
  if (!bytes) throw Difference{line.Number, Differs("the file " + path.string(), "none that can be read")};
  return *bytes;
}

// The bytes of a record, from 1; those that are there where the file ends in it, nothing past its end.
std::string RecordOf(const Line& line, std::string_view bytes, int record, std::size_t length) {
  std::size_t offset = static_cast<std::size_t>(record - 1) * length;
  if (record < 1 || offset >= bytes.size())
    throw Difference{line.Number, Differs("record " + std::to_string(record),
                                          "a file of " + std::to_string(bytes.size()) + " bytes")};
  std::string found(bytes.substr(offset, length));
  found.resize(length, ' ');
  return found;
}

void SeeFilm(const Scene& scene, const Line& line) {
  std::string bytes = BytesOf(line, scene.Around.Folder / "Recpra.Dat");
  std::string record = RecordOf(line, bytes, line.Number32(1), store::RecordLength);
  auto row = std::find_if(store::FilmFields.begin(), store::FilmFields.end(),
                          [&](const store::FilmFieldRow& candidate) { return candidate.Name == line.Text(2); });
  if (row == store::FilmFields.end())
    throw Difference{line.Number, Differs("a field of the film record", line.Text(2))};
  std::string_view field =
      std::string_view(record).substr(static_cast<std::size_t>(row->Offset), static_cast<std::size_t>(row->Width));
  Compare(line, Quoted(WithoutBlanks(line.Text(3))), Quoted(WithoutBlanks(field)));
}

void SeeKey(const Scene& scene, const Line& line) {
  std::string bytes = BytesOf(line, scene.Around.Folder / line.Text(1));
  std::string key = RecordOf(line, bytes, line.Number32(2), KeyBytes);
  std::string_view number = std::string_view(key).substr(TitleBytes, NumberBytes);
  number.remove_prefix(std::min(number.find_first_not_of(" 0"), number.size() - 1));
  Compare(line, Quoted(WithoutBlanks(line.Text(3))) + " " + std::to_string(line.Number32(4)),
          Quoted(WithoutBlanks(std::string_view(key).substr(0, TitleBytes))) + " " + std::string(number));
}

void SeeFile(const Scene& scene, const Line& line) {
  Compare(line, Quoted(line.Text(2)), Quoted(BytesOf(line, scene.Around.Folder / line.Text(1))));
}

// Two files, byte for byte; a difference names the first byte that differs, from 0, and both lengths.
void SeeSameBytes(const Line& line, const fs::path& wanted_path, const fs::path& path) {
  std::string wanted = BytesOf(line, wanted_path);
  std::string got = BytesOf(line, path);
  if (wanted == got) return;
  auto at = std::mismatch(wanted.begin(), wanted.end(), got.begin(), got.end()).first - wanted.begin();
  throw Difference{line.Number,
                   Differs("the " + std::to_string(wanted.size()) + " bytes of " + wanted_path.string(),
                           std::to_string(got.size()) + " bytes that differ from byte " + std::to_string(at) + " on")};
}

void SeeSame(const Scene& scene, const Line& line) {
  SeeSameBytes(line, scene.StoryFolder / line.Text(2), scene.Around.Folder / line.Text(1));
}

void SeeLength(const Scene& scene, const Line& line) {
  std::size_t length = BytesOf(line, scene.Around.Folder / line.Text(1)).size();
  Compare(line, line.Text(2) + " bytes", std::to_string(length) + " bytes");
}

void SeeMissing(const Scene& scene, const Line& line) {
  bool there = fs::exists(scene.Around.Folder / line.Text(1));
  Compare(line, "no file " + line.Text(1), there ? "a file of that name" : "no file " + line.Text(1));
}

void SeeDrive(const Scene& scene, const Line& line) {
  if (!line.Arguments[3].Is("same")) throw Difference{line.Number, Differs("same", line.Text(3))};
  auto drive = scene.Around.Drives.find(DriveLetter(line.Text(1)));
  if (drive == scene.Around.Drives.end() || !drive->second)
    throw Difference{line.Number, Differs("a disk in drive " + line.Text(1), "none")};
  SeeSameBytes(line, scene.Around.Folder / line.Text(2), *drive->second / line.Text(2));
}

const runtime::PrintJob& Document(const Scene& scene, const Line& line) {
  if (!scene.Around.Document) throw Difference{line.Number, Differs("a document on paper", "none")};
  return *scene.Around.Document;
}

void SeePages(const Scene& scene, const Line& line) {
  Compare(line, line.Text(1) + " pages", std::to_string(Document(scene, line).Pages.size()) + " pages");
}

std::string LookOf(const runtime::PrintedLine& line) {
  if (line.Bold) return line.Underline ? "bold underlined" : "bold";
  return line.Underline ? "underlined" : "plain";
}

void SeePage(const Scene& scene, const Line& line) {
  const auto& pages = Document(scene, line).Pages;
  int page = line.Number32(1);
  if (page < 1 || page > static_cast<int>(pages.size()))
    throw Difference{line.Number, Differs("page " + line.Text(1), std::to_string(pages.size()) + " pages")};
  const auto& lines = pages[static_cast<std::size_t>(page - 1)].Lines;
  bool counts = line.Arguments[2].Is("lines") && line.Arguments.size() == 4;
  if (counts) {
    Compare(line, line.Text(3) + " lines", std::to_string(lines.size()) + " lines");
    return;
  }
  bool looks = line.Arguments[2].Is("look");
  if ((!looks && !line.Arguments[2].Is("line")) || line.Arguments.size() != 5)
    throw Difference{line.Number, Differs("line L \"text\", look L \"look\" or lines N", line.Notation())};
  int row = line.Number32(3);
  if (row < 1) throw Difference{line.Number, Differs("a line of 1 or more", line.Text(3))};
  auto printed =
      row <= static_cast<int>(lines.size()) ? lines[static_cast<std::size_t>(row - 1)] : runtime::PrintedLine{};
  std::string got = looks ? LookOf(printed) : printed.PlainText();
  Compare(line, Quoted(WithoutBlanks(line.Text(4))), Quoted(WithoutBlanks(got)));
}

void SeeFont(const Scene& scene, const Line& line) {
  const runtime::PrintJob& job = Document(scene, line);
  Compare(line, Quoted(line.Text(1)) + " " + line.Text(2), Quoted(job.FontName) + " " + std::to_string(job.FontSize));
}

using See = void (*)(const Scene&, const Line&);
const std::map<std::string_view, See> Sees = {
    {"film", SeeFilm},       {"key", SeeKey},   {"file", SeeFile},   {"same", SeeSame},   {"length", SeeLength},
    {"missing", SeeMissing}, {"page", SeePage}, {"pages", SeePages}, {"drive", SeeDrive}, {"font", SeeFont},
};

}  // namespace

bool CheckFiles(const Scene& scene, const Line& line) {
  auto see = Sees.find(line.Text(0));
  if (see == Sees.end()) return false;
  see->second(scene, line);
  return true;
}

}  // namespace story
