// Every control of the record screen, one row each: name, ids (tab position, help id, topic id), look, place on the
// grid of 8655 by 7200 twips. Later rows overlap earlier ones. Stories use the control-array index of the star fields.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "forms/window.h"

namespace screen {

inline constexpr int GridWidth = 8655;
inline constexpr int GridHeight = 7200;
inline constexpr int ListRows = 20;
inline constexpr int FieldAreaTop = 1020;
inline constexpr int ListRowPitch = 240;

// clang-format off
//                                                fore            back            transparent  font             points  bold
inline constexpr forms::Look FieldLook       = { forms::Blue,   forms::White,   false, "Arial",         12,    true  };
inline constexpr forms::Look SmallFieldLook  = { forms::Blue,   forms::White,   false, "Arial",         9.75,  true  };
inline constexpr forms::Look WhiteFieldLook  = { forms::White,  forms::White,   false, "Arial",         12,    true  };
inline constexpr forms::Look TagLook         = { forms::Yellow, forms::Blue,    false, "Arial",         8.25,  true  };
inline constexpr forms::Look LargeTagLook    = { forms::Yellow, forms::Blue,    false, "Arial",         9,     true  };
inline constexpr forms::Look HeadLook        = { forms::Yellow, forms::Blue,    true,  "Arial",         12,    true  };
inline constexpr forms::Look SortedLook      = { forms::Yellow, forms::Blue,    true,  "MS Sans Serif", 9.75,  true  };
inline constexpr forms::Look MessageLook     = { forms::Yellow, forms::Blue,    false, "Arial",         9.75,  true  };
inline constexpr forms::Look FigureLook      = { forms::White,  forms::Blue,    false, "MS Sans Serif", 8.25,  false, true };
inline constexpr forms::Look PickListLook    = { forms::White,  forms::Black,   false, "MS Sans Serif", 8.25,  false };
inline constexpr forms::Look GenreListLook   = { forms::White,  forms::Black,   false, "System",        9.75,  true  };
inline constexpr forms::Look GridLook        = { forms::Blue,   forms::White,   false, "MS Sans Serif", 8.25,  false };
inline constexpr forms::Look ButtonLook      = { forms::Black,  0xC0C0C0,       false, "Arial",         9.75,  true  };
inline constexpr forms::Look SmallButtonLook = { forms::Black,  0xC0C0C0,       false, "Arial",         9,     true  };
inline constexpr forms::Look OptionLook      = { forms::Yellow, forms::Blue,    false, "Arial",         9.75,  true  };
inline constexpr forms::Look StatusLook      = { forms::Blue,   0xF0F0F0,       false, "Arial",         8.25,  true  };
inline constexpr forms::Look StripLook       = { forms::Black,  0xC0C0C0,       false, "Arial",         8.25,  false };

// A column of the twenty-row grid: "Text1(0)" to "Text1(19)". The tab positions run from FirstTab, from SplitRow on from SplitTab.
struct GridColumnRow {
  std::string_view Name;
  int FirstTab, SplitRow, SplitTab;
  int Left, Width;
};
inline constexpr GridColumnRow Text1Row = { "Text1",  70, 20,   0,   60, 4415 };
inline constexpr GridColumnRow Text2Row = { "Text2",  90, 20,   0, 4475, 4120 };
inline constexpr GridColumnRow Text3Row = { "Text3", 110, 14, 151, 7300, 1295 };
// clang-format on

class GridColumn {
 public:
  GridColumn(forms::Window& owner, const GridColumnRow& column)
      : GridColumn(owner, column, std::make_index_sequence<ListRows>()) {}
  forms::TextBox& operator[](std::size_t row) { return rows_[row]; }
  auto begin() { return rows_.begin(); }
  auto end() { return rows_.end(); }

