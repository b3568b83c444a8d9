// Any text as a file of stories: it is refused with a line number of the file, or each of its lines written and read
// again is the same.
#include <algorithm>

#include "tests/fuzz/fuzzing.h"
#include "tests/story/story_file.h"

namespace {

void CheckLine(const story::Line& line) {
  try {
    const story::Line again = story::ParseLine(line.Notation(), line.Number);
    fuzz::Require(again.Verb == line.Verb && again.Arguments == line.Arguments && again.As == line.As,
                  "a line written and read again is the same");
  } catch (const story::Difference&) {
    fuzz::Require(false, "a line that was read can be read again");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Input(data, size).Rest();
  std::vector<story::Story> stories;
  try {
    stories = story::ParseStories(text);
  } catch (const story::Difference& difference) {
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    fuzz::Require(difference.Line >= 0 && difference.Line <= lines && !difference.What.empty(),
                  "a refusal names a line and says why");
  }
  for (const story::Story& one : stories) {
    for (const story::Line& line : one.Lines) CheckLine(line);
  }
  return 0;
}
