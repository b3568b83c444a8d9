// The run state of the record screen: the variables that its handlers share. Flags are 1 for set, 0 for clear; all
// start at 0 or "". Modes and kinds have names.
#pragma once

#include "screen/state_entry.h"
#include "store/film_record.h"

namespace screen {

// clang-format off
// ViewKind; also the kinds of the twenty-row lists. "" is the walk in record order.
inline constexpr std::string_view TitleView = "Title";
inline constexpr std::string_view DVDView   = "DVD";
inline constexpr std::string_view LaserView = "Laser";
inline constexpr std::string_view VHSView   = "VHS";
inline constexpr std::string_view GenreView = "Genre";

inline constexpr int ViewHome = 0, ViewStarted = 1, ViewOpened = 2;      // ViewState: reset; started or list opened; view opened
inline constexpr int ListOpened = 2;                                    // ListState; 0: no twenty-row list
inline constexpr int TextSearch = 1, GenreSearch = 3;                   // SearchState: list or field search; Find By Genre
inline constexpr int ShowRecordBlanks = 1, ColourBoxClicked = 2;        // ClearOnShow
inline constexpr int Forward = 0, Backward = 1;                         // NavDirection
inline constexpr int OnPage1 = 0, OnPage2 = 1;                          // PageFlag
inline constexpr int ListContinues = 4;                                 // PageMode; 0: the next list starts at its first key

struct RunState : StateList {
  // The current record and the collection.
  store::FilmRecord CurrentFilm;
  Number32 CurrentRecNo      { *this, "CurrentRecNo" };       // number of CurrentFilm, from 1
  Number16 MasterFileNo      { *this, "MasterFileNo" };       // file number of the open master file, always 1
  Number32 RecordCount       { *this, "RecordCount" };        // slots counted by this run
  Number32 ScanRecNo         { *this, "ScanRecNo" };          // working record number of scans and jumps
  Text     KeyRecord         { *this, "KeyRecord" };          // last key record read, 49 characters
  Text     LastEntryRecNo    { *this, "LastEntryRecNo" };     // what the file "Last" holds

  // Entry.
  Number16 EditMode          { *this, "EditMode" };           // 1: fields open for typing; reading a key stores an unrelated number here
  Number16 NewMode           { *this, "NewMode" };            // 1: a new record is being written
  Number16 NewPending        { *this, "NewPending" };         // set by New, cleared at the end of ShowRecord
  Number16 ClearOnShow       { *this, "ClearOnShow" };        // 0, ShowRecordBlanks or ColourBoxClicked
  Number16 CountRollback     { *this, "CountRollback" };      // subtracted from RecordCount by ShowRecord
  Number16 FirstRecordAdjust { *this, "FirstRecordAdjust" };  // correction for the very first record; reports use it too
  Number16 BlankTitleProbe   { *this, "BlankTitleProbe" };    // 1: the slot just read is free
  Number16 TitleEnd          { *this, "TitleEnd" };           // position of the first pair of blanks in the title, from 1

