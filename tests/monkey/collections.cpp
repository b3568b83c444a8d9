// Sound films and sound files first; each sort of damage then comes or does not come by the dice.
#include "tests/monkey/collections.h"

#include <algorithm>
#include <string_view>

#include "store/film_codes.h"
#include "store/film_record.h"
#include "store/key_file.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/story/sort_reference.h"

namespace monkey {
namespace {

using store::FilmField;

constexpr std::size_t MostFilms = 14;
constexpr std::string_view WeightsFile = "UPPER.ALT";

// clang-format off
constexpr std::string_view Words[] = {
  "Alien", "The Third Man", "A Night at the Opera", "An Affair", "Third Man, The", "Solaris", "Zorba  the Greek", "M", "2001", "\xC9t\xE9",
  "DVD", "VHS", "Laser", "V", "D", "L", "SF", "DR", "AA", "sf", "MU", "W", "P", "T", "CLV", "CAV", "Color", "B & W", "PG-13", "NC-17", "R",
  "1", "2", "3", "0", "-1", "99", "1949", "7", "32767", "32768", "300000", "9999999", "2147483647", "2147483648", "1e5", "1.5", " ", "a", "The ",
};
constexpr std::string_view SettingFiles[] = { "AutoSave", "AutoSort", "Fo", "Fo1" };
constexpr std::string_view ColourFiles[] = { "BGColor", "txtBGColor", "txtForColor", "tagForColor" };
constexpr std::string_view CountFiles[] = { "Titlepra", "DVDpra", "Laserpra", "VHSpra", "Last" };
constexpr std::string_view KeyFiles[] = { "Titlepra.Dat", "DVDpra.Dat", "Laserpra.Dat", "VHSpra.Dat" };
constexpr std::string_view SafetyFiles[] = { ".reelora/journal", ".reelora/history", ".reelora/draft", ".reelora/draft2", ".reelora/x.new" };
constexpr std::string_view OtherFiles[] = { "UPPER.ALT", "Reelora4.HLP", "readme.txt", "OTHER.DAT" };
constexpr std::string_view Lines[] = { "YES\r\n", "NO\r\n", "yes\r\n", "\r\n", "", "YES", " 3\r\n", "-5\r\n", "999999999999\r\n", "16777215\r\n", "x\r\n" };
constexpr std::string_view KeyNumbers[] = { "0000001", "0000002", "0000009", "0000000", "9999999", "-000001", "       ", "1e00006", "abcdefg" };
// clang-format on

std::string RandomBytes(Dice& dice, std::size_t length) {
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>(dice.Next());
  return bytes;
}

std::string BytesOf(const store::FilmRecord& film) { return {film.Bytes.data(), film.Bytes.size()}; }

std::string SoundFilm(Dice& dice) {
  store::FilmRecord film;
  film.Set(FilmField::Tail, "\r\n");
  if (dice.OneIn(6)) return BytesOf(film);
  film.Set(FilmField::Title, dice.OneOf(Words));
  film.Set(FilmField::Format, dice.OneOf(store::Formats).Code);
  film.Set(FilmField::Genre, dice.OneOf(store::Genres).Code);
  film.Set(FilmField::Year, std::to_string(1900 + dice.Below(120)));
  for (std::size_t times = dice.Below(4); times > 0; --times) {
    film.Set(store::FilmFields[dice.Below(store::FilmFields.size() - 1)].Field, dice.OneOf(Words));
  }
  return BytesOf(film);
}

std::string AnyFilm(Dice& dice) {
  std::string film = SoundFilm(dice);
  switch (dice.Below(12)) {
    case 0:
      return RandomBytes(dice, store::RecordLength);
    case 1:
      film[dice.Below(film.size())] = static_cast<char>(dice.Next());
      return film;
    case 2:
      return std::string(store::RecordLength, ' ');
    default:
      return film;
  }
}

std::string KeyOf(std::string title, Dice& dice) {
  title.resize(store::KeyTitleWidth, ' ');
  return title + std::string(dice.OneOf(KeyNumbers)) + "\r\n";
}

std::string BlankKey(Dice& dice) { return KeyOf("", dice); }

std::string RandomKey(Dice& dice) {
  return dice.OneIn(2) ? BlankKey(dice) : KeyOf(std::string(dice.OneOf(Words)), dice);
}

void Sort(Collection& collection) {
  const std::string weights = kit::FolderOfFilms(0).at(std::string(WeightsFile));
  for (const story::SortedPair& pair : story::SortedPairs(MasterOf(collection), weights)) {
    collection.Files[pair.KeyFile] = pair.KeyBytes;
    collection.Files[pair.CountFile] = pair.CountBytes;
  }
}

void Damage(std::optional<std::string>& file, Dice& dice) {
  std::string bytes = file.value_or("");
  switch (dice.Below(5)) {
    case 0:
      file = RandomBytes(dice, dice.Below(1500));
      return;
    case 1:
      file.reset();
      return;
    case 2:
      file = bytes.substr(0, dice.Below(bytes.size() + 1));
      return;
    case 3:
      file = "";
      return;
    default:
      if (!bytes.empty()) bytes[dice.Below(bytes.size())] = static_cast<char>(dice.Next());
      file = bytes;
  }
}

void AddForeignKeys(std::optional<std::string>& keys, Dice& dice) {
  std::string bytes = keys.value_or("");
  for (std::size_t times = 1 + dice.Below(4); times > 0; --times) {
    std::size_t place = dice.OneIn(2) ? 0 : bytes.size() / store::KeyLength * store::KeyLength;
    bytes.insert(place, RandomKey(dice));
  }
  keys = bytes;
}

template <typename Names>
void DamageOneOf(Collection& collection, const Names& names, Dice& dice) {
  const std::string name(dice.OneOf(names));
  std::optional<std::string>& file = collection.Files[name];
  if (!file) {
    const kit::Folder delivered = kit::FolderOfFilms(0);
    if (auto found = delivered.find(name); found != delivered.end()) file = found->second;
  }
  Damage(file, dice);
}

}  // namespace

std::string RandomText(Dice& dice) {
  if (dice.OneIn(2)) return std::string(dice.OneOf(Words));
  std::string text(1 + dice.Below(6), ' ');
  for (char& character : text) character = static_cast<char>(0x20 + dice.Below(0xE0));
  return text;
}

Collection RandomCollection(Dice& dice) {
  Collection collection;
  const bool is_damaged = dice.OneIn(3);
  for (std::size_t films = dice.OneIn(8) ? dice.Below(2) : dice.Below(MostFilms); films > 0; --films)
    collection.Films.push_back(is_damaged ? AnyFilm(dice) : SoundFilm(dice));
  if (!dice.OneIn(3)) Sort(collection);
  for (std::string_view name : SettingFiles) {
    if (dice.OneIn(3)) collection.Files[std::string(name)] = "YES\r\n";
  }
  if (dice.OneIn(5)) collection.Behind = SoundFilm(dice).substr(0, dice.Below(store::RecordLength));
  // A walk back over two blank keys before a film of another genre has no end.
  if (dice.OneIn(16)) {
    std::optional<std::string>& keys = collection.Files[std::string(store::TitleKeys.Name)];
    keys = BlankKey(dice) + BlankKey(dice) + keys.value_or("");
  }
  if (dice.OneIn(4)) AddForeignKeys(collection.Files[std::string(dice.OneOf(KeyFiles))], dice);
  if (!is_damaged) return collection;
  if (dice.OneIn(4)) collection.Behind = RandomBytes(dice, dice.Below(2000));
  if (dice.OneIn(2)) DamageOneOf(collection, KeyFiles, dice);
  if (dice.OneIn(8)) DamageOneOf(collection, CountFiles, dice);
  if (dice.OneIn(8)) DamageOneOf(collection, ColourFiles, dice);
  if (dice.OneIn(8)) DamageOneOf(collection, OtherFiles, dice);
  if (dice.OneIn(3)) DamageOneOf(collection, SafetyFiles, dice);
  if (dice.OneIn(3)) collection.Files[std::string(dice.OneOf(SettingFiles))] = std::string(dice.OneOf(Lines));
  if (dice.OneIn(3)) collection.Files[std::string(dice.OneOf(CountFiles))] = std::string(dice.OneOf(Lines));
  if (dice.OneIn(6)) collection.Files[std::string(dice.OneOf(ColourFiles))] = std::string(dice.OneOf(Lines));
  return collection;
}

std::string MasterOf(const Collection& collection) {
  std::string master;
  for (const std::string& film : collection.Films) master += film;
  return master + collection.Behind;
}

const kit::Folder& BaseFolder() {
  static const kit::Folder base = [] {
    kit::Folder folder = kit::FolderOfFilms(0);
    folder.erase(std::string(store::MasterFileName));
    folder["Fo"] = "NO\r\n";
    return folder;
  }();
  return base;
}

kit::Folder FolderOf(const Collection& collection) {
  kit::Folder folder = BaseFolder();
  if (std::string master = MasterOf(collection); !master.empty()) folder[std::string(store::MasterFileName)] = master;
  for (const auto& [name, content] : collection.Files) {
    if (content) {
      folder[name] = *content;
    } else {
      folder.erase(name);
    }
  }
  return folder;
}

}  // namespace monkey
