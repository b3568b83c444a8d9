// The names that columns commonly have.
#include "exchange/columns.h"

#include <algorithm>

#include "exchange/rows.h"
#include "exchange/tellico_fields.h"

namespace exchange {
namespace {

using store::FilmField;

struct Alias {
  std::string_view Name;  // letters and digits only, in small letters
  FilmField Field;
};
// clang-format off
constexpr Alias Aliases[] = {
  { "movie", FilmField::Title },            { "moviename", FilmField::Title },      { "movietitle", FilmField::Title },
  { "film", FilmField::Title },             { "filmtitle", FilmField::Title },      { "name", FilmField::Title },
  { "titel", FilmField::Title },            { "titre", FilmField::Title },
  { "directors", FilmField::Director },     { "directedby", FilmField::Director },  { "regie", FilmField::Director },
  { "studio", FilmField::Label },           { "studios", FilmField::Label },        { "distributor", FilmField::Label },
  { "publisher", FilmField::Label },        { "releasedby", FilmField::Label },
  { "media", FilmField::Format },           { "mediatype", FilmField::Format },     { "medium", FilmField::Format },
  { "discformat", FilmField::Format },
  { "discs", FilmField::NumReel },          { "numberofdiscs", FilmField::NumReel }, { "nrdiscs", FilmField::NumReel },
  { "tapes", FilmField::NumReel },          { "disccount", FilmField::NumReel },
  { "genres", FilmField::Genre },           { "category", FilmField::Genre },       { "categories", FilmField::Genre },
  { "runtime", FilmField::Time },           { "runtimemins", FilmField::Time },     { "runtimeminutes", FilmField::Time },
  { "runningtime", FilmField::Time },       { "length", FilmField::Time },          { "duration", FilmField::Time },
  { "minutes", FilmField::Time },           { "timemin", FilmField::Time },
  { "releaseyear", FilmField::Year },       { "productionyear", FilmField::Year },  { "yearreleased", FilmField::Year },
  { "movieyear", FilmField::Year },         { "jahr", FilmField::Year },
  { "cassette", FilmField::CassNo },        { "cassetteno", FilmField::CassNo },    { "tapeno", FilmField::CassNo },
  { "aspect", FilmField::Letter },          { "aspectratio", FilmField::Letter },   { "screenratio", FilmField::Letter },
  { "discmode", FilmField::CLV1 },          { "cavclv", FilmField::CLV1 },          { "clv", FilmField::CLV1 },
  { "color", FilmField::Color1 },           { "colour", FilmField::Color1 },
  { "producers", FilmField::Producer },     { "producedby", FilmField::Producer },
  { "cinematography", FilmField::Cinematographer }, { "photography", FilmField::Cinematographer },
  { "writer", FilmField::Written },         { "writers", FilmField::Written },      { "writtenby", FilmField::Written },
  { "screenplay", FilmField::Written },     { "screenwriter", FilmField::Written }, { "screenwriters", FilmField::Written },
  { "composer", FilmField::Music },         { "composers", FilmField::Music },      { "musicby", FilmField::Music },
  { "artdirector", FilmField::SetDirection }, { "artdirection", FilmField::SetDirection },
  { "productiondesigner", FilmField::SetDirection },
  { "costumedesigner", FilmField::Costume }, { "costumes", FilmField::Costume },
  { "audio", FilmField::Sound },            { "audiotrack", FilmField::Sound },     { "audiotracks", FilmField::Sound },
  { "soundtrack", FilmField::Sound },
  { "notes", FilmField::Awards },           { "comments", FilmField::Awards },      { "awardsandnotes", FilmField::Awards },
  { "mpaa", FilmField::Rating },            { "mpaarating", FilmField::Rating },    { "certification", FilmField::Rating },
  { "certificate", FilmField::Rating },     { "agerating", FilmField::Rating },     { "audiencerating", FilmField::Rating },
  { "packaging", FilmField::Package },      { "case", FilmField::Package },         { "casetype", FilmField::Package },
  { "purchasedate", FilmField::Purchase },  { "datepurchased", FilmField::Purchase }, { "dateacquired", FilmField::Purchase },
  { "purdate", FilmField::Purchase },
  { "price", FilmField::Cost },             { "purchaseprice", FilmField::Cost },   { "pricepaid", FilmField::Cost },
  { "purprice", FilmField::Cost },
  { "myrating", FilmField::Ratings },       { "yourrating", FilmField::Ratings },   { "ownrating", FilmField::Ratings },
  { "personalrating", FilmField::Ratings },
};
constexpr std::string_view StarColumns[] = { "stars", "cast", "actors", "actor", "starring", "castmembers", "actress" };
// clang-format on

std::string Normalized(std::string_view name) {
  std::string normalized;
  for (char byte : name) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + ('a' - 'A'));
    const bool kept =
        (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || static_cast<unsigned char>(byte) >= 0x80;
    if (kept) normalized += byte;
  }
  return normalized;
}

// A row of the cast, of Tellico and of catalogues with a column for each actor.
std::optional<FilmField> NumberedStar(std::string_view name) {
  for (std::string_view word : {"cast", "star", "actor"}) {
    if (name.size() == word.size() + 1 && name.starts_with(word) && name.back() >= '1' && name.back() <= '6') {
      return FilmField(static_cast<int>(FilmField::Star1) + name.back() - '1');
    }
  }
  return std::nullopt;
}

Target Guess(std::string_view name) {
  auto field = [](FilmField to) { return Target{Target::Kind::Field, to}; };
  if (name == Normalized(RecordColumn)) return {Target::Kind::Record, {}};
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (name == Normalized(row.Name)) return field(row.Field);
  }
  for (const Alias& alias : Aliases) {
    if (name == alias.Name) return field(alias.Field);
  }
  for (const TellicoField& row : TellicoFields) {
    if (!row.Name.empty() && name == Normalized(row.Name)) return field(row.Field);
  }
  if (const auto star = NumberedStar(name)) return field(*star);
  if (std::find(std::begin(StarColumns), std::end(StarColumns), name) != std::end(StarColumns)) {
    return {Target::Kind::Stars, {}};
  }
  return {};
}

// A field by its own name only.
std::optional<Target> Named(std::string_view name) {
  const std::string normalized = Normalized(name);
  if (normalized.empty()) return Target{};
  if (normalized == "stars") return Target{Target::Kind::Stars, {}};
  if (normalized == Normalized(RecordColumn)) return Target{Target::Kind::Record, {}};
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (normalized == Normalized(row.Name)) return Target{Target::Kind::Field, row.Field};
  }
  return std::nullopt;
}

}  // namespace

std::optional<ColumnMap> ParseColumnMap(std::string_view text) {
  const std::size_t sign = text.rfind('=');
  if (sign == std::string_view::npos || sign == 0) return std::nullopt;
  const std::optional<Target> target = Named(text.substr(sign + 1));
  if (!target) return std::nullopt;
  return ColumnMap{std::string(text.substr(0, sign)), *target};
}

Target TargetOf(std::string_view column, const std::vector<ColumnMap>& maps) {
  const std::string name = Normalized(column);
  for (const ColumnMap& map : maps) {
    if (Normalized(map.Column) == name) return map.To;
  }
  return Guess(name);
}

std::string_view NameOf(const Target& target) {
  switch (target.What) {
    case Target::Kind::Record:
      return RecordColumn;
    case Target::Kind::Field:
      return store::RowOf(target.Field).Name;
    case Target::Kind::Stars:
      return "Stars";
    case Target::Kind::Nothing:
      break;
  }
  return "";
}

}  // namespace exchange
