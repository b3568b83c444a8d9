// The table of articles and the rule.
#include "store/article.h"

#include <algorithm>
#include <string>

#include "runtime/text.h"

namespace store {
namespace {

// The leading articles, all tried, even after a match.
struct ArticleRow {
  std::string_view Article;  // with its blank
  std::string_view Suffix;
};
// clang-format off
constexpr ArticleRow Articles[] = {
  { "The ", ", The" },
  { "An ",  ", An" },
  { "A ",   ", A" },
  { "THE ", ", THE" },
  { "AN ",  ", AN" },
  { "A ",   ", A" },  // again: catches an A exposed by the rows above
};
// clang-format on

}  // namespace

std::size_t TitleEndOf(const FilmRecord& film) { return runtime::Position(film.Get(FilmField::Title), "  "); }

// The rest of a title is always taken from what was typed, not from the field that an earlier test has changed.
void MoveArticle(FilmRecord& film, std::string_view typed, std::size_t title_end) {
  for (const ArticleRow& row : Articles) {
    if (!film.Get(FilmField::Title).starts_with(row.Article)) continue;
    std::string_view rest = typed.substr(std::min(row.Article.size(), typed.size()), title_end);
    film.Set(FilmField::Title, std::string(rest).append(row.Suffix));
  }
}

}  // namespace store
