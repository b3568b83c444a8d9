// Any file of films, read by one of the importers: what is read can be stored, exported and read again, and a second
// import of the file changes nothing.
#pragma once

#include "exchange/films.h"
#include "exchange/import.h"
#include "tests/fuzz/fuzzing.h"

namespace fuzz {

inline exchange::ByteSource SourceOf(std::string_view text, std::size_t piece) {
  return [text, piece](char* target, std::size_t count) mutable {
    const std::size_t length = std::min({piece, count, text.size()});
    if (length > 0) std::memcpy(target, text.data(), length);
    text.remove_prefix(length);
    return length;
  };
}

inline exchange::FilmsOfFile ReadAll(const exchange::Format& format, const exchange::ByteSource& source) {
  exchange::FilmsOfFile films;
  const exchange::Fault fault = exchange::ReadFilms(source, format, {{}, exchange::Unstorable::Transliterated}, films);
  Require(!fault || !fault->empty(), "a fault has words");
  if (fault) films.Films.clear();
  return films;
}

inline void RequireSecondImportChangesNothing(const exchange::FilmsOfFile& films, exchange::Doubles doubles) {
  std::vector<store::FilmRecord> slots(3);
  slots[1].Set(store::FilmField::Title, "A");
  for (const exchange::Step& step : exchange::PlanImport(slots, films.Films, doubles)) {
    Require(exchange::HasTitle(step.Bytes), "a film has a title");
    if (step.What != exchange::Action::Add && step.What != exchange::Action::Update) continue;
    const auto slot = static_cast<std::size_t>(step.Slot);
    if (slots.size() < slot) slots.resize(slot);
    Require(step.What == exchange::Action::Update || !exchange::HasTitle(slots[slot - 1]),
            "a new film takes a free slot");
    slots[slot - 1] = step.Bytes;
  }
  for (const exchange::Step& step : exchange::PlanImport(slots, films.Films, doubles)) {
    Require(step.What != exchange::Action::Add && step.What != exchange::Action::Update,
            "a second import changes nothing");
  }
}

inline void RequireSameAgain(const exchange::Format& format, const exchange::FilmsOfFile& films) {
  exchange::Collection collection;
  collection.Each = [&](const exchange::Visit& visit) {
    for (std::size_t film = 0; film < films.Films.size(); ++film) {
      visit(static_cast<std::int64_t>(film) + 1, films.Films[film].Film);
    }
  };
  std::string text;
  format.Write(collection, [&](std::string_view bytes) { text += bytes; });
  const exchange::FilmsOfFile again = ReadAll(format, SourceOf(text, text.size()));
  Require(again.Films.size() == films.Films.size(), "as many films are exported as there are");
  for (std::size_t film = 0; film < films.Films.size(); ++film) {
    Require(again.Films[film].Film.Bytes == films.Films[film].Film.Bytes, "an exported film comes back");
  }
}

inline void PlayImport(std::string_view name, const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::size_t choice = input.Below(12);
  const exchange::Format& format = *exchange::FormatOf(name);
  const exchange::FilmsOfFile films = ReadAll(format, SourceOf(input.Rest(), choice % 4 == 0 ? 1 : 1000));
  RequireSecondImportChangesNothing(films, exchange::Doubles(choice % 3));
  RequireSameAgain(format, films);
}

}  // namespace fuzz
