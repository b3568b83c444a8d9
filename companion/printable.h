// Texts from the files, in Windows-1252, as UTF-8 that cannot steer a terminal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/film_record.h"

namespace companion {

// Control characters become question marks.
std::string Printable(std::string_view text);
// Without surrounding blanks; "nothing" for a free slot.
std::string TitleOf(const store::FilmRecord& film);
// For tab-separated values: every character stays, but a control character becomes \t, \n, \r or \xHH, and \ becomes
// \\.
std::string Escaped(std::string_view text);

// The columns that a UTF-8 text of the code page takes.
std::size_t Width(std::string_view utf8);
// Cut to that many columns, "…" at the end if it was cut, or padded with blanks.
std::string Padded(std::string_view utf8, std::size_t columns);

// "1 film", "2 films".
std::string Counted(std::int64_t count, std::string_view thing);

}  // namespace companion
