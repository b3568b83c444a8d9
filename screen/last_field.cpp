// Leaving the last field saves and sorts. The settings decide less than their names say: Auto Save off prevents this
// only for a new film, and Auto Sort only decides what the screen shows afterwards.
#include "screen/auto_texts.h"
#include "screen/entry_fields.h"
#include "screen/frmPage1.h"

void frmPage1::txtRatings_LostFocus() {
  BeginSort();
  bool save_on = txtAutoSave.Text() == screen::AutoSaveOn;
  bool sort_on = txtAutoSort.Text() == screen::AutoSortOn;
  if (save_on && sort_on && NewMode == 1) lblSorting.SetCaption(screen::AutoSaveNote);
  if (txtAutoSave.Text() == screen::AutoSaveOff && NewMode == 1) {
    lblSorting.SetCaption(screen::AutoSaveOffNote);
    return;
  }
  for (forms::ListBox* list : {&List4, &List5, &List6}) list->Hide();
  SaveRecord();
  cmdPrevious.Enable();
  if (NewMode == 1) EditMode = 0;
  Files.ReplaceTogether([&] {
    MakePasses();
    if (sort_on && save_on && NewMode == 1) {
      cmdSave.SetFocus();
      cmdSave_Click();
      optNotesoff_Click();
    }
    if (AutoSaveSetting == "NO" && AutoSortSetting == "NO" && NewMode == 1) {
      lblSorting.SetCaption(std::string(60, ' ') + "You Must Save And Sort Your Work!");
    }
    Files.OpenOutput(CountFileNo, "Last");
    Files.WriteLine(CountFileNo, runtime::NumberText(CurrentRecNo) + " ");
    Files.Close(CountFileNo);
  });
  LastEntryRecNo = std::to_string(CurrentRecNo);
}
