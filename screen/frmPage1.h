// The record screen: its controls, its run state and its handlers, each under the folder that holds its body.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "runtime/files.h"
#include "runtime/printer.h"
#include "runtime/text.h"
#include "screen/controls.h"
#include "screen/run_state.h"

namespace screen {
struct EntryField;
struct PagePair;
struct SortPass;
}  // namespace screen
namespace sort {
class Sorter;
}  // namespace sort
namespace prefs {
enum class Group;
enum class Occasion;
struct GroupRow;
}  // namespace prefs

// Wires the handler Control_Event to that event of that control.
#define WIRE(control, Event) control.Event = [this] { control##_##Event(); }

// The files by number that all handlers share.
inline constexpr int KeyFileNo = 2;
inline constexpr int CountFileNo = 3;
inline constexpr int ColourFileNo = 4;
inline constexpr int SettingFileNo = 5;

// The title that most message boxes carry.
inline constexpr std::string_view BoxTitle = "Reelora Prima";

struct frmPage1 : screen::Page1Controls, screen::RunState {
  frmPage1(forms::WindowStack& windows, runtime::Files& files);

  runtime::Files& Files;
  forms::Desk& Desk;
  // One for the window's run: a report that ends no document leaves its lines to the next.
  runtime::Printer Printer;
  // The window that Load shows or hides as the flag file "Fo1" says; nullptr where there is none.
  forms::Window* frmQuickStart = nullptr;
  // Opens the copy window; not set where there is none.
  forms::Handler OpenCopyWindow;

  // screen/
  void frmPage1_Load();
  void frmPage1_Unload();
  void frmPage1_MouseMove();
  void Toolbar1_MouseMove();
  void lblsorted_MouseMove();
  void mnuExit_Click();
  void mnuSave_Click();
  void cmdSave_Click();
  void cmdNew_Click();
  void cmdEdit_Click();
  void cmdReset_Click();
  void cmdDelete_Click();
  void optNotesoff_Click();
  void optnoteson_Click();
  // The one road from CurrentFilm to the screen, and the one from the boxes to the disk.
  void ShowRecord();
  void SaveRecord();

  // screen/, the rules of the coded boxes
  void txtFormat_Change();
  void txtLetter_Change();
  void txtCLV1_Change();
  void txtColor1_Change();
  void txtGenre_Change();
  void txtRating_Change();

  // screen/, entry
  void txtTitle_Click();
  void txtTitle_MouseUp();
  void txtLabel_GotFocus();
  void txtFormat_GotFocus();
  void txtFormat_Click();
  void txtFormat_MouseMove();
  void txtFormat_LostFocus();
  void txtNumReel_Click();
  void txtGenre_GotFocus();
  void txtGenre_Click();
  void txtGenreList_LostFocus();
  void txtYear_GotFocus();
  void txtYear_Change();
  void txtYear_LostFocus();
  void txtLetter_GotFocus();
  void txtLetter_Click();
  void txtLetter_KeyPress();
  void txtLetter_MouseMove();
  void txtCLV1_GotFocus();
  void txtCLV1_Click();
  void txtCLV1_KeyPress();
  void txtCLV1_MouseMove();
  void txtColor1_GotFocus();
  void txtColor1_Click();
  void txtColor1_KeyPress();
  void txtColor1_MouseMove();
  void txtColor1_LostFocus();
  void txtProducer_GotFocus();
  void txtSound_LostFocus();
  void txtRating_GotFocus();
  void txtRating_Click();
  void txtAwards_Click();
  void txtRatings_LostFocus();

  // screen/, the pick lists
  void List1_Click();
  void List1_GotFocus();
  void List1_KeyPress();
  void List1_MouseDown();
  void List1_LostFocus();
  void List2_Click();
  void List2_KeyPress();
  void List2_MouseDown();
  void List2_LostFocus();
  void List3_Click();
  void List3_GotFocus();
  void List3_KeyPress();
  void List3_MouseDown();
  void List3_LostFocus();
  void List4_Click();
  void List4_GotFocus();
  void List4_KeyPress();
  void List4_MouseDown();
  void List4_LostFocus();
  void List5_Click();
  void List5_GotFocus();
  void List5_KeyPress();
  void List5_MouseDown();
  void List5_LostFocus();
  void List6_Click();
  void List6_GotFocus();
  void List6_KeyPress();
  void List6_MouseDown();
  void List6_LostFocus();

  // store/ and screen/, the sort run
  void cmdSort_Click();
  void mnuSort_Click();

  // browse/
  void cmdNext_Click();
  void cmdPrevious_Click();
  void cmdNext20_Click();
  void cmdPrev20_Click();
  void mnuByTitle_Click();
  void mnuByDVD_Click();
  void mnuByLaser_Click();
  void mnuByVHS_Click();
  void mnuAllTitles_Click();
  void mnualldvd_Click();
  void mnualllas_Click();
  void mnuAllVHS_Click();
  void mnuFindAllGenre_Click();
  void mnuFindGenre_Click();

