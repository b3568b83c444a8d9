// The table at the head of a story file. Each row is a story of its own: the lines below the table, with the row's
// values in place of {COLUMN}. Two tables with the same rows side by side keep a wide table readable.
#pragma once

#include <vector>

#include "tests/story/story_file.h"

namespace story {

// Without a table one story, as the lines are; braces then mean nothing. Throws Difference for a table without rows, a
// row of another length, a row or column named twice, a column that nothing uses (the first one names the rows and may
// stay unused beside others), a {COLUMN} that the table lacks, and a table elsewhere than at the head.
std::vector<Story> ExpandTable(std::vector<Line> lines);

}  // namespace story
