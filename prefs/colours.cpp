// The colours of the record screen: stored in four one-line files, applied at the start, chosen in the colour dialog.
#include "prefs/colour_groups.h"
#include "runtime/text.h"

using prefs::Group;
using prefs::Occasion;

void frmPage1::ApplyColour(Group group, Occasion occasion, forms::Colour colour) {
  if (group == Group::Background) SetBackColor(colour);
  bool text = group == Group::TextBoxText || group == Group::TagText;
  for (forms::Control* control : prefs::ControlsOf(*this, group, occasion)) {
    text ? control->SetForeColor(colour) : control->SetBackColor(colour);
  }
}

void frmPage1::ApplyStoredColours() {
  for (const prefs::GroupRow& row : prefs::Groups) {
    std::string line = ReadOneItem(ColourFileNo, row.File);
    ApplyColour(row.Of, Occasion::Start, static_cast<forms::Colour>(runtime::WholeNumber(line, row.File)) & 0xFFFFFF);
  }
}

void frmPage1::StoreColour(const prefs::GroupRow& row) {
  Files.OpenOutput(ColourFileNo, row.File);
  Files.WriteLine(ColourFileNo, std::to_string(DialogColour));
  Files.Close(ColourFileNo);
}

// Cancel counts as a choice: the dialog's current colour is applied and stored.
void frmPage1::ChooseColour(Group group) {
  DialogColour = Desk.ColourDialog(DialogColour).value_or(DialogColour);
  ApplyColour(group, Occasion::Menu, DialogColour);
  StoreColour(prefs::RowOf(group));
}

void frmPage1::mnuBGColors_Click() { ChooseColour(Group::Background); }
void frmPage1::mnuTxtBoxColor_Click() { ChooseColour(Group::TextBoxBackground); }
void frmPage1::mnuTxtColor_Click() { ChooseColour(Group::TextBoxText); }
void frmPage1::mnuMessColor_Click() { ChooseColour(Group::TagText); }

void frmPage1::mnudefault_Click() {
  for (const prefs::GroupRow& row : prefs::Groups) {
    DialogColour = row.Default;
    ApplyColour(row.Of, Occasion::Default, DialogColour);
    StoreColour(row);
  }
}

void frmPage1::WirePrefs() {
  WIRE(mnuAutoSave, Click);
  WIRE(mnuAutoSort, Click);
  WIRE(mnuBGColors, Click);
  WIRE(mnuTxtBoxColor, Click);
  WIRE(mnuTxtColor, Click);
  WIRE(mnuMessColor, Click);
  WIRE(mnudefault, Click);
}
