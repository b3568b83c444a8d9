// The controls of each colour group in two tables, with the odd ones marked.
#include "prefs/colour_groups.h"

namespace prefs {
namespace {

// When a colour leaves a control out.
enum class Except { Never, OnDefault, OnStart, AfterStart, Always };

struct ColouredLabel {
  forms::Label frmPage1::*Label;
  Except BackColour = Except::Never;
  Except TagColour = Except::Never;
};

struct ColouredBox {
  forms::TextBox frmPage1::*Box;
  Except BackColour = Except::Never;
};

// clang-format off
constexpr ColouredLabel Labels[] = {
  { &frmPage1::lblPage }, { &frmPage1::lblsorted }, { &frmPage1::lblTitle }, { &frmPage1::lblDirector },
  { &frmPage1::lblStar1 }, { &frmPage1::lblStar2 }, { &frmPage1::lblStar3 }, { &frmPage1::lblStar4 }, { &frmPage1::lblStar5 },
  { &frmPage1::lblStar6 }, { &frmPage1::lblLabel }, { &frmPage1::lblSelect }, { &frmPage1::lblFormat }, { &frmPage1::lblNumReel },
  { &frmPage1::lblGenre }, { &frmPage1::lblGenreList1 }, { &frmPage1::lblTime }, { &frmPage1::lblYear }, { &frmPage1::lblCassNo },
  { &frmPage1::lblLetter }, { &frmPage1::lblCLV }, { &frmPage1::lblColor1 }, { &frmPage1::lblRetcode }, { &frmPage1::lblNumrec },
  { &frmPage1::lblHead }, { &frmPage1::lblProducer }, { &frmPage1::lblMusic }, { &frmPage1::lblAward },
  { &frmPage1::lblCinematographer }, { &frmPage1::lblCost }, { &frmPage1::lblCostume }, { &frmPage1::lblDance }, { &frmPage1::lblMPAA },
  { &frmPage1::lblNotes1 }, { &frmPage1::lblPackage }, { &frmPage1::lblPurchase }, { &frmPage1::lblRates },
  { &frmPage1::lblSetDirection }, { &frmPage1::lblSorting }, { &frmPage1::lblSound }, { &frmPage1::lblWritten },
  { .Label = &frmPage1::lblSave, .BackColour = Except::OnDefault, .TagColour = Except::AfterStart },
  { .Label = &frmPage1::lblEnter, .BackColour = Except::Always },  // keeps its built-in background
};
constexpr ColouredBox Boxes[] = {
  { &frmPage1::txtTitle }, { &frmPage1::txtDirector }, { &frmPage1::txtStar1 }, { &frmPage1::txtStar2 }, { &frmPage1::txtStar3 },
  { &frmPage1::txtStar4 }, { &frmPage1::txtStar5 }, { &frmPage1::txtStar6 }, { &frmPage1::txtLabel }, { &frmPage1::txtFormat },
  { &frmPage1::txtNumReel }, { &frmPage1::txtGenre }, { &frmPage1::txtGenreList }, { &frmPage1::txtTime }, { &frmPage1::txtYear },
  { &frmPage1::txtCassNo }, { &frmPage1::txtLetter }, { &frmPage1::txtCLV1 }, { &frmPage1::txtColor1 }, { &frmPage1::txtProducer },
  { &frmPage1::txtMusic }, { &frmPage1::txtAwards }, { &frmPage1::txtCinematographer }, { &frmPage1::txtCostume },
  { &frmPage1::txtChoreography }, { &frmPage1::txtRating }, { &frmPage1::txtPackage }, { &frmPage1::txtPurchase },
  { &frmPage1::txtRatings }, { &frmPage1::txtSetDirection }, { &frmPage1::txtSound }, { &frmPage1::txtWritten },
  { &frmPage1::txtCost, Except::OnStart },  // keeps its built-in background until a colour is chosen
};
// clang-format on

bool LeavesOut(Except except, Occasion occasion) {
  switch (except) {
    case Except::Never:
      return false;
    case Except::OnDefault:
      return occasion == Occasion::Default;
    case Except::OnStart:
      return occasion == Occasion::Start;
    case Except::AfterStart:
      return occasion != Occasion::Start;
    case Except::Always:
      break;
  }
  return true;
}

std::vector<forms::Control*> LabelsOf(frmPage1& window, Except ColouredLabel::*except, Occasion occasion) {
  std::vector<forms::Control*> controls = {&window.optNotesoff, &window.optnoteson};
  for (const ColouredLabel& row : Labels) {
    if (!LeavesOut(row.*except, occasion)) controls.push_back(&(window.*row.Label));
  }
  return controls;
}

std::vector<forms::Control*> BoxesOf(frmPage1& window, bool back_colour, Occasion occasion) {
  std::vector<forms::Control*> controls;
  for (const ColouredBox& row : Boxes) {
    if (!back_colour || !LeavesOut(row.BackColour, occasion)) controls.push_back(&(window.*row.Box));
  }
  for (screen::GridColumn* column : {&window.Text1, &window.Text2, &window.Text3}) {
    for (forms::TextBox& row : *column) controls.push_back(&row);
  }
  return controls;
}

}  // namespace

std::vector<forms::Control*> ControlsOf(frmPage1& window, Group group, Occasion occasion) {
  switch (group) {
    case Group::Background:
      return LabelsOf(window, &ColouredLabel::BackColour, occasion);
    case Group::TagText:
      return LabelsOf(window, &ColouredLabel::TagColour, occasion);
    case Group::TextBoxBackground:
      return BoxesOf(window, true, occasion);
    case Group::TextBoxText:
      break;
  }
  return BoxesOf(window, false, occasion);
}

}  // namespace prefs