 private:
  template <std::size_t... Row>
  GridColumn(forms::Window& owner, const GridColumnRow& column, std::index_sequence<Row...>)
      : rows_{forms::TextBox(owner, std::string(column.Name) + "(" + std::to_string(Row) + ")", IdsOf(column, Row),
                             GridLook, forms::Align::Left, PlaceOf(column, Row))...} {}
  static forms::ControlIds IdsOf(const GridColumnRow& column, int row) {
    return {row < column.SplitRow ? column.FirstTab + row : column.SplitTab + row - column.SplitRow, 0, 0};
  }
  static forms::Place PlaceOf(const GridColumnRow& column, int row) {
    return {column.Left, FieldAreaTop + row * ListRowPitch, column.Width, ListRowPitch};
  }
  std::array<forms::TextBox, ListRows> rows_;
};

// clang-format off
// The controls of both pages.
struct PageControls : forms::Window {
  using forms::Window::Window;

  forms::Strip   Toolbar1           { *this, "Toolbar1", StripLook, {0, 0, 8655, 760} };

  // The buttons.
  forms::Button  cmdPrev20          { *this, "cmdPrev20",          "&Back",   {142,   0, 0}, ButtonLook,      {5455, 30, 760, 700}, "back" };
  forms::Button  cmdNext20          { *this, "cmdNext20",          "&Next",   {141,   0, 0}, ButtonLook,      {6230, 30, 760, 700}, "next" };
  forms::Button  cmdPrevious1       { *this, "cmdPrevious1",       "",        {143,   0, 0}, ButtonLook,      {5455, 30, 760, 700}, "back" };
  forms::Button  cmdPrevious        { *this, "cmdPrevious",        "&Back",   {146, 260, 0}, ButtonLook,      {5455, 30, 760, 700}, "back" };
  forms::Button  cmdNext            { *this, "cmdNext",            "&Next",   {147, 240, 0}, ButtonLook,      {6230, 30, 760, 700}, "next" };
  forms::Button  cmdMatch           { *this, "cmdMatch",           "&Match",  {140, 380, 0}, SmallButtonLook, {4680, 30, 760, 700}, "match" };
  forms::Button  cmdEdit            { *this, "cmdEdit",            "&Edit",   {139, 270, 0}, ButtonLook,      {3905, 30, 760, 700}, "edit" };
  forms::Button  cmdSave            { *this, "cmdSave",            "&Save",   {138, 220, 0}, ButtonLook,      {3130, 30, 760, 700}, "save" };
  forms::Button  cmdDelete          { *this, "cmdDelete",          "&Delete", {137, 300, 0}, SmallButtonLook, {2355, 30, 760, 700}, "delete" };
  forms::Button  cmdSort            { *this, "cmdSort",            "S&ort",   {136, 170, 0}, ButtonLook,      {1580, 30, 760, 700}, "sort" };
  forms::Button  cmdNew             { *this, "cmdNew",             "Ne&w",    {135, 230, 0}, ButtonLook,      { 805, 30, 760, 700}, "new" };
  forms::Button  cmdReset           { *this, "cmdReset",           "&Reset",  {134, 280, 0}, ButtonLook,      {  30, 30, 760, 700}, "reset" };
  forms::TextBox txtAutoSave        { *this, "txtAutoSave",        {144,   0,   0}, StatusLook, forms::Align::Centre, {7050,  60, 1575, 300} };
  forms::TextBox txtAutoSort        { *this, "txtAutoSort",        {145,   0,   0}, StatusLook, forms::Align::Centre, {7050, 400, 1575, 300} };

