// A numbered title keeps its width: the number replaces its end.
#include "tools/film_generator.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <vector>

#include "runtime/text.h"
#include "runtime/whole_io.h"
#include "store/film_record.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using store::FilmField;

constexpr std::size_t FilmsInBlock = 4096;

std::vector<store::FilmRecord> ReadFilms(const fs::path& path) {
  runtime::RealDisk disk(path.parent_path().string());
  runtime::OpenFile file(disk, path.filename().string(), runtime::Disk::Mode::Read);
  std::vector<store::FilmRecord> films(static_cast<std::size_t>(file.Length()) / store::RecordLength);
  if (films.empty()) throw runtime::Failure{runtime::InputPastEnd, path.string()};
  file.Read(films.front().Bytes.data(), films.size() * store::RecordLength, 0);
  return films;
}

void NumberTitle(store::FilmRecord& film, std::int64_t round) {
  std::string number = runtime::NumberText(round);
  std::string_view title = runtime::Trim(film.Get(FilmField::Title));
  std::size_t room = static_cast<std::size_t>(store::RowOf(FilmField::Title).Width) - number.size();
  film.Set(FilmField::Title, std::string(title.substr(0, room)) + number);
}

}  // namespace

void GenerateFilms(const std::string& source_path, const std::string& target_path, std::int64_t count) {
  const std::vector<store::FilmRecord> films = ReadFilms(fs::absolute(source_path));
  const fs::path target = fs::absolute(target_path);
  runtime::RealDisk disk(target.parent_path().string());
  runtime::OpenFile file(disk, target.filename().string(), runtime::Disk::Mode::Create);
  file.Truncate(0);
  std::vector<store::FilmRecord> block;
  std::int64_t offset = 0;
  for (std::int64_t number = 0; number < count; ++number) {
    auto at = static_cast<std::size_t>(number) % films.size();
    block.push_back(films[at]);
    std::int64_t round = number / static_cast<std::int64_t>(films.size()) + 1;
    if (round > 1) NumberTitle(block.back(), round);
    if (block.size() < FilmsInBlock && number + 1 < count) continue;
    std::string_view bytes(block.front().Bytes.data(), block.size() * store::RecordLength);
    file.Write(bytes, offset);
    offset += static_cast<std::int64_t>(bytes.size());
    block.clear();
  }
  file.Sync();
}

}  // namespace tools
