// What `check` finds: where, what is wrong, what to do, and how it can be fixed.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/film_record.h"

namespace companion {

// What a field of a film, or the line of a setting, should contain if that needs no judgement.
struct Mend {
  store::FilmField Field = store::FilmField::Title;  // of a film
  std::string Bytes;
};

struct Finding {
  std::int64_t Record = 0;  // 0: none
  std::string Where;        // a field, or a file
  std::string What;         // a clause
  std::string ToDo;         // a sentence, or more
  std::optional<Mend> How = std::nullopt;
  bool SortMends = false;
  bool NextFixMends = false;  // once those that are told are mended
};

using Findings = std::vector<Finding>;

}  // namespace companion
