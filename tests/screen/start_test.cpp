// What the record screen says when it comes up while a film is new.
#include <gtest/gtest.h>

#include "app/program.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"

namespace {

TEST(Start, WithANewFilmTellsWhenToAddNotes) {
  kit::MemoryDisk disk(kit::FolderOfFilms(2));
  kit::AnsweringDesk desk;
  Program program(desk, disk);
  program.RecordScreen.NewMode = 1;
  program.StartRecordScreen();
  EXPECT_EQ(
      program.RecordScreen.lblSorting.Caption(),
      " Add notes last.  Click \"NOTES ON\" or Alt \"T\", and click \"EDIT\" button, or Alt \"E\".  Click \"SAVE\", or "
      "Alt \"S\", click \"Notes Off\", or ALT \"T\".");
}

}  // namespace