  // Views, lists, searches.
  Text     ViewKind          { *this, "ViewKind" };           // one of the kinds above; "DVDpra" after a sort
  Number16 ViewState         { *this, "ViewState" };          // ViewHome, ViewStarted or ViewOpened
  Number16 ListState         { *this, "ListState" };          // ListOpened while a twenty-row list is up
  Number16 SearchState       { *this, "SearchState" };        // TextSearch, GenreSearch or 0
  Number16 FindPending       { *this, "FindPending" };        // 1 during the title search: Next does nothing
  Number16 NavDirection      { *this, "NavDirection" };       // Forward after Next, Backward after Back in the genre view
  Number16 PageFlag          { *this, "PageFlag" };           // OnPage1 or OnPage2
  Number16 KeyFilePos        { *this, "KeyFilePos" };         // position in the key file, from 1; 0: none
  Number16 ListShown         { *this, "ListShown" };          // 1 while a list is up
  Number16 PageMode          { *this, "PageMode" };           // ListContinues or 0
  Number16 RowCursor         { *this, "RowCursor" };          // row of the grid; hits of a search; films of a report
  Number32 BackCount         { *this, "BackCount" };          // matches passed while paging back
  Text     GenreFilter       { *this, "GenreFilter" };        // genre asked for, capitals
  Text     GenreWords        { *this, "GenreWords" };         // words of the last known genre asked for
  Text     GenreQueryName    { *this, "GenreQueryName" };     // its words in the genre report
  Text     MatchKind         { *this, "MatchKind" };          // the search that Match repeats
  Number16 MatchPos          { *this, "MatchPos" };           // position of the text sought, from 1; 0: not found
  Number16 StarHit2          { *this, "StarHit2" };           // the same for the second to the sixth star
  Number16 StarHit3          { *this, "StarHit3" };
  Number16 StarHit4          { *this, "StarHit4" };
  Number16 StarHit5          { *this, "StarHit5" };
  Number16 StarHit6          { *this, "StarHit6" };
  Text     DirectorQuery     { *this, "DirectorQuery" };      // text sought by the director search and report
  Text     StarQuery         { *this, "StarQuery" };          // capitals sought by the star search and report
  Text     StarTyped         { *this, "StarTyped" };          // the same as typed
  Text     TitleQuery        { *this, "TitleQuery"         };
  Text     ProducerQuery     { *this, "ProducerQuery"      };
  Text     CinemaQuery       { *this, "CinemaQuery"        };
  Text     WriterQuery       { *this, "WriterQuery"        };
  Text     MusicQuery        { *this, "MusicQuery"         };
  Text     ArtQuery          { *this, "ArtQuery"           };
  Text     DanceQuery        { *this, "DanceQuery"         };
  Text     CostumeQuery      { *this, "CostumeQuery"       };
  Text     AwardsQuery       { *this, "AwardsQuery"        };
  Text     MPAAQuery         { *this, "MPAAQuery"          };
  Text     SoundQuery        { *this, "SoundQuery"         };
  Number16 ResumeTitle       { *this, "ResumeTitle" };        // 1: the next run continues without asking
  Number16 ResumeDirector    { *this, "ResumeDirector" };
  Number16 ResumeStar        { *this, "ResumeStar" };
  Number16 ResumeProducer    { *this, "ResumeProducer" };
  Number16 ResumeCinema      { *this, "ResumeCinema" };
  Number16 ResumeWriter      { *this, "ResumeWriter" };
  Number16 ResumeMusic       { *this, "ResumeMusic" };
  Number16 ResumeArt         { *this, "ResumeArt" };
  Number16 ResumeDance       { *this, "ResumeDance" };
  Number16 ResumeCostume     { *this, "ResumeCostume" };
  Number16 ResumeAwards      { *this, "ResumeAwards" };
  Number16 ResumeMPAA        { *this, "ResumeMPAA" };
  Number16 ResumeSound       { *this, "ResumeSound" };

  // Sorting and printing.
  Text     TitleCount        { *this, "TitleCount" };         // texts of the count files; "0": not sorted or empty
  Text     DVDCount          { *this, "DVDCount" };
  Text     LaserCount        { *this, "LaserCount" };
  Text     VHSCount          { *this, "VHSCount" };
  Text     SortStatement     { *this, "SortStatement" };      // control statement of the current pass
  Number16 PrintPending      { *this, "PrintPending" };       // page of the running report; 0: none
  Text     PageEstimate      { *this, "PageEstimate" };
  Text     PageEstimateTail  { *this, "PageEstimateTail" };   // never cleared
  Text     ClosingLead       { *this, "ClosingLead" };
  Text     ClosingTail       { *this, "ClosingTail" };
  Number32 ListKeyCount      { *this, "ListKeyCount" };       // keys of an abridged list, at least 53

  // Settings and messages.
  Text     AutoSaveSetting   { *this, "AutoSaveSetting" };    // "YES" or "NO"
  Text     AutoSortSetting   { *this, "AutoSortSetting" };
  Text     PromptText        { *this, "PromptText" };         // text of the next message box

  // Kept because stories see them; no handler reads them.
  Number16 NavFlag2          { *this, "NavFlag2" };           // always 0
  Number16 ListShownAlso     { *this, "ListShownAlso" };      // set with ListShown
  Number32 HitCount          { *this, "HitCount" };           // matches seen by lists
  Number16 RecordFound       { *this, "RecordFound" };        // 1: the record asked for was found
  Number16 ArtMatchMark      { *this, "ArtMatchMark" };       // set by Match for the art director
  Number16 SortStarted       { *this, "SortStarted" };        // set by every sort run
  Text     SortIncludeValue  { *this, "SortIncludeValue" };   // constant of the statement's Include clause
  Text     KeyRecNoText      { *this, "KeyRecNoText" };       // record number in the last key that a report read
  Number16 KeyLengthWord     { *this, "KeyLengthWord" };      // bytes a key, set by reports
};
// clang-format on

}  // namespace screen
