// Everything in which the thirteen field searches differ; what is not named here is the same in all.
#pragma once

#include <string_view>

#include "screen/run_state.h"

namespace find {

// What a search does to the Match button.
enum class MatchButton { Leaves, Enables, EnablesAndNames };
// What follows the heading after a hit: the whole field, the trimmed field, nothing (the heading stays), or words of
// the search's own.
enum class HitText { Whole, Trimmed, Unchanged, Own };

// The searches that go a way of their own: the title search kills Next, the star search looks at six fields, MPAA must
// equal the text.
enum class Way { Plain, Title, Stars, Equal };

struct FieldSearch {
  std::string_view Kind;  // MatchKind
  store::FilmField Field;
  screen::Number16 screen::RunState::*Resume;
  screen::Text screen::RunState::*Query;
  MatchButton Match;
  std::string_view Heading;
  std::string_view Title;
  std::string_view Prompt;
  std::string_view EndTitle;
  std::string_view MissedTitle;
  std::string_view MissedLead;  // before the quoted text
  std::string_view MissedTail;
  HitText AfterHit;
  std::string_view HitHeading;
  find::Way Way = find::Way::Plain;
};

using store::FilmField;
using State = screen::RunState;

inline constexpr std::string_view Lead = "The search for ";
inline constexpr std::string_view Tail = " was not found. ";

// clang-format off
inline constexpr FieldSearch TitleSearch = { "Title", FilmField::Title, &State::ResumeTitle, &State::TitleQuery, MatchButton::Enables,
  "    Viewing Files by Title", "Search For Title", "Enter Title. To Search: ",
  "TITLE SEARCH", "TITLE SEARCH", "The search for", " was not found.", HitText::Whole, "    Viewing Title  - ", Way::Title };
inline constexpr FieldSearch DirectorSearch = { "Director", FilmField::Director, &State::ResumeDirector, &State::DirectorQuery, MatchButton::Enables,
  "    Viewing Files by Director", "Search For Director", "Enter Director. To Search: ",
  "DIRECTOR SEARCH", "DIRECTOR SEARCH", Lead, Tail, HitText::Whole, " Viewing Files for Director " };
inline constexpr FieldSearch StarSearch = { "Star", FilmField::Star1, &State::ResumeStar, &State::StarQuery, MatchButton::Enables,
  "    Viewing Files by Stars", "Search For Star", "Enter Star To Search: ",
  "STAR  SEARCH", "STAR 1 SEARCH", Lead, " was not found.", HitText::Own, "Viewing Files For  ", Way::Stars };
inline constexpr FieldSearch ProducerSearch = { "Producer", FilmField::Producer, &State::ResumeProducer, &State::ProducerQuery, MatchButton::EnablesAndNames,
  "    Viewing Files by Producers", "Search For Producer", "Enter Producer To Search: ",
  "PRODUCER SEARCH", "PRODUCER SEARCH", Lead, Tail, HitText::Whole, " Produced  By " };
inline constexpr FieldSearch CinemaSearch = { "Cinema", FilmField::Cinematographer, &State::ResumeCinema, &State::CinemaQuery, MatchButton::EnablesAndNames,
  "    Viewing Files by Cinematographers", "Search For Cinematographer", "Enter Cinematographer To Search: ",
  "CINEMATOGRAPHER SEARCH", "CINEMATOGRAPHER SEARCH", Lead, Tail, HitText::Unchanged, "" };
inline constexpr FieldSearch WriterSearch = { "Writer", FilmField::Written, &State::ResumeWriter, &State::WriterQuery, MatchButton::Leaves,
  "    Viewing Files by Writer", "Search For Writer", "Enter Writer To Search: ",
  "WRITER SEARCH", "WRITER SEARCH", Lead, Tail, HitText::Trimmed, " Written by " };
inline constexpr FieldSearch MusicSearch = { "Music", FilmField::Music, &State::ResumeMusic, &State::MusicQuery, MatchButton::Leaves,
  "    Viewing Files by Music Composer", "Search For Music Composer", "Enter Music Composer To Search: ",
  "MUSIC COMPOSER SEARCH", "MUSIC COMPOSER SEARCH", Lead, Tail, HitText::Whole, "   Music Composed By " };
inline constexpr FieldSearch ArtSearch = { "Art", FilmField::SetDirection, &State::ResumeArt, &State::ArtQuery, MatchButton::Leaves,
  "    Viewing Files by Art Direction", "Search Art Director", "Enter Art Director To Search: ",
  "ART DIRECTION SEARCH", "ART DIRECTOR SEARCH", Lead, Tail, HitText::Unchanged, "" };
inline constexpr FieldSearch DanceSearch = { "Dance", FilmField::Choreography, &State::ResumeDance, &State::DanceQuery, MatchButton::EnablesAndNames,
  "    Viewing Files by Choreograher", "Search For Choreographer", "Enter Choreographer To Search: ",
  "CHOREOGRAPHER SEARCH", "CHOREOGRAPHER SEARCH", Lead, Tail, HitText::Whole, "Choreography By " };
inline constexpr FieldSearch CostumeSearch = { "Costume", FilmField::Costume, &State::ResumeCostume, &State::CostumeQuery, MatchButton::Leaves,
  "    Viewing Files by Costume Designer ", "Search For Costume Designer", "Enter Costume Designer To Search: ",
  "COSTUME DESIGNER SEARCH", "CHOREOGRAPHER SEARCH", Lead, Tail, HitText::Whole, " Viewing For Costume Designer " };
inline constexpr FieldSearch AwardsSearch = { "Awards", FilmField::Awards, &State::ResumeAwards, &State::AwardsQuery, MatchButton::Leaves,
  "    Viewing Files by Awards and Nominations", "Search For Awards", "Enter Awards To Search: ",
  "AWARDS SEARCH", "AWARDS SEARCH", Lead, Tail, HitText::Whole, " Awards/Notes " };
inline constexpr FieldSearch MPAASearch = { "MPAA", FilmField::Rating, &State::ResumeMPAA, &State::MPAAQuery, MatchButton::Leaves,
  "    Viewing Files by MPAA Or TV Ratings", "Search For MPAA or TV Ratings", "Enter Ratings To Search: ",
  "MPAA RATINGS SEARCH", "MPAA RATINGS SEARCH", Lead, Tail, HitText::Own, "", Way::Equal };
inline constexpr FieldSearch SoundSearch = { "Sound", FilmField::Sound, &State::ResumeSound, &State::SoundQuery, MatchButton::Leaves,
  "    Viewing Files by Sound", "Search For Sound", "Enter Sound To Search: \n\rTHX Dolby Etc.",
  "SOUND RECORDING SEARCH", "SOUND RECORDING SEARCH", Lead, Tail, HitText::Trimmed, "Viewing Sound Recording in " };

// The resume flags in the order of the searches.
inline constexpr screen::Number16 State::*ResumeFlags[] = {
  &State::ResumeTitle, &State::ResumeDirector, &State::ResumeStar, &State::ResumeProducer, &State::ResumeCinema, &State::ResumeWriter,
  &State::ResumeMusic, &State::ResumeArt, &State::ResumeDance, &State::ResumeCostume, &State::ResumeAwards, &State::ResumeMPAA,
  &State::ResumeSound,
};
// clang-format on

}  // namespace find
