// The Find menu's searches, and Match, which goes on from a hit to the next.
#include "find/search.h"

using find::State;

namespace {

// What Match sets before it runs a search again. The odd rows set the flag of a neighbour, too; the art director's sets
// one that nothing reads, so that the search asks anew.
struct MatchRow {
  std::string_view Kind;
  screen::Number16 State::*Flag;
  screen::Number16 State::*NeighbourFlag;
  void (frmPage1::*Handler)();
};
// clang-format off
constexpr MatchRow MatchRows[] = {
  { "Title",    &State::ResumeTitle,    nullptr,               &frmPage1::mnuFindTitle_Click },
  { "Director", &State::ResumeDirector, nullptr,               &frmPage1::mnuFindDirector_Click },
  { "Star",     &State::ResumeStar,     nullptr,               &frmPage1::mnuFindStar_Click },
  { "Producer", &State::ResumeProducer, nullptr,               &frmPage1::mnuProducer_Click },
  { "Cinema",   &State::ResumeCinema,   nullptr,               &frmPage1::mnuCinema_Click },
  { "Writer",   &State::ResumeWriter,   nullptr,               &frmPage1::mnuWriter_Click },
  { "Music",    &State::ResumeMusic,    &State::ResumeCostume, &frmPage1::mnuMusic_Click },
  { "Art",      &State::ArtMatchMark,   nullptr,               &frmPage1::mnuArt_Click },
  { "Dance",    &State::ResumeDance,    nullptr,               &frmPage1::mnuDance_Click },
  { "Costume",  &State::ResumeCostume,  nullptr,               &frmPage1::mnuCostume_Click },
  { "Awards",   &State::ResumeAwards,   nullptr,               &frmPage1::mnuAwards_Click },
  { "MPAA",     &State::ResumeMPAA,     &State::ResumeDance,   &frmPage1::mnuMPAA_Click },
  { "Sound",    &State::ResumeSound,    &State::ResumeMPAA,    &frmPage1::mnuSound_Click },
};
// clang-format on

}  // namespace

void frmPage1::mnuFindTitle_Click() { find::Search(*this, find::TitleSearch).Run(); }
void frmPage1::mnuFindDirector_Click() { find::Search(*this, find::DirectorSearch).Run(); }
void frmPage1::mnuFindStar_Click() { find::Search(*this, find::StarSearch).Run(); }
void frmPage1::mnuProducer_Click() { find::Search(*this, find::ProducerSearch).Run(); }
void frmPage1::mnuCinema_Click() { find::Search(*this, find::CinemaSearch).Run(); }
void frmPage1::mnuWriter_Click() { find::Search(*this, find::WriterSearch).Run(); }
void frmPage1::mnuMusic_Click() { find::Search(*this, find::MusicSearch).Run(); }
void frmPage1::mnuArt_Click() { find::Search(*this, find::ArtSearch).Run(); }
void frmPage1::mnuDance_Click() { find::Search(*this, find::DanceSearch).Run(); }
void frmPage1::mnuCostume_Click() { find::Search(*this, find::CostumeSearch).Run(); }
void frmPage1::mnuAwards_Click() { find::Search(*this, find::AwardsSearch).Run(); }
void frmPage1::mnuMPAA_Click() { find::Search(*this, find::MPAASearch).Run(); }
void frmPage1::mnuSound_Click() { find::Search(*this, find::SoundSearch).Run(); }

void frmPage1::cmdMatch_Click() {
  HelpContext = cmdMatch.Ids.HelpId;
  if (SearchState == 3) return;
  optNotesoff_Click();
  optNotesoff.Select();
  for (const MatchRow& row : MatchRows) {
    if (MatchKind != row.Kind) continue;
    for (auto flag : find::ResumeFlags) this->*flag = 0;
    this->*row.Flag = 1;
    if (row.NeighbourFlag) this->*row.NeighbourFlag = 1;
    if (MatchKind == "Star") {
      for (const find::StarRow& star : find::LaterStars) this->*star.Hit = 0;
    }
    CurrentRecNo += 1;
    MatchPos = 0;
    KeyFilePos = 0;
    (this->*row.Handler)();
  }
}