  // The fields of page 1.
  forms::TextBox txtTitle           { *this, "txtTitle",           {  0, 150,   1}, FieldLook,      forms::Align::Centre, {   60, 1020, 4750,  360} };
  forms::TextBox txtDirector        { *this, "txtDirector",        {  1, 150,   2}, FieldLook,      forms::Align::Centre, { 4885, 1020, 3710,  360} };
  forms::TextBox txtStar1           { *this, "txtStar1(0)",        {  2, 150,   3}, FieldLook,      forms::Align::Centre, {   60, 1700, 4230,  360} };
  forms::TextBox txtStar2           { *this, "txtStar2(1)",        {  3, 150,   3}, FieldLook,      forms::Align::Centre, { 4365, 1700, 4230,  360} };
  forms::TextBox txtStar3           { *this, "txtStar3(1)",        {  4, 150,   3}, FieldLook,      forms::Align::Centre, {   60, 2380, 4230,  360} };
  forms::TextBox txtStar4           { *this, "txtStar4(1)",        {  5, 150,   3}, FieldLook,      forms::Align::Centre, { 4365, 2380, 4230,  360} };
  forms::TextBox txtStar5           { *this, "txtStar5(1)",        {  6, 150,   3}, FieldLook,      forms::Align::Centre, {   60, 3060, 4230,  360} };
  forms::TextBox txtStar6           { *this, "txtStar6(1)",        {  7, 150,   3}, FieldLook,      forms::Align::Centre, { 4365, 3060, 4230,  360} };
  forms::TextBox txtLabel           { *this, "txtLabel",           {  8, 150,   9}, SmallFieldLook, forms::Align::Centre, {   60, 3740, 1900,  360} };
  forms::TextBox txtFormat          { *this, "txtFormat",          {  9, 150, 490}, FieldLook,      forms::Align::Centre, { 2035, 3740, 1050,  360} };
  forms::TextBox txtNumReel         { *this, "txtNumReel",         { 11, 150,  10}, FieldLook,      forms::Align::Centre, { 3160, 3740, 1000,  360} };
  forms::TextBox txtGenre           { *this, "txtGenre",           { 12, 150,  11}, FieldLook,      forms::Align::Centre, { 4235, 3740,  950,  360} };
  forms::TextBox txtGenreList       { *this, "txtGenreList",       { 14, 150,  12}, FieldLook,      forms::Align::Centre, { 5260, 3740, 3335,  360} };
  forms::TextBox txtTime            { *this, "txtTime",            { 15, 150,  13}, FieldLook,      forms::Align::Centre, {   60, 4560, 1050,  360} };
  forms::TextBox txtYear            { *this, "txtYear",            { 16, 150,  14}, FieldLook,      forms::Align::Centre, { 1185, 4560, 1050,  360} };
  forms::TextBox txtCassNo          { *this, "txtCassNo",          { 17, 150,  15}, FieldLook,      forms::Align::Left,   { 2310, 4560, 1250,  360} };
  forms::TextBox txtLetter          { *this, "txtLetter",          { 18, 150, 500}, FieldLook,      forms::Align::Centre, { 3635, 4560, 1900,  360} };
  forms::TextBox txtCLV1            { *this, "txtCLV1",            { 20, 150,  17}, FieldLook,      forms::Align::Centre, { 5610, 4560, 1300,  360} };
  forms::TextBox txtColor1          { *this, "txtColor1",          { 22, 150,  18}, FieldLook,      forms::Align::Centre, { 6985, 4560, 1610,  360} };
  // The fields of page 2.
  forms::TextBox txtProducer        { *this, "txtProducer",        { 26,  29,  29}, FieldLook,      forms::Align::Centre, {   60, 1020, 4230,  360} };
  forms::TextBox txtCinematographer { *this, "txtCinematographer", { 43,  30,  30}, FieldLook,      forms::Align::Centre, { 4365, 1020, 4230,  360} };
  forms::TextBox txtWritten         { *this, "txtWritten",         { 45,  31,  31}, FieldLook,      forms::Align::Centre, {   60, 1610, 8535,  360} };
  forms::TextBox txtMusic           { *this, "txtMusic",           { 47,  32,  32}, FieldLook,      forms::Align::Centre, {   60, 2200, 4230,  360} };
  forms::TextBox txtChoreography    { *this, "txtChoreography",    { 49,  33,  33}, FieldLook,      forms::Align::Centre, { 4365, 2200, 4230,  360} };
  forms::TextBox txtSetDirection    { *this, "txtSetDirection",    { 51,  34,  34}, FieldLook,      forms::Align::Centre, {   60, 2790, 4230,  360} };
  forms::TextBox txtCostume         { *this, "txtCostume",         { 53,  35,  35}, FieldLook,      forms::Align::Centre, { 4365, 2790, 4230,  360} };
  forms::TextBox txtSound           { *this, "txtSound",           { 55,  70,  70}, FieldLook,      forms::Align::Centre, {   60, 3380, 4230,  360} };
  forms::TextBox txtRating          { *this, "txtRating",          { 57,  37,  37}, FieldLook,      forms::Align::Centre, { 4365, 3380, 1500,  360} };
  forms::TextBox txtPackage         { *this, "txtPackage",         { 59,  38,  38}, WhiteFieldLook, forms::Align::Centre, { 5940, 3380, 2655,  360} };
  forms::TextBox txtAwards          { *this, "txtAwards",          { 62,  39,  39}, FieldLook,      forms::Align::Centre, {   60, 3970, 8535,  360} };
  forms::TextBox txtPurchase        { *this, "txtPurchase",        { 64,  40,  40}, WhiteFieldLook, forms::Align::Centre, {   60, 4560, 1400,  360} };
  forms::TextBox txtCost            { *this, "txtCost",            { 66,  41,  41}, FieldLook,      forms::Align::Centre, { 1535, 4560, 1400,  360} };
  forms::TextBox txtRatings         { *this, "txtRatings",         { 68,  56,  56}, FieldLook,      forms::Align::Centre, { 3010, 4560, 2525,  360} };
  // The tags under the fields.
  forms::Label   lblTitle           { *this, "lblTitle",           "Title",                                                                              {}, TagLook,     {   60, 1380, 4750,  230} };
  forms::Label   lblDirector        { *this, "lblDirector",        " Director",                                                                          {}, TagLook,     { 4885, 1380, 3710,  230} };
  forms::Label   lblStar1           { *this, "lblStar1",           "Star 1",                                                                             {}, TagLook,     {   60, 2060, 4230,  230} };
  forms::Label   lblStar2           { *this, "lblStar2",           "Star 2",                                                                             {}, TagLook,     { 4365, 2060, 4230,  230} };
  forms::Label   lblStar3           { *this, "lblStar3",           "Star 3",                                                                             {}, TagLook,     {   60, 2740, 4230,  230} };
  forms::Label   lblStar4           { *this, "lblStar4",           "Star 4",                                                                             {}, TagLook,     { 4365, 2740, 4230,  230} };
  forms::Label   lblStar5           { *this, "lblStar5",           "Star 5",                                                                             {}, TagLook,     {   60, 3420, 4230,  230} };
  forms::Label   lblStar6           { *this, "lblStar6",           "Star 6",                                                                             {}, TagLook,     { 4365, 3420, 4230,  230} };
  forms::Label   lblLabel           { *this, "lblLabel",           "Label",                                                                              {}, TagLook,     {   60, 4100, 1900,  380} };
  forms::Label   lblFormat          { *this, "lblFormat",          "     Format            V - L- D       ",                                             {}, TagLook,     { 2035, 4100, 1050,  380} };
  forms::Label   lblNumReel         { *this, "lblNumReel",         "   Number     discs / tapes",                                                        {}, TagLook,     { 3160, 4100, 1000,  380} };
  forms::Label   lblGenre           { *this, "lblGenre",           "     Genre        Click box  ",                                                      {}, TagLook,     { 4235, 4100,  950,  380} };
  forms::Label   lblGenreList1      { *this, "lblGenreList1",      "  Genre Listed",                                                                     {}, TagLook,     { 5260, 4100, 3335,  380} };
  forms::Label   lblTime            { *this, "lblTime",            " Time (min)",                                                                        {}, TagLook,     {   60, 4920, 1050,  230} };
  forms::Label   lblYear            { *this, "lblYear",            "Year",                                                                               {}, TagLook,     { 1185, 4920, 1050,  230} };
  forms::Label   lblCassNo          { *this, "lblCassNo",          "Cassette No.",                                                                       {}, TagLook,     { 2310, 4920, 1250,  230} };
  forms::Label   lblLetter          { *this, "lblLetter",          "  Aspect",                                                                           {}, TagLook,     { 3635, 4920, 1900,  230} };
  forms::Label   lblCLV             { *this, "lblCLV",             "   CAV / CLV  ",                                                                     {}, TagLook,     { 5610, 4920, 1300,  230} };
  forms::Label   lblColor1          { *this, "lblColor1",          " Color B/W",                                                                         {}, TagLook,     { 6985, 4920, 1610,  230} };
  forms::Label   lblProducer        { *this, "lblProducer",        "Producer",                                                                           {}, TagLook,     {   60, 1380, 4230,  230} };
  forms::Label   lblCinematographer { *this, "lblCinematographer", "Cinematographer",                                                                    {}, LargeTagLook, { 4365, 1380, 4230,  230} };
  forms::Label   lblWritten         { *this, "lblWritten",         "Screen Play By -  Adapted for the screen by  - Writers - Film Editor (optional)",    {}, TagLook,     {   60, 1970, 8535,  230} };
  forms::Label   lblMusic           { *this, "lblMusic",           "Music - Director / Composer",                                                        {}, TagLook,     {   60, 2560, 4230,  230} };
  forms::Label   lblDance           { *this, "lblDance",           "Choreography",                                                                       {}, TagLook,     { 4365, 2560, 4230,  230} };
  forms::Label   lblSetDirection    { *this, "lblSetDirection",    "Art Director /Set Direction",                                                        {}, TagLook,     {   60, 3150, 4230,  230} };
  forms::Label   lblCostume         { *this, "lblCostume",         "Costume Designer",                                                                   {}, LargeTagLook, { 4365, 3150, 4230,  230} };
  forms::Label   lblSound           { *this, "lblSound",           "Sound Recording  \"THX\" , Dolby AC-3  etc.  ",                                      {}, TagLook,     {   60, 3740, 4230,  230} };
  forms::Label   lblMPAA            { *this, "lblMPAA",            "MPAA Rating",                                                                        {}, TagLook,     { 4365, 3740, 1500,  230} };
  forms::Label   lblPackage         { *this, "lblPackage",         "Packaging",                                                                          {}, TagLook,     { 5940, 3740, 2655,  230} };
  forms::Label   lblAward           { *this, "lblAward",           "Nominations  / Awards or Notes",                                                     {}, LargeTagLook, {   60, 4330, 8535,  230} };
  forms::Label   lblPurchase        { *this, "lblPurchase",        "Purchase Date",                                                                      {}, TagLook,     {   60, 4920, 1400,  230} };
  forms::Label   lblCost            { *this, "lblCost",            "Purchase Price",                                                                     {}, TagLook,     { 1535, 4920, 1400,  230} };
  forms::Label   lblRates           { *this, "lblRates",           "Your Rating  (optional)",                                                            {}, TagLook,     { 3010, 4920, 2525,  230} };

