#include "launcher/arguments.h"

#include <gtest/gtest.h>

namespace launcher {
namespace {

Arguments Read(const std::vector<std::string>& arguments) { return ReadArguments(arguments); }

TEST(ReadArguments, NoneMeansTheLastCollection) { EXPECT_EQ(Read({}).For, Wish::Last); }

TEST(ReadArguments, AFolderMayHaveAnyName) {
  for (const char* name : {"films", "my films", "it's \"mine\"", "a\nb", "../films", "/films", "./-films"}) {
    EXPECT_EQ(Read({name}).For, Wish::Folder);
    EXPECT_EQ(Read({name}).Folder, name);
  }
  EXPECT_EQ(Read({"--", "-films"}).Folder, "-films");
  EXPECT_EQ(Read({"--", "--"}).Folder, "--");
}

TEST(ReadArguments, KnowsItsOptions) {
  EXPECT_EQ(Read({"--choose"}).For, Wish::Choose);
  EXPECT_EQ(Read({"--sample"}).For, Wish::Sample);
  EXPECT_EQ(Read({"--help"}).For, Wish::Help);
  EXPECT_EQ(Read({"--version"}).For, Wish::Version);
}

TEST(ReadArguments, SaysWhatIsWrong) {
  EXPECT_EQ(Read({"-x"}).Text, "There is no option -x.");
  EXPECT_EQ(Read({"--samples"}).Text, "There is no option --samples.");
  EXPECT_EQ(Read({""}).Text, "The name of the folder is empty.");
  EXPECT_EQ(Read({"a", "b"}).Text, "Only one folder or one option can be given.");
  EXPECT_EQ(Read({"--sample", "a"}).Text, "Only one folder or one option can be given.");
  for (const Arguments& read : {Read({"-x"}), Read({""}), Read({"a", "b"})}) EXPECT_EQ(read.For, Wish::Wrong);
}

}  // namespace
}  // namespace launcher
