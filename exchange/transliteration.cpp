// One word for each character of a block of Unicode, in its order.
#include <algorithm>
#include <array>

#include "exchange/film_text.h"

namespace exchange {
namespace {

// clang-format off
struct Block {
  char32_t First, Last;
  std::string_view Words;  // one after another, a blank between
};

constexpr Block Blocks[] = {
  // Latin Extended-A
  { 0x0100, 0x017F,
    "A a A a A a C c C c C c C c D d D d E e E e E e E e E e G g G g "
    "G g G g H h H h I i I i I i I i I i IJ ij J j K k k L l L l L l L "
    "l L l N n N n N n 'n N n O o O o O o ? ? R r R r R r S s S s S s "
    "S s T t T t T t U u U u U u U u U u U u W w Y y Y Z z Z z Z z s" },
  // Latin Extended-B
  { 0x0180, 0x024F,
    "b ? ? ? ? ? ? ? ? D ? ? ? ? ? E ? ? ? ? ? ? ? I ? ? ? ? ? ? ? ? "
    "O o ? ? ? ? ? ? ? ? ? ? ? ? ? U u ? ? ? ? Z z ? ? ? ? ? ? ? ? ? "
    "? ? ? ? DZ Dz dz LJ Lj lj NJ Nj nj A a I i O o U u U u U u U u U u ? A a "
    "A a ? ? ? ? G g K k O o O o ? ? j DZ Dz dz G g ? ? N n A a ? ? ? ? "
    "A a A a E e E e I i I i O o O o R r R r U u U u S s T t ? ? H h "
    "? ? ? ? ? ? A a E e O o O o O o O o Y y ? ? ? ? ? ? ? ? ? ? ? ? "
    "? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ?" },
  // Greek
  { 0x0386, 0x03CE,
    "A ? E I I ? O ? Y O i A V G D E Z I Th I K L M N X O P R ? S T Y "
    "F Ch Ps O I Y a e i i y a v g d e z i th i k l m n x o p r s s t y "
    "f ch ps o i y o y o" },
  // Cyrillic
  { 0x0400, 0x045F,
    "E E Dj G Ye Dz I Yi J Lj Nj C K I U Dz A B V G D E Zh Z I Y K L M N O P "
    "R S T U F Kh Ts Ch Sh Shch ' Y ' E Yu Ya a b v g d e zh z i y k l m n o p "
    "r s t u f kh ts ch sh shch ' y ' e yu ya e e dj g ye dz i yi j lj nj c k i u dz" },
  // Cyrillic, one more letter
  { 0x0490, 0x0491,
    "G g" },
  // Latin Extended Additional
  { 0x1E00, 0x1EFF,
    "A a B b B b B b C c D d D d D d D d D d E e E e E e E e E e F f "
    "G g H h H h H h H h H h I i I i K k K k K k L l L l L l L l M m "
    "M m M m N n N n N n N n O o O o O o O o P p P p R r R r R r R r "
    "S s S s S s S s S s T t T t T t T t U u U u U u U u U u V v V v "
    "W w W w W w W w W w X x X x Y y Z z Z z Z z h t w y ? s ? ? SS ? "
    "A a A a A a A a A a A a A a A a A a A a A a A a E e E e E e E e "
    "E e E e E e E e I i I i O o O o O o O o O o O o O o O o O o O o "
    "O o O o U u U u U u U u U u U u U u Y y Y y Y y Y y ? ? ? ? ? ?" },
};

struct Single {
  char32_t Character;
  std::string_view Word;
};

// In their order: marks, blanks of other widths, characters without width, figures.
constexpr Single Singles[] = {
  { 0x2000, " " }, { 0x2001, " " }, { 0x2002, " " }, { 0x2003, " " }, { 0x2004, " " }, { 0x2005, " " }, { 0x2006, " " },
  { 0x2007, " " }, { 0x2008, " " }, { 0x2009, " " }, { 0x200A, " " }, { 0x200B, "" }, { 0x200C, "" }, { 0x200D, "" },
  { 0x200E, "" }, { 0x200F, "" }, { 0x2010, "-" }, { 0x2011, "-" }, { 0x2012, "-" }, { 0x2015, "-" }, { 0x2016, "|" },
  { 0x201B, "'" }, { 0x201F, "\"" }, { 0x202F, " " }, { 0x2032, "'" }, { 0x2033, "\"" }, { 0x2044, "/" }, { 0x205F, " " },
  { 0x2060, "" }, { 0x2070, "0" }, { 0x2074, "4" }, { 0x2075, "5" }, { 0x2076, "6" }, { 0x2077, "7" }, { 0x2078, "8" },
  { 0x2079, "9" }, { 0x2080, "0" }, { 0x2081, "1" }, { 0x2082, "2" }, { 0x2083, "3" }, { 0x2084, "4" }, { 0x2085, "5" },
  { 0x2086, "6" }, { 0x2087, "7" }, { 0x2088, "8" }, { 0x2089, "9" }, { 0x20AB, "d" }, { 0x2116, "No" }, { 0x2117, "(P)" },
  { 0x2153, "1/3" }, { 0x2154, "2/3" }, { 0x215B, "1/8" }, { 0x215C, "3/8" }, { 0x215D, "5/8" }, { 0x215E, "7/8" },
  { 0x2160, "I" }, { 0x2161, "II" }, { 0x2162, "III" }, { 0x2163, "IV" }, { 0x2164, "V" }, { 0x2165, "VI" }, { 0x2166, "VII" },
  { 0x2167, "VIII" }, { 0x2168, "IX" }, { 0x2169, "X" }, { 0x216A, "XI" }, { 0x216B, "XII" }, { 0x2190, "<-" }, { 0x2192, "->" },
  { 0x2212, "-" }, { 0x2215, "/" }, { 0x2219, "." }, { 0x221E, "inf" }, { 0x2260, "!=" }, { 0x2264, "<=" }, { 0x2265, ">=" },
  { 0x266D, "b" }, { 0x266F, "#" }, { 0x3000, " " }, { 0xFEFF, "" }, { 0xFF01, "!" }, { 0xFF1A, ":" },
};
// clang-format on

// Combining marks vanish: the letter before them stays.
constexpr char32_t FirstMark = 0x300, LastMark = 0x36F;

std::string_view WordAt(std::string_view words, std::size_t number) {
  for (; number > 0; --number) words.remove_prefix(words.find(' ') + 1);
  return words.substr(0, words.find(' '));
}

}  // namespace

std::string_view Transliteration(char32_t character) {
  if (character >= FirstMark && character <= LastMark) return "";
  for (const Block& block : Blocks) {
    if (character >= block.First && character <= block.Last) return WordAt(block.Words, character - block.First);
  }
  const auto* single = std::lower_bound(std::begin(Singles), std::end(Singles), character,
                                        [](const Single& row, char32_t sought) { return row.Character < sought; });
  return single != std::end(Singles) && single->Character == character ? single->Word : "?";
}

}  // namespace exchange
