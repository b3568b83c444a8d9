// The Find menu's searches, and Match, which runs the last search again from the next film on.
#include <algorithm>

#include "find/search.h"

// One handler for each search of the table.
#define SEARCH(Item, Event) \
  void frmPage1::Item##_##Event() { find::Search(*this, find::SearchOf(&frmPage1::Item)).Run(); }
SEARCH_HANDLERS(SEARCH)
#undef SEARCH

void frmPage1::cmdMatch_Click() {
  HelpContext = cmdMatch.Ids.HelpId;
  if (SearchState == 3) return;
  optNotesoff_Click();
  optNotesoff.Select();
  const auto* search = std::find_if(std::begin(find::Searches), std::end(find::Searches),
                                    [this](const find::FieldSearch& row) { return MatchKind == row.Kind; });
  if (search == std::end(find::Searches)) return;
  for (const find::FieldSearch& other : find::Searches) this->*other.Resume = 0;
  this->*search->MatchSets = 1;
  if (search->MatchSetsToo) this->*search->MatchSetsToo = 1;
  if (search->Way == find::Way::Stars) find::ClearStarHits(*this);
  CurrentRecNo += 1;
  MatchPos = 0;
  KeyFilePos = 0;
  find::Search(*this, *search).Run();
}
