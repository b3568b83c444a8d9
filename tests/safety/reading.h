// What a user can do without writing: browse, search, list, print.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "app/program.h"
#include "tests/kit/quiet_desk.h"

namespace safety {

// Answers at random: words that are in titles, numbers of records, codes of genres and what is none of these.
class ReadersDesk final : public kit::QuietDesk {
 public:
  explicit ReadersDesk(unsigned seed) : random_(seed) {}
  int Printed = 0;  // jobs

  std::string InputBox(std::string_view, std::string_view) override;
  void Print(const runtime::PrintJob&) override { ++Printed; }

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) override;

 private:
  std::mt19937 random_;
};

// The controls that read: buttons, menu items, and the switch of the pages.
using Reader = forms::Control& (*)(frmPage1&);
const std::vector<Reader>& Readers();
void Click(Program& program, Reader reader);

}  // namespace safety
