// What one sort keeps of each record, how it compares two, and what it writes.
//
// An entry is the output record plus the key bytes that the output lacks. The weighted key is read as windows: 64-bit
// numbers, most significant byte first.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "sort/statement.h"

namespace sort {

class Layout {
 public:
  Layout(const Statement& statement, const Weights& weights);

  // In bytes.
  std::size_t RecordLength() const { return record_length_; }
  std::size_t EntryLength() const { return entry_length_; }
  std::size_t OutputLength() const { return output_length_; }

  bool operator==(const Layout&) const = default;

  // Number: of the record, from 1.
  void MakeEntry(const char* record, std::uint32_t number, char* entry) const;
  // Whether an identical record made that entry, apart from its number.
  bool IsEntryOf(const char* record, const char* entry) const;
  std::size_t Windows() const { return key_.size() / WindowBytes; }
  std::uint64_t Window(const char* entry, std::size_t index) const;
  // Compares all windows from that one on: negative, 0 or positive.
  int Compare(const char* left, const char* right, std::size_t from_window) const;
  // Compares the record numbers.
  int CompareNumbers(const char* left, const char* right) const;

 private:
  static constexpr std::size_t WindowBytes = 8;

  void LayOutOutput(const Statement& statement);
  void LayOutKey(const Statement& statement);
  // Offset in the entry: Keep appends, InEntry appends only if new.
  std::size_t Keep(const RecordSpan& span);
  std::size_t InEntry(const RecordSpan& span);

  // Bytes of the record and their offset in the entry.
  struct KeptSpan {
    RecordSpan From;
    std::size_t To;
    bool operator==(const KeptSpan&) const = default;
  };
  // A byte of the key: its offset in the entry and the offset of its weights in tables_.
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
  // By window: its bytes are contiguous and use one table.
  std::vector<bool> straight_;
  std::vector<std::size_t> numbers_, line_ends_;  // offsets in the entry; there is always a number
  std::array<unsigned char, 3 * 256> tables_{};   // ascending, descending, and zeros after the last field
};

}  // namespace sort
