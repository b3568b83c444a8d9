// Short ways to export, read and import for the tests of exchange/.
#pragma once

#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/import.h"

namespace exchange_kit {

using Slots = std::map<std::int64_t, store::FilmRecord>;

inline std::string Export(const exchange::Format& format, const Slots& slots) {
  std::string text;
  exchange::Collection collection;
  collection.Each = [&](const exchange::Visit& visit) {
    for (const auto& [number, film] : slots) visit(number, film);
  };
  format.Write(collection, [&](std::string_view bytes) { text += bytes; });
  return text;
}

// Hands the text over in pieces of that length.
inline exchange::ByteSource SourceOf(std::string_view text, std::size_t piece = 1 << 16) {
  return [text, piece](char* target, std::size_t count) mutable {
    const std::size_t length = std::min({piece, count, text.size()});
    std::memcpy(target, text.data(), length);
    text.remove_prefix(length);
    return length;
  };
}

struct Read {
  exchange::FilmsOfFile File;
  exchange::Fault Wrong;
  const exchange::ReadFilm& operator[](std::size_t film) const { return File.Films.at(film); }
};

inline Read ReadText(std::string_view format, std::string_view text,
                     exchange::Unstorable as = exchange::Unstorable::Marked, std::vector<exchange::ColumnMap> maps = {},
                     std::size_t piece = 1 << 16) {
  Read read;
  read.Wrong =
      exchange::ReadFilms(SourceOf(text, piece), *exchange::FormatOf(format), {std::move(maps), as}, read.File);
  return read;
}

// The films that an import into an empty collection stores.
inline Slots Imported(const std::vector<exchange::ReadFilm>& films) {
  Slots slots;
  for (const exchange::Step& step : exchange::PlanImport({}, films, exchange::Doubles::Skip)) {
    slots[step.Slot] = step.Bytes;
  }
  return slots;
}

// The field without its padding.
inline std::string Field(const store::FilmRecord& film, store::FilmField field) {
  const std::string_view text = film.Get(field);
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

inline std::string Notes(const exchange::ReadFilm& film) {
  std::string notes;
  for (const exchange::Note& note : film.Notes) {
    notes.append(store::RowOf(note.Field).Name).append(": ").append(note.What) += '\n';
  }
  return notes;
}

}  // namespace exchange_kit
