#include "store/sort_pass.h"

namespace store {

std::string StatementOf(const SortPass& pass) {
  std::string statement("S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(");
  return statement.append(pass.IncludeTest).append("\"").append(pass.IncludeValue).append("\"").append(pass.Tail);
}

std::string StatementAfter(const SortPass& pass) {
  return &pass == &SortPasses.back() ? "" : StatementOf(*(&pass + 1));
}

}  // namespace store
