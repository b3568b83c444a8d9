// A failure that stops the program ends a session; so does an event that takes too long.
#include "tests/fuzz/session.h"

#include "store/key_file.h"
#include "store/master_file.h"
#include "tests/kit/films.h"

namespace fuzz {
namespace {

constexpr std::size_t CallsOfAnEvent = 2000;

}  // namespace

kit::Folder SmallCollection(std::size_t films) {
  static const kit::Folder delivered = kit::FolderOfFilms(0);
  constexpr const char* Small[] = {"AutoSave",    "AutoSort",    "BGColor", "txtBGColor",
                                   "txtForColor", "tagForColor", "Fo1"};
  kit::Folder folder;
  for (const char* name : Small) folder[name] = delivered.at(name);
  std::string keys, master;
  for (std::size_t film = 1; film <= films; ++film) {
    store::FilmRecord record;
    record.Set(store::FilmField::Title, "Film " + std::to_string(film));
    record.Set(store::FilmField::Format, std::string(1, "DLV"[film % 3]));
    record.Set(store::FilmField::Genre, film % 2 == 0 ? "CO" : "DR");
    record.Set(store::FilmField::Director, "Director");
    record.Set(store::FilmField::Star1, film % 2 == 0 ? "Star" : "");
    record.Set(store::FilmField::Tail, "\r\n");
    master.append(record.Bytes.data(), record.Bytes.size());
    keys += runtime::Fixed(record.Get(store::FilmField::Title), store::KeyTitleWidth) + "000000" +
            std::to_string(film) + "\r\n";
  }
  folder[std::string(store::MasterFileName)] = master;
  for (const store::KeyFile& file : {store::TitleKeys, store::DVDKeys, store::LaserKeys, store::VHSKeys}) {
    folder[std::string(file.Name)] = keys;
    folder[std::string(file.CountFile)] = " " + std::to_string(films) + "\r\n";
  }
  return folder;
}

template <typename Event>
Session::End Session::Deliver(Event event) {
  disk_.Allow(CallsOfAnEvent);
  try {
    event();
  } catch (const runtime::Failure& failure) {
    failure_ = failure;
    return End::Failed;
  } catch (const TooManyCalls&) {
    return End::TooLong;
  }
  return End::Done;
}

Session::End Session::Start() {
  return Deliver([this] { Screen.Show(); });
}

Session::End Session::Click(forms::Control& control) {
  return Deliver([this, &control] { Screen.UserClick(control); });
}

}  // namespace fuzz