  // The labels that the program writes.
  forms::Label   lblsorted          { *this, "lblsorted",          "",                              {124, 0, 0}, SortedLook,  {  60,  780, 8535,  230} };
  forms::Label   lblHead            { *this, "lblHead",            "",                              {150, 0, 0}, HeadLook,    {  60, 5940, 8535,  310} };
  forms::Label   lblPage            { *this, "lblPage",            "",                              {157, 0, 0}, HeadLook,    {3000, 6780, 1500,  320} };
  forms::Label   lblNotes1          { *this, "lblNotes1",          "",                              {125, 0, 0}, HeadLook,    {3000, 6780, 1500,  320} };
  forms::Label   lblSorting         { *this, "lblSorting",         "",                              {131, 0, 0}, MessageLook, {  60, 5310, 8535,  630} };
  forms::Label   lblSave            { *this, "lblSave",            "    Your Work Has Been Saved!", {128, 0, 0}, MessageLook, {4500, 6790, 2550,  300} };
  forms::Label   lblSelect          { *this, "lblSelect",          "Arrow or click down for selection.  Click or press <Enter> to make selection. ", {132, 0, 0}, TagLook, {60, 6250, 8535, 220} };
  forms::Label   lblEnter           { *this, "lblEnter",           "Scroll or click for Color or B-W selection and Hit \"Enter\" to Continue to the next page!", {158, 0, 0}, TagLook, {60, 6480, 8535, 220} };
  forms::Label   lblNumrec          { *this, "lblNumrec",          "Numrec",                        {129, 0, 0}, FigureLook,  {7100, 6800,  720,  270} };
  forms::Label   lblRetcode         { *this, "lblRetcode",         "Retcode",                       {130, 0, 0}, FigureLook,  {7875, 6800,  720,  270} };

