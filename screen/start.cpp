// The start of the record screen: settings, colours and counts are read, the master file is opened, its first record is
// shown.
#include <utility>

#include "screen/auto_texts.h"
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

void frmPage1::frmPage1_Load() {
  AutoSaveSetting = ReadOneItem(SettingFileNo, "AutoSave");
  AutoSortSetting = ReadOneItem(SettingFileNo, "AutoSort");
  ShowSetting(txtAutoSave, AutoSaveSetting, screen::AutoSaveOn, screen::AutoSaveOff);
  ShowSetting(txtAutoSort, AutoSortSetting, screen::AutoSortOn, screen::AutoSortOff);
  for (forms::Button* button : {&cmdSort, &cmdPrevious, &cmdNext, &cmdEdit, &cmdSave, &cmdDelete, &cmdMatch})
    button->Show();
  cmdPrevious.Enable();
  for (forms::Button* button : {&cmdPrevious1, &cmdPrev20, &cmdNext20}) button->Hide();
  lblEnter.Hide();
  optNotesoff.Show();
  optnoteson.Show();
  SearchState = 0;
  FindPending = 0;
  Files.Close(ColourFileNo);
  ApplyStoredColours();
  ListState = 0;
  if (ViewState == 0) ShowNewHint();
  if (ViewState == 0) {
    ReadCounts();
    ShowSavedCounts(" -    No. DVDS  ", " -    No.Laser discs  ", " -    No.VHS ");
    ViewState = 1;
  }
  optnoteson.Enable();
  optNotesoff.Enable();
  HideListsAndGrid();
  SetPageVisible(screen::PageOne, true);
  SetPageVisible(screen::PageTwo, false);
  if (NewMode == 0) {
    optNotesoff.Enable();
    optNotesoff.Select();
  }
  OpenCollection();
  if (NewMode == 1) {
    lblSorting.SetCaption(
        " Add notes last.  Click \"NOTES ON\" or Alt \"T\", and click \"EDIT\" button, or Alt \"E\".  Click \"SAVE\", "
        "or Alt \"S\", "
        "click \"Notes Off\", or ALT \"T\".");
  }
  Show();
  if (EditMode == 0) txtGenreList.Enable();
  cmdSave.SetFocus();
  txtCassNo.Enable();
  std::string quick_start = ReadOneItem(CountFileNo, "Fo1");
  if (frmQuickStart && quick_start == "YES") frmQuickStart->Show();
  if (frmQuickStart && quick_start == "NO") frmQuickStart->Hide();
}

void frmPage1::OpenCollection() {
  MasterFileNo = 1;
  if (ViewKind == "")
    SetCaption("Reelora Prima Record " + runtime::NumberText(CurrentRecNo) + "/" + runtime::NumberText(RecordCount));
  CurrentRecNo = 1;
  store::OpenMaster(Files, static_cast<int>(MasterFileNo));
  ReadRecord(CurrentRecNo);
  RecordCount = store::CountRecords(Files);
  ShowRecord();
  if (CurrentRecNo > 1) txtTitle.Show();
}

void frmPage1::ShowSetting(forms::TextBox& box, std::string_view setting, std::string_view on, std::string_view off) {
  if (setting != "YES" && setting != "NO") return;
  box.Enable();
  box.SetText(setting == "YES" ? on : off);
  box.Disable();
}

void frmPage1::ReadCounts() {
  TitleCount = ReadOneItem(CountFileNo, "Titlepra");
  LaserCount = ReadOneItem(CountFileNo, "Laserpra");
  VHSCount = ReadOneItem(CountFileNo, "VHSpra");
  DVDCount = ReadOneItem(CountFileNo, "DVDpra");
}

void frmPage1::ShowSavedCounts(std::string_view dvd_lead, std::string_view laser_lead, std::string_view vhs_lead) {
  lblsorted.Show();
  std::string line = "No. Titles  ";
  line.append(TitleCount).append(dvd_lead).append(DVDCount).append(laser_lead).append(LaserCount);
  lblsorted.SetCaption(line.append(vhs_lead).append(VHSCount));
}

void frmPage1::HideListsAndGrid() {
  for (screen::GridColumn* column : {&Text1, &Text2, &Text3}) {
    for (forms::TextBox& row : *column) row.Hide();
  }
  for (forms::ListBox* list : {&List1, &List2, &List3, &List4, &List5, &List6}) list->Hide();
  lblSelect.Hide();
  lblSave.Hide();
}
