// Every handler of the record screen once, by the folder and the file that hold its body. H(cmdSave, Click) stands for
// cmdSave_Click: frmPage1.h expands the lists to declare the handlers, frmPage1.cpp to wire them. So no handler is left
// unwired or wired to another control; a second entry does not compile, one without a body does not link.
#pragma once

// The two things made of a list; the other windows wire theirs in the same way.
#define DECLARE(control, Event) void control##_##Event();
#define WIRE(control, Event) control.Event = [this] { control##_##Event(); };

// clang-format off

// Events of the window itself: W(Load) stands for frmPage1_Load.
#define WINDOW_HANDLERS(W) W(Load) W(Unload) W(MouseMove)

// Handlers that differ in their control alone; one macro in the file makes their bodies.
/* screen/frmPage1.cpp: the pointer over a button selects its help topic */
#define POINTER_HANDLERS(H) \
  H(cmdSort, MouseMove) H(cmdSave, MouseMove)     H(cmdNew, MouseMove)  H(cmdNext, MouseMove) \
  H(cmdEdit, MouseMove) H(cmdPrevious, MouseMove) H(cmdReset, MouseMove) H(cmdDelete, MouseMove) \
  H(cmdMatch, MouseMove)
/* screen/entry.cpp: fields that do nothing of their own when they get the focus */
#define FIELD_FOCUS_HANDLERS(H) \
  H(txtTitle, GotFocus)     H(txtDirector, GotFocus)        H(txtStar1, GotFocus)   H(txtStar2, GotFocus) \
  H(txtStar3, GotFocus)     H(txtStar4, GotFocus)           H(txtStar5, GotFocus)   H(txtStar6, GotFocus) \
  H(txtNumReel, GotFocus)   H(txtGenreList, GotFocus)       H(txtTime, GotFocus)    H(txtCassNo, GotFocus) \
  H(txtWritten, GotFocus)   H(txtCinematographer, GotFocus) H(txtMusic, GotFocus)   H(txtChoreography, GotFocus) \
  H(txtCostume, GotFocus)   H(txtSetDirection, GotFocus)    H(txtSound, GotFocus)   H(txtPackage, GotFocus) \
  H(txtPurchase, GotFocus)  H(txtAwards, GotFocus)          H(txtCost, GotFocus)    H(txtRatings, GotFocus)
/* screen/entry.cpp: fields that refuse a click in view and keep the focus */
#define FIELD_CLICK_HANDLERS(H) \
  H(txtDirector, Click) \
  H(txtStar1, Click) H(txtStar2, Click) H(txtStar3, Click) H(txtStar4, Click) H(txtStar5, Click) H(txtStar6, Click)
/* find/find_menu.cpp: the field searches, which differ by their rows in find/field_search.h */
#define SEARCH_HANDLERS(H) \
  H(mnuFindTitle, Click) H(mnuFindDirector, Click) H(mnuFindStar, Click) H(mnuProducer, Click) H(mnuCinema, Click) \
  H(mnuWriter, Click)    H(mnuMusic, Click)        H(mnuArt, Click)      H(mnuDance, Click)    H(mnuCostume, Click) \
  H(mnuAwards, Click)    H(mnuMPAA, Click)         H(mnuSound, Click)

