// A field search: the master file is read in record order up to the first film whose field holds the text asked for, in
// capitals on both sides. An entry asks for the text, or goes on with the one it kept.
#include "find/search.h"

#include "runtime/text.h"

namespace find {

using forms::Icon;

bool Search::KillsNext() const { return search_.Way == Way::Title; }
bool Search::LooksAtStars() const { return search_.Way == Way::Stars; }
bool Search::MustEqual() const { return search_.Way == Way::Equal; }

void Search::Run() {
  window_.SearchState = 1;
  if (KillsNext()) window_.FindPending = 1;
  window_.Files.Close(KeyFileNo);
  for (auto flag : ResumeFlags) {
    bool kept = flag == search_.Resume || (flag == &State::ResumeDirector && !KillsNext());
    if (!kept) window_.*flag = 0;
  }
  window_.lblHead.SetCaption(search_.Heading);
  if (search_.Match != MatchButton::Leaves) window_.cmdMatch.Enable();
  if (search_.Match == MatchButton::EnablesAndNames) window_.cmdMatch.SetCaption("&Match");
  if ((KillsNext() || LooksAtStars()) && window_.CurrentRecNo == 1) window_.RowCursor = 0;
  bool resumes = KillsNext() ? TitleResumes() : Resumes();
  if (!resumes && !AskText()) return;
  Scan();
}

bool Search::Resumes() {
  if (window_.KeyFilePos >= 1) {
    window_.KeyFilePos = 0;
    return false;
  }
  window_.MatchPos = 0;
  if (window_.*search_.Resume == 0) {
    window_.KeyFilePos = 0;
    return false;
  }
  if (window_.CurrentRecNo > 1 && window_.*search_.Resume == 1) return true;
  if (window_.CurrentRecNo == 1) window_.RowCursor = 0;
  return false;
}

// The title search looks at its flag before it looks at KeyFilePos.
bool Search::TitleResumes() {
  if (window_.ResumeTitle == 0) {
    window_.KeyFilePos = 0;
    return false;
  }
  if (window_.ResumeTitle == 1 && window_.CurrentRecNo > 1) return true;
  if (window_.KeyFilePos > 0) {
    window_.KeyFilePos = 0;
  } else {
    window_.MatchPos = 0;
  }
  return false;
}

// False on an empty answer. The star search alone quotes the text as typed.
bool Search::AskText() {
  screen::Text& query = window_.*search_.Query;
  std::string answer = window_.Desk.InputBox(search_.Title, search_.Prompt);
  if (LooksAtStars()) window_.StarTyped = answer;
  query = answer;
  if (answer.empty()) {
    window_.cmdReset_Click();
    return false;
  }
  query = runtime::Upper(answer);
  window_.CurrentRecNo = 1;
  window_.RecordFound = 0;
  return true;
}

// Most films are passed over where they were read to; only one that may hold the text comes into CurrentFilm. The slot
// behind the last is read before the end is told.
void Search::Scan() {
  window_.MatchKind = search_.Kind;
  const std::int64_t last = window_.RecordCount;
  // The stars report may have left the kept text in small letters.
  if (LooksAtStars() && window_.CurrentRecNo <= last) window_.StarQuery = runtime::Upper(window_.StarQuery);
  const FilmFilter filter = MakeFilter();
  bool passed = false;
  for (window_.ScanRecNo = window_.CurrentRecNo; window_.ScanRecNo <= last + 1; window_.ScanRecNo += 1) {
    passed = PassOver(filter, last) || passed;
    bool behind_end = Ahead().empty();
    if (window_.ScanRecNo == last + 1) {
      Close();
      return;
    }
    // A slot behind the end of the file reads as the film before it, which has been passed over.
    if (behind_end && passed) continue;
    passed = false;
    window_.ReadRecord(window_.ScanRecNo);
    if (!Hits()) continue;
    window_.CurrentRecNo = window_.ScanRecNo;
    window_.ShowRecord();
    window_.RowCursor += 1;
    HeadHit();
    return;
  }
}

std::string_view Search::Ahead() {
  return window_.Files.Peek(static_cast<int>(window_.MasterFileNo), window_.ScanRecNo);
}

// Goes on to the next film that may hit, to the end of the file or behind the last; tells whether films were passed
// over. They leave behind what testing a film that does not hit leaves.
bool Search::PassOver(const FilmFilter& filter, std::int64_t last) {
  std::int64_t first = window_.ScanRecNo;
  while (window_.ScanRecNo <= last) {
    std::int64_t films = filter.CountNonMatches(Ahead(), last + 1 - window_.ScanRecNo);
    if (films == 0) break;
    window_.ScanRecNo += films;
  }
  if (window_.ScanRecNo == first) return false;
  window_.MatchPos = 0;
  if (LooksAtStars()) {
    for (const StarRow& star : LaterStars) window_.*star.Hit = 0;
  }
  return true;
}

FilmFilter Search::MakeFilter() const {
  const store::FilmFieldRow& first = store::RowOf(search_.Field);
  const store::FilmFieldRow& last = store::RowOf(LooksAtStars() ? FilmField::Star6 : search_.Field);
  return {(window_.*search_.Query).Value(), first.Offset, last.Offset + last.Width - first.Offset};
}

std::int64_t Search::PositionIn(FilmField field) const {
  const std::string& query = (window_.*search_.Query).Value();
  return static_cast<std::int64_t>(runtime::PositionOfCapitals(runtime::Trim(window_.CurrentFilm.Get(field)), query));
}

bool Search::Hits() {
  if (LooksAtStars()) return StarHits();
  if (MustEqual()) {
    bool equal = runtime::Upper(runtime::Trim(window_.CurrentFilm.Get(search_.Field))) == window_.MPAAQuery.Value();
    window_.MatchPos = equal ? 1 : 0;
  } else {
    window_.MatchPos = PositionIn(search_.Field);
  }
  return window_.MatchPos > 0;
}

// Each star is looked at only if the one before it has not hit; a hit left from an earlier search stops the chain, too.
bool Search::StarHits() {
  window_.MatchPos = PositionIn(FilmField::Star1);
  bool hit = window_.MatchPos > 0;
  const screen::Number16* before = &window_.MatchPos;
  for (const StarRow& star : LaterStars) {
    if (*before == 0) window_.*star.Hit = PositionIn(star.Field);
    before = &(window_.*star.Hit);
    hit = hit || *before > 0;
  }
  return hit;
}

void Search::HeadHit() {
  std::string heading(search_.HitHeading);
  std::string_view field = window_.CurrentFilm.Get(search_.Field);
  if (search_.AfterHit == HitText::Unchanged) return;
  if (search_.AfterHit == HitText::Whole) heading += field;
  if (search_.AfterHit == HitText::Trimmed) heading += runtime::Trim(field);
  if (LooksAtStars()) heading += NameOfStarHit();
  if (MustEqual())
    heading.append(window_.txtRating.Text().starts_with("TV") ? "TV Rating is  " : "MPAA Rating is  ").append(field);
  window_.lblHead.SetCaption(heading);
}

// The last star that hit wins.
std::string_view Search::NameOfStarHit() const {
  std::string_view name = window_.CurrentFilm.Get(FilmField::Star1);
  for (const StarRow& star : LaterStars) {
    if (window_.*star.Hit > 0) name = window_.CurrentFilm.Get(star.Field);
  }
  return name;
}

void Search::Close() {
  window_.Desk.Beep();
  bool found_before = window_.RowCursor > 0;
  if (found_before) {
    window_.Desk.MessageBox(Icon::Warning, search_.EndTitle, "End of file!");
  } else {
    std::string text(search_.MissedLead);
    text.append("\"").append(LooksAtStars() ? window_.StarTyped.Value() : (window_.*search_.Query).Value());
    window_.Desk.MessageBox(Icon::Warning, search_.MissedTitle, text.append("\"").append(search_.MissedTail));
  }
  window_.cmdReset_Click();
  if (KillsNext() && found_before) window_.cmdReset_Click();
}

}  // namespace find
