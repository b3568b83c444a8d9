// What a collection consists of: films by format, genre and decade, and what they cost.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/films.h"

namespace exchange {

struct Share {
  std::string Name;   // UTF-8
  std::string Value;  // the word, code or decade itself; "" for none
  std::int64_t Films = 0;
};

struct Summary {
  std::int64_t Films = 0;
  std::int64_t Minutes = 0;
  std::int64_t Timed = 0;  // films with a running time
  std::int64_t Cents = 0;
  std::int64_t Priced = 0;             // films with a price
  std::vector<Share> Formats, Genres;  // the largest first
  std::vector<Share> Decades;          // the oldest first, "no year" last
};

Summary Summarize(const Films& films);

// How many films, how long they run, what they cost.
std::string Headline(const Summary& summary);

// A price in cents: the first number in the text, its decimals after a point or a comma; -1 if there is none.
std::int64_t CentsOf(std::string_view text);
// "1,234.50"
std::string MoneyText(std::int64_t cents);
// "32,767"
std::string Grouped(std::int64_t number);

}  // namespace exchange
