// Finds the row that fits a failure.
#include "desktop/failure_texts.h"

#include <algorithm>
#include <array>

#include "opening/opening_sequence.h"
#include "prefs/colour_groups.h"
#include "store/key_file.h"
#include "store/master_file.h"

namespace desktop {
namespace {

constexpr std::array Keys = {store::TitleKeys, store::DVDKeys, store::LaserKeys, store::VHSKeys};
constexpr std::array<std::string_view, 5> Flags = {"AutoSave", "AutoSort", "Last", FeaturesFlagFile,
                                                   QuickStartFlagFile};

bool IsSetting(std::string_view file) {
  auto is_file = [&](std::string_view name) { return name == file; };
  return std::any_of(Flags.begin(), Flags.end(), is_file) ||
         std::any_of(Keys.begin(), Keys.end(), [&](const store::KeyFile& keys) { return is_file(keys.CountFile); }) ||
         std::any_of(std::begin(prefs::Groups), std::end(prefs::Groups),
                     [&](const prefs::GroupRow& group) { return is_file(group.File); });
}

bool Fits(const FailureTexts& row, const runtime::Failure& failure) {
  return row.Name == failure.Name && (row.Group == FileGroup::Any || row.Group == GroupOf(failure.File)) &&
         (row.SystemError == 0 || row.SystemError == failure.SystemError);
}

}  // namespace

FileGroup GroupOf(std::string_view file) {
  if (file == store::MasterFileName) return FileGroup::Films;
  for (const store::KeyFile& keys : Keys)
    if (file == keys.Name) return FileGroup::Keys;
  return IsSetting(file) ? FileGroup::Settings : FileGroup::Any;
}

const FailureTexts& TextsOf(const runtime::Failure& failure) {
  static constexpr FailureTexts Unknown = {.Name = "", .Safe = SavedSafe, .Next = "Start again."};
  const auto* row = std::find_if(std::begin(FailureTable), std::end(FailureTable),
                                 [&](const FailureTexts& texts) { return Fits(texts, failure); });
  return row == std::end(FailureTable) ? Unknown : *row;
}

}  // namespace desktop
