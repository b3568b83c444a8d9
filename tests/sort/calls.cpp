// Compares with the reference pass by pass.
#include "tests/sort/calls.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "tests/kit/source_tree.h"
#include "tests/story/sort_reference.h"
#include "tests/story/world.h"

namespace sort {
namespace {

// In the order of the reference's pairs.
constexpr std::string_view Tests[] = {"1,40,C,GT,\"000000\"", "266,1,C,EQ,\"D\"", "266,1,C,EQ,\"L\"",
                                      "266,1,C,EQ,\"V\""};

}  // namespace

std::string StatementOfPass(std::size_t pass) {
  if (pass >= std::size(Tests)) return "";
  std::string statement = "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(";
  return statement.append(Tests[pass]).append(") Record(649)");
}

Result SortOn(runtime::Disk& disk, std::string_view output, std::string_view statement, const Limits& limits) {
  Sorter sorter(disk, limits);
  return SortWith(sorter, output, statement);
}

Result SortWith(Sorter& sorter, std::string_view output, std::string_view statement, std::string_view next) {
  return sorter.Sort("Recpra.Dat", output, statement, next);
}

std::string DeliveredWeights() {
  static const std::string weights = story::ReadBytes(kit::DeliveredFolder() / "UPPER.ALT").value();
  return weights;
}

kit::Folder FolderWith(const std::string& master) {
  return {{"Recpra.Dat", master}, {"UPPER.ALT", DeliveredWeights()}};
}

std::string FileOn(const kit::MemoryDisk& disk, const std::string& name) {
  kit::Folder content = disk.Content();
  auto file = content.find(name);
  return file == content.end() ? "" : file->second;
}

std::string Leftovers(const kit::MemoryDisk& disk) {
  std::string names;
  for (const auto& [name, bytes] : disk.Content()) {
    if (!kit::FolderOf(name).empty()) names += name + " ";
  }
  return names;
}

namespace {

using OnePass = std::function<Result(runtime::Disk&, std::string_view output, std::size_t pass)>;

void ExpectPassesAsReference(const std::string& master, const OnePass& sort) {
  kit::MemoryDisk memory(FolderWith(master));
  SharedDisk disk(memory);
  const auto pairs = story::SortedPairs(master, DeliveredWeights());
  for (std::size_t pass = 0; pass < std::size(Tests); ++pass) {
    Result outcome = sort(disk, pairs[pass].KeyFile, pass);
    ASSERT_EQ(outcome.Status, Status::Done) << pairs[pass].KeyFile;
    ASSERT_EQ(" " + std::to_string(outcome.Records) + "\r\n", pairs[pass].CountBytes) << pairs[pass].KeyFile;
    ASSERT_TRUE(FileOn(memory, pairs[pass].KeyFile) == pairs[pass].KeyBytes) << pairs[pass].KeyFile << " differs";
  }
  ASSERT_EQ(FileOn(memory, "Recpra.Dat"), master);
  ASSERT_EQ(Leftovers(memory), "");
}

}  // namespace

void ExpectAsReference(const std::string& master, const Limits& limits) {
  ExpectPassesAsReference(master, [&](runtime::Disk& disk, std::string_view output, std::size_t pass) {
    return SortOn(disk, output, StatementOfPass(pass), limits);
  });
  for (bool told : {false, true}) {
    std::optional<Sorter> sorter;
    ExpectPassesAsReference(master, [&](runtime::Disk& disk, std::string_view output, std::size_t pass) {
      if (!sorter) sorter.emplace(disk, limits);
      return SortWith(*sorter, output, StatementOfPass(pass), told ? StatementOfPass(pass + 1) : "");
    });
  }
}

}  // namespace sort
