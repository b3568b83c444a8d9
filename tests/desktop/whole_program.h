// The whole program drawn, on films in memory.
#pragma once

#include <QTest>

#include "app/program.h"
#include "desktop/film_words.h"
#include "desktop/stack_view.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/quiet_desk.h"

namespace desktop {

class WholeProgram {
 public:
  WholeProgram() {
    View.SayAlso([this] { return News.Take(); });
    View.Deliver([&] { Program.StartRecordScreen(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Form()));
    QCoreApplication::processEvents();
    Form().Speech().Say();  // what it has at the start
  }

  frmPage1& Screen() { return Program.RecordScreen; }
  FormView& Form() { return *View.ViewOf(Screen()); }
  void Click(forms::Control& control) {
    View.Deliver([&] { Screen().UserClick(control); });
  }
  void OpenList() {
    Click(Screen().cmdSort);
    Click(Screen().mnuAllTitles);
    ASSERT_TRUE(Screen().Text1[0].Visible());
  }
  // All drawn at once: the opening windows and the copy window beside the record screen.
  std::vector<FormView*> OpenAll() {
    std::vector<FormView*> all{&Form()};
    for (forms::Window* window :
         std::initializer_list<forms::Window*>{&Program.Opener, &Program.Info, &Program.QuickStart, &Program.Copy}) {
      window->HiddenBehind = nullptr;
      View.Deliver([&] { window->Show(); });
      all.push_back(View.ViewOf(*window));
    }
    return all;
  }

  kit::MemoryDisk Disk{kit::FolderOfFilms(25)};
  kit::QuietDesk Desk;
  ::Program Program{Desk, Disk};
  FilmNews News{Program.RecordScreen};
  StackView View{Program.Windows, [this](const std::function<void()>& event) { Program.Deliver(event); }};
};

}  // namespace desktop
