// How one sort looks at records: which are kept, what is kept of each, how two compare, and what is written.
//
// Of a kept record stays an entry: its number and the bytes that the sort fields and the output need. The bytes to
// compare, by weight, are taken as windows: numbers of eight bytes each, the first one most significant.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "store/sort_statement.h"

namespace store {

using Weights = std::array<unsigned char, 256>;

class SortLayout {
 public:
  SortLayout(const SortStatement& statement, const Weights& weights);

  // In bytes.
  std::size_t RecordLength() const { return record_length_; }
  std::size_t EntryLength() const { return entry_length_; }
  std::size_t OutputLength() const { return output_length_; }

  bool Keeps(const char* record) const;
  // Number: of the record, from 1.
  void MakeEntry(const char* record, std::uint32_t number, char* entry) const;
  std::size_t Windows() const { return key_.size() / WindowBytes; }
  std::uint64_t Window(const char* entry, std::size_t index) const;
  // By all windows from that one on: negative, 0 or positive.
  int Compare(const char* left, const char* right, std::size_t from_window) const;
  void WriteOutput(const char* entry, char* target) const;

 private:
  static constexpr std::size_t WindowBytes = 8;

  void KeepSpans(const SortStatement& statement);
  std::size_t InEntry(std::size_t record_offset) const;
  void LayOutKey(const SortStatement& statement);

  // Bytes of the record that stand in the entry from To on.
  struct KeptSpan {
    RecordSpan From;
    std::size_t To;
  };
  // A byte to compare: where it stands in the entry, and where the table of its weights begins.
  struct KeyByte {
    std::uint32_t Offset;
    std::uint32_t Table;
  };

  std::size_t record_length_;
  std::size_t entry_length_ = 0;
  std::size_t output_length_ = 0;
  std::vector<KeptSpan> kept_;
  std::vector<KeyByte> key_;
  // By window: its eight bytes stand side by side and have one table.
  std::vector<bool> straight_;
  std::vector<OutputPiece> output_;              // spans within the entry
  std::array<unsigned char, 3 * 256> tables_{};  // ascending, descending, and zeros behind the last field
  RecordSpan include_;
  std::string include_constant_;  // weighted
  std::array<bool, 3> keeps_{};   // less, equal, greater
};

}  // namespace store
