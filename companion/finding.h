// What `check` finds: where, what is wrong, what to do, and how it can be mended.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/film_record.h"

namespace companion {

// A field of one film, or of one file; what it holds and is to hold. No judgement is needed.
struct Mend {
  store::FilmField Field = store::FilmField::Title;  // of a film
  std::string Bytes;                                 // what it is to hold; of a setting, its line
};

struct Finding {
  std::int64_t Record = 0;  // 0: none
  std::string Where;        // a field, or a file
  std::string What;         // a clause
  std::string ToDo;         // a sentence, or more
  std::optional<Mend> How = std::nullopt;
  bool SortMends = false;
};

using Findings = std::vector<Finding>;

}  // namespace companion
