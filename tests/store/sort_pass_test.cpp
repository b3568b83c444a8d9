// The passes follow each other in the order in which their statements are announced.
#include "store/sort_pass.h"

#include <gtest/gtest.h>

namespace store {
namespace {

TEST(SortPass, KnowsTheStatementAfterIt) {
  EXPECT_EQ(StatementAfter(SortPasses[0]),
            "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"D\") Record(649) ");
  EXPECT_EQ(StatementAfter(SortPasses[1]), StatementOf(SortPasses[2]));
  EXPECT_EQ(StatementAfter(SortPasses[2]), StatementOf(SortPasses[3]));
  EXPECT_EQ(StatementAfter(SortPasses[3]), "");
}

}  // namespace
}  // namespace store
