// Each repetition writes the film in a version of its own number.
#include "tests/safety/repeated_actions.h"

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);

kit::Folder MasterOf(std::string master) { return {{Master, std::move(master)}}; }

std::string WithRecord(int slot, const std::string& record) {
  return kit::Films(1, slot - 1) + record + kit::Films(slot + 1, LastSlotTried);
}

std::string Blank(const std::string& tail) { return std::string(store::RecordLength - tail.size(), ' ') + tail; }

std::vector<kit::Folder> AllowedNew(int slot, int finished) {
  std::string master = kit::Films(1, slot - 1);
  for (int time = 1; time <= finished; ++time) master += kit::FilmBytes(slot - 1 + time, time);
  return {MasterOf(master), MasterOf(master + kit::FilmBytes(slot + finished, finished + 1))};
}

std::vector<kit::Folder> AllowedEdit(int slot, int finished) {
  return {MasterOf(WithRecord(slot, kit::FilmBytes(slot, finished))),
          MasterOf(WithRecord(slot, kit::FilmBytes(slot, finished + 1)))};
}

// Odd repetitions delete (a blank record is written, then its line end); even ones write a new film.
std::vector<kit::Folder> AllowedDelete(int slot, int finished) {
  if (finished % 2 == 1)
    return {MasterOf(WithRecord(slot, Blank("\r\n"))), MasterOf(WithRecord(slot, kit::FilmBytes(slot, finished + 1)))};
  return {MasterOf(WithRecord(slot, kit::FilmBytes(slot, finished))), MasterOf(WithRecord(slot, Blank(""))),
          MasterOf(WithRecord(slot, Blank("\r\n")))};
}

std::string LastAt(int time) { return std::to_string(time) + "\r\n"; }

}  // namespace

const std::vector<RepeatedAction>& RepeatedActions() {
  static const std::vector<RepeatedAction> actions = {
      {"New", [](int slot) { return kit::FolderOfFilms(slot - 1); },
       [](int slot, int time) { return NewFilm(slot - 1 + time, time); }, AllowedNew},
      {"Edit", [](int) { return kit::FolderOfFilms(LastSlotTried); }, EditFilm, AllowedEdit},
      {"Delete", [](int) { return kit::FolderOfFilms(LastSlotTried); },
       [](int slot, int time) { return time % 2 == 1 ? DeleteFilm(slot) : NewFilm(slot, time); }, AllowedDelete},
      {"Setting", [](int) { return kit::FolderOfFilms(2); },
       [](int, int time) { return WriteSmallFile("Last", std::to_string(time)); },
       [](int, int finished) {
         kit::Folder none = {{"Last", ""}}, now = {{"Last", LastAt(finished)}}, next = {{"Last", LastAt(finished + 1)}};
         return finished == 0 ? std::vector<kit::Folder>{none, next} : std::vector<kit::Folder>{now, next};
       }},
  };
  return actions;
}

}  // namespace safety
