// A delivery is known by the checksums of what it put into the collection.
#include "launcher/delivered_files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>
#include <string>

#include "runtime/checksum.h"
#include "runtime/whole_io.h"
#include "store/sort_pass.h"

namespace launcher {
namespace {

constexpr std::string_view HelpFile = "Reelora4.HLP";
constexpr std::string_view Updated[] = {store::WeightsFile, HelpFile};
constexpr std::int64_t LongestFile = 4 * 1024 * 1024;  // bytes that are compared

using Checksums = std::map<std::string, std::uint64_t, std::less<>>;

// Empty if there is no such file.
std::string Content(runtime::Disk& disk, const std::string& name) {
  try {
    runtime::OpenFile file(disk, name, runtime::Disk::Mode::Read);
    std::string content(static_cast<std::size_t>(std::min(file.Length(), LongestFile)), '\0');
    content.resize(file.Read(content.data(), content.size(), 0));
    return content;
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
    return "";
  }
}

// A line each: the checksum in hexadecimal digits, a blank, the name. A line of any other form is passed over.
Checksums ReadDelivery(runtime::Disk& collection) {
  Checksums sums;
  std::string text = Content(collection, runtime::InSafetyFolder(DeliveryFile));
  for (std::size_t from = 0; from < text.size();) {
    std::size_t end = std::min(text.find('\n', from), text.size());
    std::string_view line = std::string_view(text).substr(from, end - from);
    std::uint64_t sum = 0;
    auto [stop, error] = std::from_chars(line.data(), line.data() + line.size(), sum, 16);
    std::size_t digits = static_cast<std::size_t>(stop - line.data());
    if (error == std::errc() && digits < line.size() && line[digits] == ' ')
      sums[std::string(line.substr(digits + 1))] = sum;
    from = end + 1;
  }
  return sums;
}

// Without a record the files count as changed by hand, and the next start tries again: nothing is lost if the disk is
// full or cannot be written.
void WriteDelivery(runtime::Disk& collection, const Checksums& sums) {
  std::string text;
  for (const auto& [name, sum] : sums) {
    std::array<char, 16> digits{};
    auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sum, 16).ptr;
    text.append(digits.data(), end).append(" ").append(name).append("\n");
  }
  try {
    runtime::ReplaceUnsynced(collection, DeliveryFile, text);
  } catch (const runtime::Failure&) {
    return;
  }
}

bool IsUpdated(std::string_view name) { return std::ranges::find(Updated, name) != std::end(Updated); }

// Whether the file of the collection gives way to the delivered one.
bool GivesWay(std::string_view name, const std::string& present, const Checksums& sums,
              const std::vector<std::uint64_t>& earlier_help) {
  if (present.empty()) return true;
  if (!IsUpdated(name)) return false;
  const std::uint64_t sum = runtime::Checksum(present);
  if (name == HelpFile && std::ranges::find(earlier_help, sum) != earlier_help.end()) return true;
  auto put = sums.find(name);
  return put != sums.end() && put->second == sum;
}

}  // namespace

const std::vector<std::uint64_t> EarlierHelp{0xC55E0D3CB8FE2906, 0x8A88E39A58BFBF2A, 0xFBA0007D342C9CE5,
                                             0xAB72A1653D18015B, 0x3A8C0159AA438FD4};

std::string NoDeliveredFiles() {
  return "The files that come with Reelora Prima are missing. " + std::string(InstallAgain);
}

std::string EmptyDeliveredFile(const std::string& name) {
  return "The file " + name + " that comes with Reelora Prima is empty. " + std::string(InstallAgain);
}

std::string CompleteCollection(runtime::Disk& delivered, runtime::Disk& collection,
                               const std::vector<std::uint64_t>& earlier_help) {
  const Checksums before = ReadDelivery(collection);
  Checksums sums = before;
  bool put_any = false;
  std::string damaged;
  for (const std::string& name : delivered.List("")) {
    if (name == SampleFolder) continue;
    const std::string content = Content(delivered, name);
    const std::string present = Content(collection, name);
    if (content.empty()) {
      if (present.empty()) damaged = name;
      continue;
    }
    if (content != present) {
      if (!GivesWay(name, present, before, earlier_help)) continue;
      runtime::ReplaceFile(collection, name, content);
      put_any = true;
    }
    if (IsUpdated(name)) sums[name] = runtime::Checksum(content);
  }
  if (put_any) runtime::SyncFolders(collection, runtime::SafetyFolder);
  if (sums != before) WriteDelivery(collection, sums);
  return damaged;
}

}  // namespace launcher
