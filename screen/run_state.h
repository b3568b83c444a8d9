// The run state of the record screen: the variables that all its handlers share. Flags are 1 for set, 0 for clear;
// everything starts at 0 or "".
#pragma once

#include "screen/state_entry.h"
#include "store/film_record.h"

namespace screen {

// clang-format off
struct RunState : StateList {
  // The current record and the collection.
  store::FilmRecord CurrentFilm;
  Number32 CurrentRecNo      { *this, "CurrentRecNo" };       // number of CurrentFilm, from 1
  Number16 MasterFileNo      { *this, "MasterFileNo" };       // file number of the open master file, always 1
  Number32 RecordCount       { *this, "RecordCount" };        // slots as this run reckons them
  Number32 ScanRecNo         { *this, "ScanRecNo" };          // working record number of scans and jumps
  Text     KeyRecord         { *this, "KeyRecord" };          // last key record read, 49 characters
  Text     LastEntryRecNo    { *this, "LastEntryRecNo" };     // what the file "Last" holds

  // Entry.
  Number16 EditMode          { *this, "EditMode" };           // 1: fields open for typing; key readers leave a scratch value
  Number16 NewMode           { *this, "NewMode" };            // 1: a brand-new record is being written
  Number16 NewPending        { *this, "NewPending" };         // set by New, cleared at the end of ShowRecord
  Number16 ClearOnShow       { *this, "ClearOnShow" };        // 1: ShowRecord blanks; 2: a click on txtColor1
  Number16 CountRollback     { *this, "CountRollback" };      // what ShowRecord takes off RecordCount
  Number16 FirstRecordAdjust { *this, "FirstRecordAdjust" };  // correction for the very first record; reports use it too
  Number16 BlankTitleProbe   { *this, "BlankTitleProbe" };    // 1: the slot looked at is free
  Number16 TitleEnd          { *this, "TitleEnd" };           // position of the first pair of blanks in the title, from 1

  // Views, lists, searches.
  Text     ViewKind          { *this, "ViewKind" };           // "", "Title", "DVD", "Laser", "VHS", "Genre"; "DVDpra" after a sort
  Number16 ViewState         { *this, "ViewState" };          // 0 home, 1 started or list opened, 2 view opened
  Number16 ListState         { *this, "ListState" };          // 2: a twenty-row list is up
  Number16 SearchState       { *this, "SearchState" };        // 1 view or field search, 3 genre search
  Number16 FindPending       { *this, "FindPending" };        // 1 during the title search: Next does nothing
  Number16 NavDirection      { *this, "NavDirection" };       // 0 after Next, 1 after Back in a genre view
  Number16 NavFlag2          { *this, "NavFlag2" };           // always 0
  Number16 PageFlag          { *this, "PageFlag" };           // 0 page 1, 1 page 2
  Number16 KeyFilePos        { *this, "KeyFilePos" };         // position in the key file, 0 for none
  Number16 ListShown         { *this, "ListShown" };          // 1 while a list is up
  Number16 ListShownAlso     { *this, "ListShownAlso" };      // set with it, read by nothing
  Number16 PageMode          { *this, "PageMode" };           // 4: a list goes on
  Number16 RowCursor         { *this, "RowCursor" };          // row of the grid; hits of a search; films of a report
  Number32 BackCount         { *this, "BackCount" };          // matches passed while paging back
  Number32 HitCount          { *this, "HitCount" };           // matches seen by lists
  Number16 RecordFound       { *this, "RecordFound" };        // 1: the record asked for was found
  Text     GenreFilter       { *this, "GenreFilter" };        // genre asked for, capitals
  Text     GenreWords        { *this, "GenreWords" };         // the words of the last known genre asked for
  Text     GenreQueryName    { *this, "GenreQueryName" };     // its words in the genre report
  Text     MatchKind         { *this, "MatchKind" };          // the search that Match repeats
  Number16 MatchPos          { *this, "MatchPos" };           // where the text sought was found, from 1
  Number16 StarHit2          { *this, "StarHit2" };           // the same for the second to the sixth star
  Number16 StarHit3          { *this, "StarHit3" };
  Number16 StarHit4          { *this, "StarHit4" };
  Number16 StarHit5          { *this, "StarHit5" };
  Number16 StarHit6          { *this, "StarHit6" };
  Text     DirectorQuery     { *this, "DirectorQuery" };      // text sought by the director search and report
  Text     StarQuery         { *this, "StarQuery" };          // capitals sought by the star search and report
  Text     StarTyped         { *this, "StarTyped" };          // the same as it was typed
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
  Number16 ResumeTitle       { *this, "ResumeTitle" };        // 1: the next entry to that search goes on without asking
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
  Number16 ArtMatchMark      { *this, "ArtMatchMark" };       // set by Match for the art director, read by nothing

  // Sorting and printing.
  Text     TitleCount        { *this, "TitleCount" };         // texts of the count files; "0": not sorted or nothing to sort
  Text     DVDCount          { *this, "DVDCount" };
  Text     LaserCount        { *this, "LaserCount" };
  Text     VHSCount          { *this, "VHSCount" };
  Number16 SortStarted       { *this, "SortStarted" };        // set by every sort run, read by nothing
  Text     SortStatement     { *this, "SortStatement" };      // control statement of the present pass
  Text     SortIncludeValue  { *this, "SortIncludeValue" };   // constant of its Include clause
  Number16 PrintPending      { *this, "PrintPending" };       // page of the running report, 0: none
  Text     PageEstimate      { *this, "PageEstimate" };
  Text     PageEstimateTail  { *this, "PageEstimateTail" };   // never cleared
  Text     ClosingLead       { *this, "ClosingLead" };
  Text     ClosingTail       { *this, "ClosingTail" };
  Number32 ListKeyCount      { *this, "ListKeyCount" };       // keys of an abridged list, at least 53
  Text     KeyRecNoText      { *this, "KeyRecNoText" };
  Number16 KeyLengthWord     { *this, "KeyLengthWord" };

  // Settings and messages.
  Text     AutoSaveSetting   { *this, "AutoSaveSetting" };    // "YES" or "NO"
  Text     AutoSortSetting   { *this, "AutoSortSetting" };
  Text     PromptText        { *this, "PromptText" };         // text of a message box about to be shown
};
// clang-format on

}  // namespace screen