  // find/
  void mnuFindTitle_Click();
  void mnuFindDirector_Click();
  void mnuFindStar_Click();
  void mnuProducer_Click();
  void mnuCinema_Click();
  void mnuWriter_Click();
  void mnuMusic_Click();
  void mnuArt_Click();
  void mnuDance_Click();
  void mnuCostume_Click();
  void mnuAwards_Click();
  void mnuMPAA_Click();
  void mnuSound_Click();
  void cmdMatch_Click();
  void mnuFile_Click();
  void mnuLast_Click();
  void mnuLastEntry_Click();

  // reports/
  void mnuPrint2_Click();
  void mnuAll_Click();
  void mnuShort_Click();
  void mnuDVD_Click();
  void mnuLaser_Click();
  void mnuVHS_Click();
  void mnuDirector_Click();
  void mnuStars_Click();
  void mnuGenre_Click();

  // prefs/
  void mnuAutoSave_Click();
  void mnuAutoSort_Click();
  void mnuBGColors_Click();
  void mnuTxtBoxColor_Click();
  void mnuTxtColor_Click();
  void mnuMessColor_Click();
  void mnudefault_Click();

  // screen/, the other windows
  void mnuCopy_Click();
  void mnuHelp_Click();

  void WireScreen();
  void WireEntry();
  void WirePickLists();
  void WireBrowse();
  void WireSort();
  void WireFind();
  void WirePrefs();
  void WireReports();

  // Start and display.
  void OpenCollection();
  void ShowSetting(forms::TextBox& box, std::string_view setting, std::string_view on, std::string_view off);
  void ReadCounts();
  void ShowSavedCounts(std::string_view dvd_lead, std::string_view laser_lead, std::string_view vhs_lead);
  void HideListsAndGrid();
  void ShowHeading();
  void ShowNewHint();
  void ShowFormatLetter();
  void ShowAspect(std::string_view letters);
  void ShowTrimmed(store::FilmField field);
  std::string_view TrimField(store::FilmField field);
  void ClearRecord();
  void SetPageVisible(std::span<const screen::PagePair> pairs, bool visible);
  void ApplyStoredColours();
  void ApplyColour(prefs::Group group, prefs::Occasion occasion, forms::Colour colour);
  void ChooseColour(prefs::Group group);
  void StoreColour(const prefs::GroupRow& row);

  // Walking key files.
  void ReadKey();
  bool KeyIsBlank() const;
  void ReadKeyPastBlank();
  void ReadKeyBackward();
  bool PastLastKey(int key_length);
  std::int16_t CountKeys();
  void TakeScanRecNo();
  bool TakeScanRecNoOrStop();
  // Opens a key file as number 2; what a sort run left open there is closed first, anything else stops with
  // "File already open".
  void OpenKeyFile(std::string_view name);
  void ReopenKeyFile(std::string_view name);
  void StepOn();
  void StepBack();
  void MatchGenre();
  void WriteListRow(std::int64_t row);
  void ReachTopOfList();
  bool OpenGenreView(bool& has_key);
  void ScanGenre(bool read_key);
  bool TakeGenreKey();

  // Finding.
  void LeaveViewForJump(std::string_view heading);
  void JumpToScanRecNo();
  void EndJumpPastLast();

  // Entry.
  void EnterField(const screen::EntryField& field);
  void EnterField(forms::TextBox screen::Page1Controls::*box);
  void Refuse(std::string_view title);
  void RefuseClick(std::string_view title);
  bool InEdit() const;
  void ShowSaveReminder();
  void StoreFormatLetter();
  void TakeSelected(const forms::ListBox& list, forms::TextBox& box);
  void TakeSelectedMode();
  void TakeSelectedColour();
  void OpenAspectList();
  void OpenModeList();
  void OpenColourList();
  void TurnToPage2();
  void MoveArticle();
  bool FindSlot();
  void SettleOpenWork();
  void BlankFilm();

  // The sort run.
  void BeginSort();
  void MakePasses();
  void MakePass(const screen::SortPass& pass, sort::Sorter& sorter, std::int32_t& Numrec, std::int32_t& Retcode);

  // Files and boxes.
  void ReadRecord(std::int64_t record);
  std::string ReadOneItem(int number, std::string_view file);
  forms::Answer Ask(std::string_view question);

  // The colour dialog's own colour: what was taken in it or set by Default Colors last.
  forms::Colour DialogColour = forms::Black;
  // A sort run has left its last key file open as number 2.
  bool KeyFileLeftBySort = false;
  // What was typed last into Find By File No.
  std::string FileNoAnswer;
};