  // The page switch.
  forms::OptionButton optnoteson    { *this, "optnoteson",         "PA&GE 2", {126, 27, 0}, OptionLook, {1500, 6780, 1300, 320} };
  forms::OptionButton optNotesoff   { *this, "optNotesoff",        "PA&GE 1", {127, 28, 0}, OptionLook, {  60, 6780, 1300, 320} };

  // The twenty-row grid.
  GridColumn Text1 { *this, Text1Row };
  GridColumn Text2 { *this, Text2Row };
  GridColumn Text3 { *this, Text3Row };

  // The pick lists.
  forms::ListBox List1 { *this, "List1", { 13, 0, 0}, GenreListLook, {5260, 3060, 3335, 2150}, forms::ListBox::Order::Sorted };
  forms::ListBox List2 { *this, "List2", { 58, 0, 0}, PickListLook,  {4365, 3380, 1500, 1790} };
  forms::ListBox List3 { *this, "List3", { 10, 0, 0}, PickListLook,  {2035, 4110, 1050,  660} };
  forms::ListBox List4 { *this, "List4", { 19, 0, 0}, PickListLook,  {3635, 3920, 1900,  640} };
  forms::ListBox List5 { *this, "List5", { 21, 0, 0}, PickListLook,  {5610, 4920, 1300,  430} };
  forms::ListBox List6 { *this, "List6", { 23, 0, 0}, PickListLook,  {6985, 4920, 1610,  430} };

