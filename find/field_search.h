// The thirteen field searches: one routine, one table of all their differences.
#pragma once

#include <string_view>

#include "screen/frmPage1.h"

namespace find {

// What follows the heading after a hit: the whole field, the trimmed field, nothing (the heading stays), or words that
// depend on the film.
enum class HitText { Whole, Trimmed, Unchanged, Own };

// How a search differs from the plain one: the title search disables Next, the star search tests six fields, MPAA must
// equal the text.
enum class Way { Plain, Title, Stars, Equal };

using store::FilmField;
using State = screen::RunState;

struct FieldSearch {
  std::string_view Kind;  // MatchKind
  forms::MenuItem frmPage1::*Item;
  FilmField Field;
  screen::Text State::*Query;
  screen::Number16 State::*Resume;
  screen::Number16 State::*MatchSets = Resume;      // what Match sets before it runs the search again
  screen::Number16 State::*MatchSetsToo = nullptr;  // the flag of another search, set on top; nullptr: none
  std::string_view Heading;
  std::string_view BoxTitle;
  std::string_view Prompt;
  std::string_view EndTitle;
  std::string_view MissedTitle = EndTitle;
  std::string_view MissedLead = "The search for ";  // before the quoted text
  std::string_view MissedTail = " was not found. ";
  HitText AfterHit;
  std::string_view HitHeading = "";
  find::Way Way = find::Way::Plain;
};

// clang-format off
inline constexpr FieldSearch Searches[] = {
  { .Kind = "Title", .Item = &frmPage1::mnuFindTitle, .Field = FilmField::Title,
    .Query = &State::TitleQuery, .Resume = &State::ResumeTitle,
    .Heading = "    Viewing Files by Title", .BoxTitle = "Search For Title", .Prompt = "Enter Title. To Search: ",
    .EndTitle = "TITLE SEARCH", .MissedLead = "The search for", .MissedTail = " was not found.",
    .AfterHit = HitText::Whole, .HitHeading = "    Viewing Title  - ", .Way = Way::Title },
  { .Kind = "Director", .Item = &frmPage1::mnuFindDirector, .Field = FilmField::Director,
    .Query = &State::DirectorQuery, .Resume = &State::ResumeDirector,
    .Heading = "    Viewing Files by Director", .BoxTitle = "Search For Director", .Prompt = "Enter Director. To Search: ",
    .EndTitle = "DIRECTOR SEARCH",
    .AfterHit = HitText::Whole, .HitHeading = " Viewing Files for Director " },
  { .Kind = "Star", .Item = &frmPage1::mnuFindStar, .Field = FilmField::Star1,
    .Query = &State::StarQuery, .Resume = &State::ResumeStar,
    .Heading = "    Viewing Files by Stars", .BoxTitle = "Search For Star", .Prompt = "Enter Star To Search: ",
    .EndTitle = "STAR  SEARCH", .MissedTitle = "STAR 1 SEARCH", .MissedTail = " was not found.",
    .AfterHit = HitText::Own, .HitHeading = "Viewing Files For  ", .Way = Way::Stars },
  { .Kind = "Producer", .Item = &frmPage1::mnuProducer, .Field = FilmField::Producer,
    .Query = &State::ProducerQuery, .Resume = &State::ResumeProducer,
    .Heading = "    Viewing Files by Producers", .BoxTitle = "Search For Producer", .Prompt = "Enter Producer To Search: ",
    .EndTitle = "PRODUCER SEARCH",
    .AfterHit = HitText::Whole, .HitHeading = " Produced  By " },
  { .Kind = "Cinema", .Item = &frmPage1::mnuCinema, .Field = FilmField::Cinematographer,
    .Query = &State::CinemaQuery, .Resume = &State::ResumeCinema,
    .Heading = "    Viewing Files by Cinematographers", .BoxTitle = "Search For Cinematographer", .Prompt = "Enter Cinematographer To Search: ",
    .EndTitle = "CINEMATOGRAPHER SEARCH",
    .AfterHit = HitText::Unchanged },
  { .Kind = "Writer", .Item = &frmPage1::mnuWriter, .Field = FilmField::Written,
    .Query = &State::WriterQuery, .Resume = &State::ResumeWriter,
    .Heading = "    Viewing Files by Writer", .BoxTitle = "Search For Writer", .Prompt = "Enter Writer To Search: ",
    .EndTitle = "WRITER SEARCH",
    .AfterHit = HitText::Trimmed, .HitHeading = " Written by " },
  { .Kind = "Music", .Item = &frmPage1::mnuMusic, .Field = FilmField::Music,
    .Query = &State::MusicQuery, .Resume = &State::ResumeMusic, .MatchSetsToo = &State::ResumeCostume,  // odd on purpose
    .Heading = "    Viewing Files by Music Composer", .BoxTitle = "Search For Music Composer", .Prompt = "Enter Music Composer To Search: ",
    .EndTitle = "MUSIC COMPOSER SEARCH",
    .AfterHit = HitText::Whole, .HitHeading = "   Music Composed By " },
  { .Kind = "Art", .Item = &frmPage1::mnuArt, .Field = FilmField::SetDirection,
    .Query = &State::ArtQuery, .Resume = &State::ResumeArt, .MatchSets = &State::ArtMatchMark,  // nothing reads it, so Match asks again
    .Heading = "    Viewing Files by Art Direction", .BoxTitle = "Search Art Director", .Prompt = "Enter Art Director To Search: ",
    .EndTitle = "ART DIRECTION SEARCH", .MissedTitle = "ART DIRECTOR SEARCH",
    .AfterHit = HitText::Unchanged },
  { .Kind = "Dance", .Item = &frmPage1::mnuDance, .Field = FilmField::Choreography,
    .Query = &State::DanceQuery, .Resume = &State::ResumeDance,
    .Heading = "    Viewing Files by Choreograher", .BoxTitle = "Search For Choreographer", .Prompt = "Enter Choreographer To Search: ",
    .EndTitle = "CHOREOGRAPHER SEARCH",
    .AfterHit = HitText::Whole, .HitHeading = "Choreography By " },
  { .Kind = "Costume", .Item = &frmPage1::mnuCostume, .Field = FilmField::Costume,
    .Query = &State::CostumeQuery, .Resume = &State::ResumeCostume,
    .Heading = "    Viewing Files by Costume Designer ", .BoxTitle = "Search For Costume Designer", .Prompt = "Enter Costume Designer To Search: ",
    .EndTitle = "COSTUME DESIGNER SEARCH", .MissedTitle = "CHOREOGRAPHER SEARCH",  // odd on purpose
    .AfterHit = HitText::Whole, .HitHeading = " Viewing For Costume Designer " },
  { .Kind = "Awards", .Item = &frmPage1::mnuAwards, .Field = FilmField::Awards,
    .Query = &State::AwardsQuery, .Resume = &State::ResumeAwards,
    .Heading = "    Viewing Files by Awards and Nominations", .BoxTitle = "Search For Awards", .Prompt = "Enter Awards To Search: ",
    .EndTitle = "AWARDS SEARCH",
    .AfterHit = HitText::Whole, .HitHeading = " Awards/Notes " },
  { .Kind = "MPAA", .Item = &frmPage1::mnuMPAA, .Field = FilmField::Rating,
    .Query = &State::MPAAQuery, .Resume = &State::ResumeMPAA, .MatchSetsToo = &State::ResumeDance,  // odd on purpose
    .Heading = "    Viewing Files by MPAA Or TV Ratings", .BoxTitle = "Search For MPAA or TV Ratings", .Prompt = "Enter Ratings To Search: ",
    .EndTitle = "MPAA RATINGS SEARCH",
    .AfterHit = HitText::Own, .Way = Way::Equal },
  { .Kind = "Sound", .Item = &frmPage1::mnuSound, .Field = FilmField::Sound,
    .Query = &State::SoundQuery, .Resume = &State::ResumeSound, .MatchSetsToo = &State::ResumeMPAA,  // odd on purpose
    .Heading = "    Viewing Files by Sound", .BoxTitle = "Search For Sound", .Prompt = "Enter Sound To Search: \n\rTHX Dolby Etc.",
    .EndTitle = "SOUND RECORDING SEARCH",
    .AfterHit = HitText::Trimmed, .HitHeading = "Viewing Sound Recording in " },
};
// clang-format on

// The search of a menu item; an item that has none does not compile.
consteval const FieldSearch& SearchOf(forms::MenuItem frmPage1::*item) {
  const FieldSearch* search = Searches;
  while (search->Item != item) ++search;
  return *search;
}

}  // namespace find
