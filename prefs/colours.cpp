// The colours of the record screen: stored in four one-line files, applied at the start, chosen in the colour dialog.
#include "prefs/colour_groups.h"
#include "runtime/text.h"

using prefs::Group;
using prefs::Occasion;

namespace {

void ApplyColour(frmPage1& window, Group group, Occasion occasion, forms::Colour colour) {
  if (group == Group::Background) window.SetBackColor(colour);
  bool text = group == Group::TextBoxText || group == Group::TagText;
  for (forms::Control* control : prefs::ControlsOf(window, group, occasion)) {
    text ? control->SetForeColor(colour) : control->SetBackColor(colour);
  }
}

void StoreColour(frmPage1& window, const prefs::GroupRow& row) {
  window.Files.OpenOutput(ColourFileNo, row.File);
  window.Files.WriteLine(ColourFileNo, std::to_string(window.DialogColour));
  window.Files.Close(ColourFileNo);
}

// Cancel counts as a choice: the dialog's current colour is applied and stored.
void ChooseColour(frmPage1& window, Group group) {
  window.DialogColour = window.Desk.ColourDialog(window.DialogColour).value_or(window.DialogColour);
  ApplyColour(window, group, Occasion::Menu, window.DialogColour);
  StoreColour(window, prefs::RowOf(group));
}

}  // namespace

void frmPage1::ApplyStoredColours() {
  for (const prefs::GroupRow& row : prefs::Groups) {
    std::string line = ReadOneItem(ColourFileNo, row.File);
    ApplyColour(*this, row.Of, Occasion::Start,
                static_cast<forms::Colour>(runtime::WholeNumber(line, row.File)) & 0xFFFFFF);
  }
}

void frmPage1::mnuBGColors_Click() { ChooseColour(*this, Group::Background); }
void frmPage1::mnuTxtBoxColor_Click() { ChooseColour(*this, Group::TextBoxBackground); }
void frmPage1::mnuTxtColor_Click() { ChooseColour(*this, Group::TextBoxText); }
void frmPage1::mnuMessColor_Click() { ChooseColour(*this, Group::TagText); }

void frmPage1::mnudefault_Click() {
  for (const prefs::GroupRow& row : prefs::Groups) {
    DialogColour = row.Default;
    ApplyColour(*this, row.Of, Occasion::Default, DialogColour);
    StoreColour(*this, row);
  }
}
