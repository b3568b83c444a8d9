// make_sample FILMS_TXT RECPRA_DAT: makes the master file of a collection that is written as text. Reports every fault
// of the text as FILE:LINE on standard error; with any fault it writes nothing and exits with 1.
#include <fstream>
#include <iostream>

#include "tools/film_text.h"

namespace {

int Fail(std::string_view what, std::string_view file) {
  std::cerr << file << ": " << what << '\n';
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) return Fail("usage: make_sample FILMS_TXT RECPRA_DAT", "make_sample");
  std::ifstream source(arguments[1], std::ios::binary);
  if (!source) return Fail("cannot be read", arguments[1]);
  tools::FilmText films = tools::ReadFilmText(source, arguments[1]);
  if (source.bad()) return Fail("cannot be read", arguments[1]);
  std::cerr << films.Faults;
  if (!films.Faults.empty()) return 1;

  std::ofstream target(arguments[2], std::ios::binary);
  target << films.MasterFile << std::flush;
  return target ? 0 : Fail("cannot be written", arguments[2]);
}
