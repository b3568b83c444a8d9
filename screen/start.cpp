// The start of the record screen: reads settings, colours and counts, opens the master file, shows its first record.
#include <utility>

#include "screen/auto_texts.h"
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/key_file.h"
#include "store/master_file.h"

namespace {

void OpenCollection(frmPage1& window) {
  window.MasterFileNo = 1;
  if (window.ViewKind == "") {
    window.SetCaption("Reelora Prima Record " + runtime::NumberText(window.CurrentRecNo) + "/" +
                      runtime::NumberText(window.RecordCount));
  }
  window.CurrentRecNo = 1;
  store::OpenMaster(window.Files, static_cast<int>(window.MasterFileNo));
  window.ReadRecord(window.CurrentRecNo);
  window.RecordCount = store::CountRecords(window.Files);
  window.ShowRecord();
  if (window.CurrentRecNo > 1) window.txtTitle.Show();
}

// Any setting but "YES" and "NO" leaves the box as it is.
void ShowSetting(forms::TextBox& box, std::string_view setting, std::string_view on, std::string_view off) {
  if (setting != "YES" && setting != "NO") return;
  box.Enable();
  box.SetText(setting == "YES" ? on : off);
  box.Disable();
}

void HideListsAndGrid(frmPage1& window) {
  for (screen::GridColumn* column : {&window.Text1, &window.Text2, &window.Text3}) {
    for (forms::TextBox& row : *column) row.Hide();
  }
  for (forms::ListBox* list :
       {&window.List1, &window.List2, &window.List3, &window.List4, &window.List5, &window.List6})
    list->Hide();
  window.lblSelect.Hide();
  window.lblSave.Hide();
}

}  // namespace

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
  if (ViewState == screen::ViewHome) ShowNewHint();
  if (ViewState == screen::ViewHome) {
    ReadCounts();
    ShowSavedCounts(" -    No. DVDS  ", " -    No.Laser discs  ", " -    No.VHS ");
    ViewState = screen::ViewStarted;
  }
  optnoteson.Enable();
  optNotesoff.Enable();
  HideListsAndGrid(*this);
  SetPageVisible(screen::PageOne, true);
  SetPageVisible(screen::PageTwo, false);
  if (NewMode == 0) {
    optNotesoff.Enable();
    optNotesoff.Select();
  }
  OpenCollection(*this);
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

void frmPage1::ReadCounts() {
  TitleCount = ReadOneItem(CountFileNo, store::TitleKeys.CountFile);
  LaserCount = ReadOneItem(CountFileNo, store::LaserKeys.CountFile);
  VHSCount = ReadOneItem(CountFileNo, store::VHSKeys.CountFile);
  DVDCount = ReadOneItem(CountFileNo, store::DVDKeys.CountFile);
}

void frmPage1::ShowSavedCounts(std::string_view dvd_lead, std::string_view laser_lead, std::string_view vhs_lead) {
  lblsorted.Show();
  std::string line = "No. Titles  ";
  line.append(TitleCount).append(dvd_lead).append(DVDCount).append(laser_lead).append(LaserCount);
  lblsorted.SetCaption(line.append(vhs_lead).append(VHSCount));
}
