// Writing, marking and checking the block.
#include "runtime/journal_block.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "runtime/checksum.h"

namespace runtime {
namespace {

constexpr std::string_view OpenMark = "REELORA1";
constexpr std::string_view DoneMark = "REELDONE";
constexpr std::size_t NameWidth = 32;
constexpr std::int64_t LongestFile = std::int64_t{1} << 53;

// The part of the block before the two images.
struct BlockHead {
  std::array<char, 8> Mark;
  std::array<char, NameWidth> Name;
  std::int64_t Slot;
  std::int64_t LengthBefore;
  std::int64_t RecordLength;
};
static_assert(OpenMark.size() == sizeof(BlockHead::Mark) && DoneMark.size() == sizeof(BlockHead::Mark));

std::array<char, NameWidth> NameOf(std::string_view file) {
  std::array<char, NameWidth> name{};
  file.copy(name.data(), name.size());
  return name;
}

bool MakesSense(const BlockHead& head, std::string_view file_name, std::int64_t record_length) {
  return head.Name == NameOf(file_name) && head.RecordLength == record_length && head.LengthBefore >= 0 &&
         head.LengthBefore <= LongestFile && head.Slot >= 1 && head.Slot <= LongestFile / record_length &&
         (head.Slot - 1) * record_length - head.LengthBefore <= WidestGap;
}

// What the journal begins with, as long as a block with records of that length, or shorter; nothing if it is missing.
std::optional<std::string> ReadBytes(Disk& disk, std::size_t record_length) {
  try {
    OpenFile journal(disk, InSafetyFolder("journal"), Disk::Mode::Read);
    std::string bytes(sizeof(BlockHead) + 2 * record_length + sizeof(std::uint64_t), '\0');
    bytes.resize(journal.Read(bytes.data(), bytes.size(), 0));
    return bytes;
  } catch (const Failure& failure) {
    if (failure.Name == FileNotFound) return std::nullopt;
    throw;
  }
}

}  // namespace

std::int64_t JournalBlock::LengthAfter() const {
  return std::max(LengthBefore, Offset() + static_cast<std::int64_t>(NewImage.size()));
}

OpenFile OpenJournal(Disk& disk) { return {disk, InSafetyFolder("journal"), Disk::Mode::Create}; }

void WriteBlock(const OpenFile& journal, const JournalBlock& block) {
  BlockHead head{
      {}, NameOf(block.FileName), block.Slot, block.LengthBefore, static_cast<std::int64_t>(block.NewImage.size())};
  OpenMark.copy(head.Mark.data(), OpenMark.size());
  std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
  bytes += block.OldImage + block.NewImage;
  const std::uint64_t sum = Checksum(bytes);
  bytes.append(reinterpret_cast<const char*>(&sum), sizeof sum);
  journal.Write(bytes, 0);
}

void MarkDone(const OpenFile& journal) { journal.Write(DoneMark, 0); }

FoundJournal ReadJournal(Disk& disk, std::string_view file_name, int record_length) {
  const auto record = static_cast<std::size_t>(record_length);
  std::optional<std::string> bytes = ReadBytes(disk, record);
  if (!bytes) return {};
  if (bytes->starts_with(DoneMark)) return {true, std::nullopt};
  if (bytes->size() < sizeof(BlockHead) + 2 * record + sizeof(std::uint64_t)) return {};
  const std::string_view body = std::string_view(*bytes).substr(0, bytes->size() - sizeof(std::uint64_t));
  std::uint64_t sum = 0;
  std::memcpy(&sum, bytes->data() + body.size(), sizeof sum);
  BlockHead head{};
  std::memcpy(&head, bytes->data(), sizeof head);
  if (!body.starts_with(OpenMark) || sum != Checksum(body) || !MakesSense(head, file_name, record_length)) return {};
  return {false, JournalBlock{std::string(file_name), head.Slot, head.LengthBefore,
                              std::string(body.substr(sizeof head, record)),
                              std::string(body.substr(sizeof head + record, record))}};
}

}  // namespace runtime
