// Doubles are found by title and year, ignoring case. Each film of the collection stands for one film of the file.
#include "exchange/import_plan.h"

#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>

#include "exchange/films.h"
#include "runtime/text.h"

namespace exchange {
namespace {

using store::FilmField;
using store::FilmRecord;

std::string KeyOf(const FilmRecord& film) {
  std::string key = runtime::Upper(runtime::Trim(film.Get(FilmField::Title)));
  return key.append("\n").append(runtime::Trim(film.Get(FilmField::Year)));
}

// What an update leaves of the film that is there: the texts of the file go over it.
FilmRecord Merged(const FilmRecord& there, const ReadFilm& film) {
  if (film.Exact) return film.Film;
  FilmRecord merged = there;
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (film.Given.test(static_cast<std::size_t>(row.Field))) merged.Set(row.Field, film.Film.Get(row.Field));
  }
  return merged;
}

class Planner {
 public:
  Planner(const std::vector<FilmRecord>& slots, const std::vector<ReadFilm>& films, Doubles doubles)
      : slots_(slots), films_(films), doubles_(doubles), taken_(slots.size(), false), claims_(slots.size(), nullptr) {
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
      if (!HasTitle(slots[slot])) continue;
      taken_[slot] = true;
      there_[KeyOf(slots[slot])].push_back(slot);
    }
  }

  std::vector<Step> Plan() {
    steps_.resize(films_.size());
    for (std::size_t film = 0; film < films_.size(); ++film) {
      steps_[film].Film = film;
      steps_[film].Bytes = films_[film].Film;
      std::set<std::size_t> asked;
      ClaimSame(steps_[film], asked);
    }
    for (Step& step : steps_) ClaimDouble(step);
    if (there_.empty()) KeepNumbers();
    for (Step& step : steps_) TakeSlot(step);
    return std::move(steps_);
  }

 private:
  static constexpr std::int64_t NoSlot = 0;
  static constexpr std::size_t MostAsked = 64;  // doubles of one film; more are not worth the time

  // Calls with each film of the collection that has title and year of the step's, the one of its own number first,
  // until the call returns true.
  template <typename Call>
  void TryDoubles(const Step& step, Call call) const {
    const std::string key = KeyOf(step.Bytes);
    const auto found = there_.find(key);
    if (found == there_.end()) return;
    const auto own = static_cast<std::size_t>(films_[step.Film].Number) - 1;
    if (own < slots_.size() && HasTitle(slots_[own]) && KeyOf(slots_[own]) == key && call(own)) return;
    for (std::size_t slot : found->second) {
      if (call(slot)) return;
    }
  }
  bool IsSame(const Step& step, std::size_t slot) const {
    const ReadFilm& film = films_[step.Film];
    const FilmRecord result = doubles_ == Doubles::Update ? Merged(slots_[slot], film) : film.Film;
    return result.Bytes == slots_[slot].Bytes;
  }
  void Settle(Step& step, Action what, std::size_t slot) {
    step.What = what;
    step.Slot = static_cast<std::int64_t>(slot) + 1;
    claims_[slot] = &step;
  }
  // What is there already claims its film, so that a second import changes nothing. One that finds only claimed films
  // sends another on to a film that suits that one as well.
  bool ClaimSame(Step& step, std::set<std::size_t>& asked) {
    bool settled = false;
    std::vector<std::size_t> claimed;
    TryDoubles(step, [&](std::size_t slot) {
      if (asked.contains(slot) || !IsSame(step, slot)) return false;
      settled = claims_[slot] == nullptr;
      if (settled) Settle(step, Action::Same, slot);
      if (!settled) claimed.push_back(slot);
      return settled || claimed.size() > MostAsked;
    });
    for (std::size_t at = 0; !settled && at < claimed.size() && asked.size() < MostAsked; ++at) {
      if (!asked.insert(claimed[at]).second) continue;
      settled = ClaimSame(*claims_[claimed[at]], asked);
      if (settled) Settle(step, Action::Same, claimed[at]);
    }
    return settled;
  }
  void ClaimDouble(Step& step) {
    if (step.Slot != NoSlot || doubles_ == Doubles::Add) return;
    TryDoubles(step, [&](std::size_t slot) {
      const bool updates = doubles_ == Doubles::Update;
      if (updates && claims_[slot]) return false;
      if (updates) step.Bytes = Merged(slots_[slot], films_[step.Film]);
      Settle(step, updates ? Action::Update : Action::Skip, slot);
      return true;
    });
  }
  // The first of a number gets it.
  void KeepNumbers() {
    for (Step& step : steps_) {
      const ReadFilm& film = films_[step.Film];
      if (!film.Exact || film.Number > MostSlots) continue;
      const auto slot = static_cast<std::size_t>(film.Number) - 1;
      if (slot >= taken_.size()) taken_.resize(slot + 1, false);
      if (taken_[slot]) continue;
      taken_[slot] = true;
      step.Slot = film.Number;
    }
  }
  void TakeSlot(Step& step) {
    if (step.Slot != NoSlot) return;
    while (free_ < taken_.size() && taken_[free_]) ++free_;
    step.Slot = static_cast<std::int64_t>(free_) + 1;
    if (step.Slot > MostSlots) step.What = Action::NoRoom;
    if (step.What == Action::Add) ++free_;
  }

  const std::vector<FilmRecord>& slots_;
  const std::vector<ReadFilm>& films_;
  const Doubles doubles_;
  std::unordered_map<std::string, std::vector<std::size_t>> there_;
  std::vector<bool> taken_;    // by a film that is there, or one of the file
  std::vector<Step*> claims_;  // of the film of the file, by slot
  std::vector<Step> steps_;
  std::size_t free_ = 0;
};

}  // namespace

std::vector<Step> PlanImport(const std::vector<FilmRecord>& slots, const std::vector<ReadFilm>& films,
                             Doubles doubles) {
  return Planner(slots, films, doubles).Plan();
}

}  // namespace exchange