#define SCREEN_HANDLERS(H) \
  /* frmPage1.cpp */       H(Toolbar1, MouseMove) H(lblsorted, MouseMove) \
  /* save.cpp */           H(cmdSave, Click) H(mnuSave, Click) \
  /* new_record.cpp */     H(cmdNew, Click) \
  /* edit_reset.cpp */     H(cmdEdit, Click) H(cmdReset, Click) \
  /* delete_record.cpp */  H(cmdDelete, Click) \
  /* page_switch.cpp */    H(optNotesoff, Click) H(optnoteson, Click) \
  /* sort_run.cpp */       H(cmdSort, Click) H(mnuSort, Click) \
  /* closing.cpp */        H(mnuExit, Click) \
  /* other_windows.cpp */  H(mnuCopy, Click) H(mnuHelp, Click) \
  /* coded_rules.cpp */    H(txtFormat, Change) H(txtLetter, Change) H(txtCLV1, Change) H(txtColor1, Change) \
                           H(txtGenre, Change)  H(txtRating, Change) \
  /* entry.cpp */          H(txtTitle, Click) H(txtTitle, MouseUp) H(txtLabel, GotFocus) H(txtNumReel, Click) \
                           H(txtGenreList, LostFocus) H(txtYear, GotFocus) H(txtYear, Change) H(txtYear, LostFocus) \
                           H(txtProducer, GotFocus) H(txtSound, LostFocus) H(txtAwards, Click) \
  /* last_field.cpp */     H(txtRatings, LostFocus) \
  /* format_list.cpp */    H(txtFormat, GotFocus) H(txtFormat, Click) H(txtFormat, MouseMove) H(txtFormat, LostFocus) \
                           H(List3, Click) H(List3, GotFocus) H(List3, KeyPress) H(List3, MouseDown) H(List3, LostFocus) \
                           H(txtGenre, GotFocus) H(txtGenre, Click) \
                           H(List1, Click) H(List1, GotFocus) H(List1, KeyPress) H(List1, MouseDown) H(List1, LostFocus) \
  /* disc_lists.cpp */     H(txtLetter, GotFocus) H(txtLetter, Click) H(txtLetter, KeyPress) H(txtLetter, MouseMove) \
                           H(List4, Click) H(List4, GotFocus) H(List4, KeyPress) H(List4, MouseDown) H(List4, LostFocus) \
                           H(txtCLV1, GotFocus) H(txtCLV1, Click) H(txtCLV1, KeyPress) H(txtCLV1, MouseMove) \
                           H(List5, Click) H(List5, GotFocus) H(List5, KeyPress) H(List5, MouseDown) H(List5, LostFocus) \
                           H(txtColor1, GotFocus) H(txtColor1, Click) H(txtColor1, KeyPress) H(txtColor1, MouseMove) \
                           H(txtColor1, LostFocus) \
                           H(List6, Click) H(List6, GotFocus) H(List6, KeyPress) H(List6, MouseDown) H(List6, LostFocus) \
  /* rating_list.cpp */    H(txtRating, GotFocus) H(txtRating, Click) \
                           H(List2, Click) H(List2, KeyPress) H(List2, MouseDown) H(List2, LostFocus) \
  POINTER_HANDLERS(H) FIELD_FOCUS_HANDLERS(H) FIELD_CLICK_HANDLERS(H)

#define BROWSE_HANDLERS(H) \
  /* step.cpp */           H(cmdNext, Click) H(cmdPrevious, Click) \
  /* alpha_views.cpp */    H(mnuByTitle, Click) H(mnuByDVD, Click) H(mnuByLaser, Click) H(mnuByVHS, Click) \
  /* twenty_rows.cpp */    H(mnuAllTitles, Click) H(mnualldvd, Click) H(mnualllas, Click) H(mnuAllVHS, Click) \
                           H(mnuFindAllGenre, Click) H(cmdNext20, Click) \
  /* page_back.cpp */      H(cmdPrev20, Click) H(cmdPrev20, GotFocus) \
  /* genre_view.cpp */     H(mnuFindGenre, Click)

#define FIND_HANDLERS(H) \
  /* find_menu.cpp */      H(cmdMatch, Click) \
  /* jumps.cpp */          H(mnuFile, Click) H(mnuLast, Click) H(mnuLastEntry, Click) \
  SEARCH_HANDLERS(H)

#define REPORT_HANDLERS(H) \
  /* library_menu.cpp */   H(mnuPrint2, Click) H(mnuAll, Click) H(mnuShort, Click) H(mnuDVD, Click) H(mnuLaser, Click) \
                           H(mnuVHS, Click) H(mnuDirector, Click) H(mnuStars, Click) H(mnuGenre, Click)

#define PREFS_HANDLERS(H) \
  /* auto_functions.cpp */ H(mnuAutoSave, Click) H(mnuAutoSort, Click) \
  /* colours.cpp */        H(mnuBGColors, Click) H(mnuTxtBoxColor, Click) H(mnuTxtColor, Click) H(mnuMessColor, Click) \
                           H(mnudefault, Click)

#define CONTROL_HANDLERS(H) \
  SCREEN_HANDLERS(H) BROWSE_HANDLERS(H) FIND_HANDLERS(H) REPORT_HANDLERS(H) PREFS_HANDLERS(H)

// clang-format on
