// ShowRecord of 32,767 films on the bare forms, side by side with copying the same 35 texts of each into plain strings.
// Usage: show_record_bench [--large] [RECPRA_DAT]
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "store/film_codes.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"

namespace {

constexpr std::size_t Films = 32767;
constexpr int Rounds = 5;

std::vector<store::FilmRecord> LoadFilms(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<store::FilmRecord> source;
  store::FilmRecord film;
  while (file.read(film.Bytes.data(), static_cast<std::streamsize>(film.Bytes.size()))) source.push_back(film);
  if (source.empty()) return source;
  std::vector<store::FilmRecord> films;
  for (std::size_t index = 0; index < Films; ++index) films.push_back(source[index % source.size()]);
  return films;
}

// The 32 fields without their padding, the name of the genre, the title bar and the heading.
using Texts = std::array<std::string, 35>;

void CopyTexts(const store::FilmRecord& film, std::size_t number, Texts& texts) {
  for (std::size_t field = 0; field < 32; ++field) texts[field] = runtime::Trim(film.Get(store::FilmField(field)));
  const store::GenreRow* genre = store::GenreOf(texts[static_cast<std::size_t>(store::FilmField::Genre)]);
  texts[32] = genre ? genre->Name : "";
  texts[33] = "Reelora Prima Record " + runtime::NumberText(static_cast<std::int64_t>(number)) + "/" +
              runtime::NumberText(Films) + "      Title Non Sorted";
  texts[34] = "To write a new record click \"New\" button or ALT \"W\"";
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<store::FilmRecord> films = LoadFilms(bench::Films(argc, argv).Source);
  if (films.empty()) {
    std::fprintf(stderr, "no films to show\n");
    return 1;
  }
  const kit::Collection collection;
  kit::QuietDesk desk;
  runtime::RealDisk disk(collection.Folder());
  Program program(desk, disk);
  program.StartRecordScreen();
  frmPage1& window = program.RecordScreen;
  window.ViewState = 0;
  window.RecordCount = Films;

  Texts texts;
  const bench::Contestant contestants[] = {
      [&] {
        return bench::Timed([&] {
          for (std::size_t number = 0; number < Films; ++number) {
            window.CurrentFilm = films[number];
            window.CurrentRecNo = static_cast<std::int64_t>(number) + 1;
            window.ShowRecord();
          }
        });
      },
      [&] {
        return bench::Timed([&] {
          for (std::size_t number = 0; number < Films; ++number) CopyTexts(films[number], number + 1, texts);
        });
      },
  };
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  bench::PrintSeconds(
      {"walk: a film shown on the bare forms", seconds[0] / Films, "copying its 35 texts", seconds[1] / Films, 4});
}
