#include "companion/pairs.h"

#include <functional>
#include <map>
#include <set>

#include "companion/differences.h"
#include "companion/fields.h"
#include "companion/printable.h"
#include "runtime/text.h"

namespace companion {
namespace {

using store::FilmField;

// What two films have in common if they belong together; "" for a film that this rule does not pair.
using KeyOf = std::function<std::string(const NumberedFilm&)>;

std::string Title(const NumberedFilm& film) { return runtime::Upper(Content(film.Film, FilmField::Title)); }

std::string RecordAndTitle(const NumberedFilm& film) { return std::to_string(film.Number) + " " + Title(film); }

std::string TitleAndYear(const NumberedFilm& film) {
  return std::string(Content(film.Film, FilmField::Year)) + " " + Title(film);
}

std::string RecordDirectorAndYear(const NumberedFilm& film) {
  const std::string director = runtime::Upper(Content(film.Film, FilmField::Director));
  const std::string year(Content(film.Film, FilmField::Year));
  return director.empty() || year.empty() ? "" : std::to_string(film.Number) + " " + year + " " + director;
}

// By film of here, those of there; films of one key in their order.
class Pairing {
 public:
  Pairing(const std::vector<NumberedFilm>& here, const std::vector<NumberedFilm>& there)
      : here_(here), there_(there), partner_(here.size()), taken_(there.size()) {}

  void PairBy(const KeyOf& key_of) {
    std::multimap<std::string, std::size_t> left;
    for (std::size_t at = 0; at < there_.size(); ++at) {
      if (!taken_[at]) left.emplace(key_of(there_[at]), at);
    }
    for (std::size_t at = 0; at < here_.size(); ++at) {
      const std::string key = partner_[at] ? "" : key_of(here_[at]);
      const auto found = key.empty() ? left.end() : left.find(key);
      if (found == left.end()) continue;
      partner_[at] = &there_[found->second];
      taken_[found->second] = true;
      left.erase(found);
    }
  }

  std::vector<FilmPair> Pairs() const {
    std::vector<FilmPair> pairs;
    for (std::size_t at = 0; at < here_.size(); ++at) pairs.push_back({&here_[at], partner_[at]});
    for (std::size_t at = 0; at < there_.size(); ++at) {
      if (!taken_[at]) pairs.push_back({nullptr, &there_[at]});
    }
    return pairs;
  }

 private:
  const std::vector<NumberedFilm>& here_;
  const std::vector<NumberedFilm>& there_;
  std::vector<const NumberedFilm*> partner_;
  std::vector<bool> taken_;
};

}  // namespace

bool FilmPair::IsSame() const { return Here && There && DifferingFields(Here->Film, There->Film).empty(); }

std::vector<NumberedFilm> FilmsIn(std::string_view master) {
  std::vector<NumberedFilm> films;
  for (std::size_t at = 0; at < master.size(); at += store::RecordLength) {
    NumberedFilm film;
    film.Number = static_cast<std::int64_t>(at / store::RecordLength) + 1;
    master.copy(film.Film.Bytes.data(), store::RecordLength, at);
    if (HasTitle(film.Film)) films.push_back(film);
  }
  return films;
}

std::vector<FilmPair> Paired(const std::vector<NumberedFilm>& here, const std::vector<NumberedFilm>& there,
                             NewTitles new_titles) {
  Pairing pairing(here, there);
  pairing.PairBy(RecordAndTitle);
  pairing.PairBy(TitleAndYear);
  if (new_titles == NewTitles::Paired) pairing.PairBy(RecordDirectorAndYear);
  return pairing.Pairs();
}

std::string NameOf(const NumberedFilm& film) {
  const std::string_view year = Content(film.Film, FilmField::Year);
  return TitleOf(film.Film) + (year.empty() ? "" : " (" + Printable(year) + ")");
}

}  // namespace companion
