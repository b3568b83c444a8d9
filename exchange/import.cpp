// Rows become films; steps become records.
#include "exchange/import.h"

#include "exchange/films.h"
#include "store/master_file.h"

namespace exchange {
namespace {

constexpr int MasterNo = 1;

}  // namespace

Fault ReadFilms(const ByteSource& source, const Format& format, FilmMaker maker, FilmsOfFile& films) {
  bool too_many = false;
  Rows rows([&](const Rows& row) {
    ReadFilm film = maker.Make(row);
    if (!HasTitle(film.Film)) {
      ++films.Untitled;
      return true;
    }
    too_many = films.Films.size() == static_cast<std::size_t>(MostSlots);
    if (!too_many) films.Films.push_back(std::move(film));
    return !too_many;
  });
  Fault fault = format.Read(source, rows);
  if (too_many) fault = "more than 32,767 films";
  films.Own = rows.Own;
  films.Columns = rows.Names();
  films.Targets = maker.Targets();
  films.Columns.resize(films.Targets.size());
  return fault;
}

const Format* GuessImportFormat(std::string_view path) {
  const Format* format = FormatOfFile(path);
  return format && format->Read ? format : nullptr;
}

void ApplyImport(runtime::Files& files, const std::vector<Step>& steps,
                 const std::function<void(std::int64_t done)>& progress) {
  std::int64_t done = 0;
  for (const Step& step : steps) {
    if (step.What == Action::Add || step.What == Action::Update) {
      store::WriteRecord(files, MasterNo, step.Slot, step.Bytes);
    }
    progress(++done);
  }
}

}  // namespace exchange
