// How one sort looks at records: what is kept of each, how two compare, and what is written.
//
// Of a kept record stays an entry: its output record, and behind it what else must be compared. The bytes to compare,
// by weight, are taken as windows: numbers of eight bytes each, the first one most significant.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "sort/statement.h"

namespace sort {

class SortLayout {
 public:
  SortLayout(const SortStatement& statement, const Weights& weights);

  // In bytes.
  std::size_t RecordLength() const { return record_length_; }
  std::size_t EntryLength() const { return entry_length_; }
  std::size_t OutputLength() const { return output_length_; }

  bool operator==(const SortLayout&) const = default;

  // Number: of the record, from 1.
  void MakeEntry(const char* record, std::uint32_t number, char* entry) const;
  // Whether the record would make that entry, its number apart.
  bool IsEntryOf(const char* record, const char* entry) const;
  std::size_t Windows() const { return key_.size() / WindowBytes; }
  std::uint64_t Window(const char* entry, std::size_t index) const;
  // By all windows from that one on: negative, 0 or positive.
  int Compare(const char* left, const char* right, std::size_t from_window) const;
  // The same by the numbers of their records.
  int CompareNumbers(const char* left, const char* right) const;

 private:
  static constexpr std::size_t WindowBytes = 8;

  void LayOutOutput(const SortStatement& statement);
  void LayOutKey(const SortStatement& statement);
  // Where the bytes stand in the entry: from now on, or already.
  std::size_t Keep(const RecordSpan& span);
  std::size_t InEntry(const RecordSpan& span);

  // Bytes of the record that stand in the entry from To on.
  struct KeptSpan {
    RecordSpan From;
    std::size_t To;
    bool operator==(const KeptSpan&) const = default;
  };
  // A byte to compare: where it stands in the entry, and where the table of its weights begins.
  struct KeyByte {
    std::uint32_t Offset;
    std::uint32_t Table;
    bool operator==(const KeyByte&) const = default;
  };

  std::size_t record_length_;
  std::size_t entry_length_ = 0;
  std::size_t output_length_ = 0;
  std::vector<KeptSpan> kept_;
  std::vector<KeyByte> key_;
  // By window: its eight bytes stand side by side and have one table.
  std::vector<bool> straight_;
  std::vector<std::size_t> numbers_, line_ends_;  // where they stand in the entry; a number stands in each
  std::array<unsigned char, 3 * 256> tables_{};   // ascending, descending, and zeros behind the last field
};

}  // namespace sort