  // The menu, in its order.
  forms::MenuItem mnuFile1        { *this, 0, "mnuFile1",        "&File", 400 };
  forms::MenuItem mnuCopy         { *this, 1, "mnuCopy",         "&Copy Files" };
  forms::MenuItem mnuSave         { *this, 1, "mnuSave",         "&Save" };
  forms::MenuItem mnuPrint2       { *this, 1, "mnuPrint2",       "Set&up Printer" };
  forms::MenuItem mnuLibrary      { *this, 1, "mnuLibrary",      "&Print Library" };
  forms::MenuItem mnuAll          { *this, 2, "mnuAll",          "Print All Titles (Full List)" };
  forms::MenuItem mnuShort        { *this, 2, "mnuShort",        "Print All Titles (Abridged)" };
  forms::MenuItem mnuLaser        { *this, 2, "mnuLaser",        "Print All Laser Titles (Abridged)" };
  forms::MenuItem mnuVHS          { *this, 2, "mnuVHS",          "Print All VHS Titles (Abridged)" };
  forms::MenuItem mnuDVD          { *this, 2, "mnuDVD",          "Print All DVD Titles (Abridged)" };
  forms::MenuItem mnuDirector     { *this, 2, "mnuDirector",     "Print By Director" };
  forms::MenuItem mnuStars        { *this, 2, "mnuStars",        "Print By Stars" };
  forms::MenuItem mnuGenre        { *this, 2, "mnuGenre",        "Print By Genre" };
  forms::MenuItem mnuExit         { *this, 1, "mnuExit",         "E&xit" };
  forms::MenuItem mnuFind         { *this, 0, "mnuFind",         "F&ind", 410 };
  forms::MenuItem mnulast1        { *this, 1, "mnulast1",        "Find By Last Record" };
  forms::MenuItem mnuLast         { *this, 2, "mnuLast",         "Find Last Record" };
  forms::MenuItem mnuLastEntry    { *this, 2, "mnuLastEntry",    "Find Last Entry" };
  forms::MenuItem mnuFile         { *this, 1, "mnuFile",         "Find By File No." };
  forms::MenuItem mnuFindTitle    { *this, 1, "mnuFindTitle",    "Find By Title" };
  forms::MenuItem mnuFindDirector { *this, 1, "mnuFindDirector", "Find By Director" };
  forms::MenuItem mnuFindStar     { *this, 1, "mnuFindStar",     "Find By Star" };
  forms::MenuItem mnuProducer     { *this, 1, "mnuProducer",     "Find By Producer" };
  forms::MenuItem mnuCinema       { *this, 1, "mnuCinema",       "Find By Cinematographer" };
  forms::MenuItem mnuWriter       { *this, 1, "mnuWriter",       "Find By Writer" };
  forms::MenuItem mnuMusic        { *this, 1, "mnuMusic",        "Find By Music Comp." };
  forms::MenuItem mnuArt          { *this, 1, "mnuArt",          "Find Art Director" };
  forms::MenuItem mnuDance        { *this, 1, "mnuDance",        "Find By Choreographer" };
  forms::MenuItem mnuCostume      { *this, 1, "mnuCostume",      "Find Costumer" };
  forms::MenuItem mnuAwards       { *this, 1, "mnuAwards",       "Find By Awards" };
  forms::MenuItem mnuMPAA         { *this, 1, "mnuMPAA",         "Find By MPAA Rating" };
  forms::MenuItem mnuSound        { *this, 1, "mnuSound",        "Find By Sound" };
  forms::MenuItem mnuFindGenre    { *this, 1, "mnuFindGenre",    "Find By Genre" };
  forms::MenuItem mnuViewFiles    { *this, 0, "mnuViewFiles",    "&View Files", 420 };
  forms::MenuItem mnuByTitle      { *this, 1, "mnuByTitle",      "Alpha Titles" };
  forms::MenuItem mnuByDVD        { *this, 1, "mnuByDVD",        "Alpha DVD Titles" };
  forms::MenuItem mnuByLaser      { *this, 1, "mnuByLaser",      "Alpha Laser Titles" };
  forms::MenuItem mnuByVHS        { *this, 1, "mnuByVHS",        "Alpha VHS Titles" };
  forms::MenuItem mnuViewAllFiles { *this, 0, "mnuViewAllFiles", "View &All Files", 430 };
  forms::MenuItem mnuAllTitles    { *this, 1, "mnuAllTitles",    "View All Titles" };
  forms::MenuItem mnualldvd       { *this, 1, "mnualldvd",       "View All DVDs" };
  forms::MenuItem mnualllas       { *this, 1, "mnualllas",       "View All Lasers" };
  forms::MenuItem mnuAllVHS       { *this, 1, "mnuAllVHS",       "View All VHSs" };
  forms::MenuItem mnuFindAllGenre { *this, 1, "mnuFindAllGenre", "View All Genre" };
  forms::MenuItem mnuSort         { *this, 0, "mnuSort",         "S&ort", 440 };
  forms::MenuItem mnuPreference   { *this, 0, "mnuPreference",   "Preferen&ce", 450 };
  forms::MenuItem mnuProFunct     { *this, 1, "mnuProFunct",     "Program Functions" };
  forms::MenuItem mnuAutoSave     { *this, 2, "mnuAutoSave",     "Auto Save" };
  forms::MenuItem mnuAutoSort     { *this, 2, "mnuAutoSort",     "Auto Sort" };
  forms::MenuItem mnuColors       { *this, 1, "mnuColors",       "Pro&gram Colors" };
  forms::MenuItem mnuBGColors     { *this, 2, "mnuBGColors",     "Background Colors" };
  forms::MenuItem mnuTxtBoxColor  { *this, 2, "mnuTxtBoxColor",  "Text Box Colors" };
  forms::MenuItem mnuTxtColor     { *this, 2, "mnuTxtColor",     "Text Colors " };
  forms::MenuItem mnuMessColor    { *this, 2, "mnuMessColor",    "Message Tag Colors" };
  forms::MenuItem mnudefault      { *this, 2, "mnudefault",      "Default Colors" };
  forms::MenuItem mnuHelp         { *this, 0, "mnuHelp",         "&Help", 460 };
};
// clang-format on

}  // namespace screen
