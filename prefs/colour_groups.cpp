// The lists of the colour groups, in order, and what each occasion leaves out or adds.
#include "prefs/colour_groups.h"

namespace prefs {
namespace {

using Window = screen::Page1Controls;

// What a row does not do: an odd one says why it stands.
enum Except { Always, NotOnDefault, NotOnStart, StartOnly };

template <typename Kind>
struct ListedControl {
  Kind Window::*Control;
  Except When = Always;
};

// clang-format off
constexpr ListedControl<forms::Label> LabelsBeforeOptions[] = {
  { &Window::lblPage }, { &Window::lblsorted }, { &Window::lblTitle }, { &Window::lblDirector },
  { &Window::lblStar1 }, { &Window::lblStar2 }, { &Window::lblStar3 }, { &Window::lblStar4 }, { &Window::lblStar5 }, { &Window::lblStar6 },
  { &Window::lblLabel }, { &Window::lblSelect }, { &Window::lblFormat }, { &Window::lblNumReel }, { &Window::lblGenre },
  { &Window::lblGenreList1 }, { &Window::lblTime }, { &Window::lblYear }, { &Window::lblCassNo }, { &Window::lblLetter },
  { &Window::lblCLV }, { &Window::lblColor1 }, { &Window::lblRetcode }, { &Window::lblNumrec },
};
constexpr ListedControl<forms::Label> LabelsBehindOptions[] = {
  { &Window::lblHead }, { &Window::lblProducer }, { &Window::lblMusic }, { &Window::lblAward }, { &Window::lblCinematographer },
  { &Window::lblCost }, { &Window::lblCostume }, { &Window::lblDance }, { &Window::lblMPAA }, { &Window::lblNotes1 },
  { &Window::lblPackage }, { &Window::lblPurchase }, { &Window::lblRates },
  { &Window::lblSave, NotOnDefault },  // Default Colors leaves its background alone
  { &Window::lblSetDirection }, { &Window::lblSorting }, { &Window::lblSound }, { &Window::lblWritten },
};
constexpr ListedControl<forms::Label> TagsBeforeOptions[] = {
  { &Window::lblEnter }, { &Window::lblPage }, { &Window::lblsorted }, { &Window::lblTitle }, { &Window::lblDirector },
  { &Window::lblStar1 }, { &Window::lblStar2 }, { &Window::lblStar3 }, { &Window::lblStar4 }, { &Window::lblStar5 }, { &Window::lblStar6 },
  { &Window::lblLabel }, { &Window::lblFormat }, { &Window::lblSelect }, { &Window::lblNumReel }, { &Window::lblGenre },
  { &Window::lblGenreList1 }, { &Window::lblTime }, { &Window::lblYear }, { &Window::lblCassNo }, { &Window::lblLetter },
  { &Window::lblCLV }, { &Window::lblColor1 }, { &Window::lblRetcode }, { &Window::lblNumrec },
};
constexpr ListedControl<forms::Label> TagsBehindOptions[] = {
  { &Window::lblHead }, { &Window::lblProducer }, { &Window::lblMusic }, { &Window::lblAward }, { &Window::lblCinematographer },
  { &Window::lblCost }, { &Window::lblCostume }, { &Window::lblDance }, { &Window::lblMPAA }, { &Window::lblNotes1 },
  { &Window::lblPackage }, { &Window::lblPurchase }, { &Window::lblRates },
  { &Window::lblSave, StartOnly },  // the stored tag colour reaches it, a colour chosen later does not
  { &Window::lblSetDirection }, { &Window::lblSorting }, { &Window::lblSound }, { &Window::lblWritten },
};
constexpr ListedControl<forms::TextBox> BackgroundBoxes[] = {
  { &Window::txtTitle }, { &Window::txtDirector },
  { &Window::txtStar1 }, { &Window::txtStar2 }, { &Window::txtStar3 }, { &Window::txtStar4 }, { &Window::txtStar5 }, { &Window::txtStar6 },
  { &Window::txtLabel }, { &Window::txtFormat }, { &Window::txtNumReel }, { &Window::txtGenre }, { &Window::txtGenreList },
  { &Window::txtTime }, { &Window::txtYear }, { &Window::txtCassNo }, { &Window::txtLetter }, { &Window::txtCLV1 }, { &Window::txtColor1 },
  { &Window::txtProducer }, { &Window::txtMusic }, { &Window::txtAwards }, { &Window::txtCinematographer },
  { &Window::txtCost, NotOnStart },  // keeps the background of the window as built until a colour is chosen
  { &Window::txtCostume }, { &Window::txtChoreography }, { &Window::txtRating }, { &Window::txtPackage }, { &Window::txtPurchase },
  { &Window::txtRatings }, { &Window::txtSetDirection }, { &Window::txtSound }, { &Window::txtWritten },
};
// clang-format on

bool Applies(Except when, Occasion occasion, bool text) {
  switch (when) {
    case NotOnDefault:
      return occasion != Occasion::Default;
    case NotOnStart:
      return text || occasion != Occasion::Start;
    case StartOnly:
      return occasion == Occasion::Start;
    default:
      return true;
  }
}

class Collector {
 public:
  Collector(frmPage1& window, Occasion occasion, bool text) : window_(window), occasion_(occasion), text_(text) {}
  template <typename Row, std::size_t Rows>
  void Take(const Row (&rows)[Rows]) {
    for (const Row& row : rows) {
      if (Applies(row.When, occasion_, text_)) controls_.push_back(&(window_.*row.Control));
    }
  }
  void TakeOptions() {
    controls_.push_back(&window_.optNotesoff);
    controls_.push_back(&window_.optnoteson);
  }
  void TakeGrid() {
    for (screen::GridColumn* column : {&window_.Text1, &window_.Text2, &window_.Text3}) {
      for (forms::TextBox& row : *column) controls_.push_back(&row);
    }
  }
  std::vector<forms::Control*> All() { return std::move(controls_); }

 private:
  frmPage1& window_;
  Occasion occasion_;
  bool text_;
  std::vector<forms::Control*> controls_;
};

}  // namespace

std::vector<forms::Control*> ControlsOf(frmPage1& window, Group group, Occasion occasion) {
  Collector collector(window, occasion, group == Group::TextBoxText);
  if (group == Group::Background) {
    collector.Take(LabelsBeforeOptions);
    collector.TakeOptions();
    collector.Take(LabelsBehindOptions);
  } else if (group == Group::TagText) {
    collector.Take(TagsBeforeOptions);
    collector.TakeOptions();
    collector.Take(TagsBehindOptions);
  } else {
    collector.Take(BackgroundBoxes);
    collector.TakeGrid();
  }
  return collector.All();
}

}  // namespace prefs
