// Reads the master file in record order up to the first film whose field contains the text, both sides in capitals. A
// run asks for the text, or continues with the stored one.
#include "find/search.h"

#include "runtime/text.h"
#include "store/film_codes.h"

namespace find {

using forms::Icon;

bool Search::DisablesNext() const { return search_.Way == Way::Title; }
bool Search::SearchesStars() const { return search_.Way == Way::Stars; }
bool Search::MustEqual() const { return search_.Way == Way::Equal; }

void ClearStarHits(frmPage1& window) {
  for (const StarRow& star : LaterStars) window.*star.Hit = 0;
}

void Search::Run() {
  window_.SearchState = 1;
  if (DisablesNext()) window_.FindPending = 1;
  window_.Files.Close(KeyFileNo);
  for (const FieldSearch& other : Searches) {
    bool kept = other.Resume == search_.Resume || (other.Resume == &State::ResumeDirector && !DisablesNext());
    if (!kept) window_.*other.Resume = 0;
  }
  window_.lblHead.SetCaption(search_.Heading);
  if ((DisablesNext() || SearchesStars()) && window_.CurrentRecNo == 1) window_.RowCursor = 0;
  bool resumes = DisablesNext() ? TitleResumes() : Resumes();
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

// The title search tests its flag before KeyFilePos.
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

// False after an empty answer. Only the star search later quotes the text as typed.
bool Search::AskText() {
  screen::Text& query = window_.*search_.Query;
  std::string answer = window_.Desk.InputBox(search_.BoxTitle, search_.Prompt);
  if (SearchesStars()) window_.StarTyped = answer;
  if (!SearchesStars() || !answer.empty()) query = answer;
  if (answer.empty()) {
    window_.cmdReset_Click();
    return false;
  }
  query = runtime::Upper(answer);
  window_.CurrentRecNo = 1;
  window_.RecordFound = 0;
  return true;
}

// Most films are rejected in the read buffer; only those that may contain the text are read into CurrentFilm. The slot
// past the last is read before the end is reported.
void Search::Scan() {
  window_.MatchKind = search_.Kind;
  const std::int64_t last = window_.RecordCount;
  // The stars report may have left the kept text in small letters.
  if (SearchesStars() && window_.CurrentRecNo <= last) window_.StarQuery = runtime::Upper(window_.StarQuery);
  const FilmFilter filter = MakeFilter();
  bool skipped = false;
  for (window_.ScanRecNo = window_.CurrentRecNo; window_.ScanRecNo <= last + 1; window_.ScanRecNo += 1) {
    skipped = SkipNonMatches(filter, last) || skipped;
    bool past_end = ReadAhead().empty();
    if (window_.ScanRecNo == last + 1) {
      ReportEnd();
      return;
    }
    // A slot past the end of the file reads as the film before it, which was skipped.
    if (past_end && skipped) continue;
    skipped = false;
    window_.ReadRecord(window_.ScanRecNo);
    if (!Hits()) continue;
    window_.CurrentRecNo = window_.ScanRecNo;
    window_.ShowRecord();
    window_.RowCursor += 1;
    ShowHitHeading();
    return;
  }
}

std::string_view Search::ReadAhead() {
  return window_.Files.Peek(static_cast<int>(window_.MasterFileNo), window_.ScanRecNo);
}

// Skips to the next film that may match; true if it skipped any. The hit positions end as if each film had been tested.
bool Search::SkipNonMatches(const FilmFilter& filter, std::int64_t last) {
  std::int64_t first = window_.ScanRecNo;
  while (window_.ScanRecNo <= last) {
    window_.Desk.Progress("Searching the films", static_cast<double>(window_.ScanRecNo) / static_cast<double>(last));
    std::int64_t films = filter.CountNonMatches(ReadAhead(), last + 1 - window_.ScanRecNo);
    if (films == 0) break;
    window_.ScanRecNo += films;
  }
  if (window_.ScanRecNo == first) return false;
  window_.MatchPos = 0;
  if (SearchesStars()) ClearStarHits(window_);
  return true;
}

FilmFilter Search::MakeFilter() const {
  const store::FilmFieldRow& first = store::RowOf(search_.Field);
  const store::FilmFieldRow& last = store::RowOf(SearchesStars() ? FilmField::Star6 : search_.Field);
  return {(window_.*search_.Query).Value(), first.Offset, last.Offset + last.Width - first.Offset};
}

std::int64_t Search::PositionIn(FilmField field) const {
  const std::string& query = (window_.*search_.Query).Value();
  return static_cast<std::int64_t>(runtime::PositionOfCapitals(runtime::Trim(window_.CurrentFilm.Get(field)), query));
}

bool Search::Hits() {
  if (SearchesStars()) return StarHits();
  if (MustEqual()) {
    bool equal = runtime::Upper(runtime::Trim(window_.CurrentFilm.Get(search_.Field))) == window_.MPAAQuery.Value();
    window_.MatchPos = equal ? 1 : 0;
  } else {
    window_.MatchPos = PositionIn(search_.Field);
  }
  return window_.MatchPos > 0;
}

// Tests a star only if the one before it did not match; a hit left from an earlier search stops the chain too.
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

void Search::ShowHitHeading() {
  if (search_.AfterHit == HitText::Unchanged) return;
  std::string heading(search_.HitHeading);
  std::string_view field = window_.CurrentFilm.Get(search_.Field);
  if (search_.AfterHit == HitText::Whole) heading += field;
  if (search_.AfterHit == HitText::Trimmed) heading += runtime::Trim(field);
  if (SearchesStars()) heading += NameOfStarHit();
  if (MustEqual())
    heading.append(window_.txtRating.Text().starts_with(store::TVRatingStart) ? "TV Rating is  " : "MPAA Rating is  ")
        .append(field);
  window_.lblHead.SetCaption(heading);
}

// The last star that matches wins.
std::string_view Search::NameOfStarHit() const {
  std::string_view name = window_.CurrentFilm.Get(FilmField::Star1);
  for (const StarRow& star : LaterStars) {
    if (window_.*star.Hit > 0) name = window_.CurrentFilm.Get(star.Field);
  }
  return name;
}

void Search::ReportEnd() {
  window_.Desk.Beep();
  bool found_before = window_.RowCursor > 0;
  if (found_before) {
    window_.Desk.MessageBox(Icon::Warning, search_.EndTitle, "End of file!");
  } else {
    std::string text(search_.MissedLead);
    text.append("\"").append(SearchesStars() ? window_.StarTyped.Value() : (window_.*search_.Query).Value());
    window_.Desk.MessageBox(Icon::Warning, search_.MissedTitle, text.append("\"").append(search_.MissedTail));
  }
  window_.cmdReset_Click();
  if (DisablesNext() && found_before) window_.cmdReset_Click();
}

}  // namespace find
