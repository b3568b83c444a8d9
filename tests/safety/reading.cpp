// Each control by its name.
#include "tests/safety/reading.h"

#include <array>

namespace safety {

std::string ReadersDesk::InputBox(std::string_view, std::string_view) {
  static constexpr std::array<std::string_view, 16> answers = {"",   "1", "7", "9",    "30",     "0",  "-1", "99999",
                                                               "CO", "f", "F", "Film", "Film 7", "DR", "V",  "  "};
  return std::string(answers[random_() % answers.size()]);
}

forms::Answer ReadersDesk::AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) {
  if (buttons == forms::Buttons::Ok) return forms::Answer::Ok;
  return random_() % 2 == 0 ? forms::Answer::Yes : forms::Answer::No;
}

#define READER(name) ([](frmPage1& screen) -> forms::Control& { return screen.name; })

const std::vector<Reader>& Readers() {
  static const std::vector<Reader> readers = {
      // Browsing.
      READER(cmdNext), READER(cmdPrevious), READER(mnuByTitle), READER(mnuByDVD), READER(mnuByLaser), READER(mnuByVHS),
      READER(mnuAllTitles), READER(mnualldvd), READER(mnualllas), READER(mnuAllVHS), READER(mnuFindAllGenre),
      READER(cmdNext20), READER(cmdPrev20), READER(mnuFindGenre), READER(optNotesoff), READER(optnoteson),
      READER(cmdReset),
      // Searching.
      READER(cmdMatch), READER(mnuFile), READER(mnuLast), READER(mnuLastEntry), READER(mnuFindTitle),
      READER(mnuFindDirector), READER(mnuFindStar), READER(mnuProducer), READER(mnuCinema), READER(mnuWriter),
      READER(mnuMusic), READER(mnuArt), READER(mnuDance), READER(mnuCostume), READER(mnuAwards), READER(mnuMPAA),
      READER(mnuSound),
      // Printing.
      READER(mnuPrint2), READER(mnuAll), READER(mnuShort), READER(mnuDVD), READER(mnuLaser), READER(mnuVHS),
      READER(mnuDirector), READER(mnuStars), READER(mnuGenre)};
  return readers;
}

void Click(Program& program, Reader reader) {
  program.Deliver([&] { program.RecordScreen.UserClick(reader(program.RecordScreen)); });
}

}  // namespace safety
