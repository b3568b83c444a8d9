// One pass over the films.
#include "exchange/summary.h"

#include <algorithm>
#include <charconv>

#include "exchange/coded_words.h"
#include "runtime/text.h"

namespace exchange {
namespace {

using store::FilmField;

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

// -1 unless the whole text is a number.
std::int64_t NumberOf(std::string_view text) {
  text = runtime::Trim(text);
  std::int64_t number = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

// The decade of a year, "" for none.
std::string Decade(std::string_view year) {
  const std::int64_t number = NumberOf(year);
  return number >= 1000 ? std::to_string(number / 10 * 10) + "s" : "";
}

std::string WordOf(const store::FilmRecord& film, FilmField field) {
  std::string word;
  AppendWord(film, field, word);
  return word;
}

using Counts = std::map<std::string, std::int64_t>;

// none: the name of the films without a value, which are the last of equals.
std::vector<Share> InOrder(const Counts& counts, std::string_view none) {
  std::vector<Share> shares;
  for (const auto& [value, films] : counts) shares.push_back({value.empty() ? std::string(none) : value, value, films});
  if (!shares.empty() && shares[0].Value.empty()) std::rotate(shares.begin(), shares.begin() + 1, shares.end());
  return shares;
}

std::vector<Share> LargestFirst(const Counts& counts, std::string_view none) {
  std::vector<Share> shares = InOrder(counts, none);
  std::stable_sort(shares.begin(), shares.end(),
                   [](const Share& one, const Share& other) { return one.Films > other.Films; });
  return shares;
}

}  // namespace

Summary Summarize(const Films& films) {
  Summary summary;
  Counts formats, genres, decades;
  films([&](std::int64_t, const store::FilmRecord& film) {
    ++summary.Films;
    ++formats[WordOf(film, FilmField::Format)];
    ++genres[WordOf(film, FilmField::Genre)];
    ++decades[Decade(film.Get(FilmField::Year))];
    if (const std::int64_t minutes = NumberOf(film.Get(FilmField::Time)); minutes > 0) {
      summary.Minutes += minutes;
      ++summary.Timed;
    }
    if (const std::int64_t cents = CentsOf(film.Get(FilmField::Cost)); cents >= 0) {
      summary.Cents += cents;
      ++summary.Priced;
    }
  });
  summary.Formats = LargestFirst(formats, "no format");
  summary.Genres = LargestFirst(genres, "no genre");
  summary.Decades = InOrder(decades, "no year");
  return summary;
}

std::string Headline(const Summary& summary) {
  std::string line = Grouped(summary.Films) + (summary.Films == 1 ? " film" : " films");
  if (summary.Minutes > 0) line += ", " + Grouped(summary.Minutes / 60) + " hours";
  if (summary.Priced == 0) return line;
  return line + ", cost " + MoneyText(summary.Cents) + " (" + Grouped(summary.Priced) + " with a price, " +
         MoneyText(summary.Cents / summary.Priced) + " each)";
}

std::int64_t CentsOf(std::string_view text) {
  while (!text.empty() && !IsDigit(text[0])) text.remove_prefix(1);
  if (text.empty()) return -1;
  std::int64_t cents = 0;
  int decimals = -1;  // -1 in front of the point
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char byte = text[at];
    if (IsDigit(byte)) {
      if (decimals == 2) continue;
      cents = cents * 10 + (byte - '0');
      if (decimals >= 0) ++decimals;
    } else if (byte == '.' || byte == ',') {
      // A comma or point before three digits groups them.
      const std::string_view rest = text.substr(at + 1);
      const std::size_t digits =
          static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), IsDigit) - rest.begin());
      if (digits != 3) decimals = std::max(decimals, 0);
    } else {
      break;
    }
  }
  for (decimals = std::max(decimals, 0); decimals < 2; ++decimals) cents *= 10;
  return cents;
}

std::string Grouped(std::int64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

std::string MoneyText(std::int64_t cents) {
  const std::string decimals = std::to_string(cents % 100 + 100).substr(1);
  return Grouped(cents / 100) + "." + decimals;
}

}  // namespace exchange
