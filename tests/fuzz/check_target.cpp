// Any collection: a check writes nothing, and once everything has been mended that needs no judgement, nothing is left
// to mend.
#include <stdlib.h>

#include <algorithm>
#include <sstream>

#include "companion/command.h"
#include "store/film_record.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"
#include "tests/kit/passing_disk.h"

namespace {

// For the lock alone.
std::string LockedFolder() {
  static const std::string folder = [] {
    std::string name = "/tmp/fuzz_check.XXXXXX";
    fuzz::Require(mkdtemp(name.data()) != nullptr, "a folder can be made");
    return name;
  }();
  return folder;
}

std::string Run(runtime::Disk& disk, std::vector<std::string> arguments, int highest) {
  arguments.insert(arguments.begin(), {"-C", LockedFolder()});
  std::ostringstream text, errors;
  std::istringstream none;
  companion::Output output{text, errors, none};
  const int status = companion::RunCommand(
      arguments, output, [&](const std::string&) { return std::make_unique<kit::PassingDisk>(disk); });
  fuzz::Require(status <= highest && errors.str().empty(), "a check of files that can be read comes to its end");
  return text.str();
}

// Films of a few bytes each, from any place of the record on.
std::string AnyFilms(fuzz::Input& input) {
  std::string master;
  for (std::size_t films = input.Below(6); films > 0; --films) {
    std::string film(store::RecordLength - 2, ' ');
    film += "\r\n";
    for (std::size_t parts = input.Below(5); parts > 0; --parts) {
      const std::size_t at = input.Flag() ? input.Below(store::RecordLength) : input.Below(42);
      const std::string_view bytes = input.Bytes(input.Below(9));
      film.replace(at, bytes.size(), bytes);
    }
    film.resize(store::RecordLength, ' ');
    master += film;
  }
  if (input.Flag()) master.resize(master.size() - std::min(master.size(), input.Below(store::RecordLength)));
  return master;
}

std::string Weights() {
  std::string weights(256, '\0');
  for (std::size_t at = 0; at < weights.size(); ++at) weights[at] = static_cast<char>(at);
  return weights;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  std::map<std::string, std::string> files = {{"Recpra.Dat", AnyFilms(input)}, {"UPPER.ALT", Weights()}};
  for (const char* name : {"AutoSave", "AutoSort", "Fo1", "BGColor", "Titlepra", "VHSpra"}) {
    if (input.Flag()) files[name] = std::string(input.Bytes(input.Below(6)));
  }
  for (const char* name : {"Titlepra.Dat", "DVDpra.Dat", ".reelora/draft"}) {
    if (input.Flag()) files[name] = std::string(input.Bytes(input.Below(150)));
  }
  fuzz::PlainDisk disk(files);
  Run(disk, {"check"}, companion::Found);
  fuzz::Require(disk.Changes() == 0, "a check writes nothing");
  Run(disk, {"check", "--fix", "--write", "--yes"}, companion::Found);
  const std::string left = Run(disk, {"check", "--json"}, companion::Found);
  fuzz::Require(left.find("\"canBeMended\":true") == std::string::npos, "what can be mended is mended at once");
  return 0;
}
