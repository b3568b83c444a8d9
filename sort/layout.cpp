// Key fields already in the output are reused; the others are appended to the entry.
#include "sort/layout.h"

#include <algorithm>
#include <cstring>

namespace sort {
namespace {

constexpr std::size_t NumberDigits = 7;
constexpr std::string_view LineEnd = "\r\n";

constexpr std::uint32_t AscendingTable = 0;
constexpr std::uint32_t DescendingTable = 256;
constexpr std::uint32_t ZeroTable = 512;

// In two halves: these are independent, so their divisions overlap.
void WriteNumber(std::uint32_t number, char* target) {
  std::uint32_t upper = number / 1000;
  std::uint32_t lower = number % 1000;
  for (std::size_t digit = NumberDigits - 3; digit-- > 0; upper /= 10)
    target[digit] = static_cast<char>('0' + upper % 10);
  for (std::size_t digit = NumberDigits; digit-- > NumberDigits - 3; lower /= 10)
    target[digit] = static_cast<char>('0' + lower % 10);
}

}  // namespace

Layout::Layout(const Statement& statement, const Weights& weights) : record_length_(statement.RecordLength) {
  for (std::size_t character = 0; character < weights.size(); ++character) {
    tables_[AscendingTable + character] = weights[character];
    tables_[DescendingTable + character] = static_cast<unsigned char>(255 - weights[character]);
  }
  LayOutOutput(statement);
  LayOutKey(statement);
}

void Layout::LayOutOutput(const Statement& statement) {
  for (const OutputPiece& piece : statement.Output) {
    switch (piece.As) {
      case OutputPiece::Kind::RecordNumber:
        numbers_.push_back(entry_length_);
        entry_length_ += NumberDigits;
        break;
      case OutputPiece::Kind::LineEnd:
        line_ends_.push_back(entry_length_);
        entry_length_ += LineEnd.size();
        break;
      default:
        Keep(piece.Span);
    }
  }
  output_length_ = entry_length_;
  if (!numbers_.empty()) return;
  numbers_.push_back(entry_length_);
  entry_length_ += NumberDigits;
}

std::size_t Layout::Keep(const RecordSpan& span) {
  kept_.push_back({span, entry_length_});
  entry_length_ += span.Width;
  return kept_.back().To;
}

std::size_t Layout::InEntry(const RecordSpan& span) {
  for (const KeptSpan& kept : kept_) {
    if (span.Offset >= kept.From.Offset && span.Offset + span.Width <= kept.From.Offset + kept.From.Width)
      return kept.To + span.Offset - kept.From.Offset;
  }
  return Keep(span);
}

void Layout::LayOutKey(const Statement& statement) {
  for (const KeyField& field : statement.Fields) {
    auto offset = static_cast<std::uint32_t>(InEntry(field.Span));
    for (std::uint32_t byte = 0; byte < field.Span.Width; ++byte)
      key_.push_back({offset + byte, field.Descending ? DescendingTable : AscendingTable});
  }
  while (key_.size() % WindowBytes != 0) key_.push_back({0, ZeroTable});
  for (std::size_t window = 0; window < key_.size(); window += WindowBytes) {
    const KeyByte& first = key_[window];
    bool straight = true;
    for (std::uint32_t at = 1; at < WindowBytes; ++at) {
      const KeyByte& byte = key_[window + at];
      straight = straight && byte.Offset == first.Offset + at && byte.Table == first.Table;
    }
    straight_.push_back(straight);
  }
}

void Layout::MakeEntry(const char* record, std::uint32_t number, char* entry) const {
  for (const KeptSpan& span : kept_) std::memcpy(entry + span.To, record + span.From.Offset, span.From.Width);
  for (std::size_t place : numbers_) WriteNumber(number, entry + place);
  for (std::size_t place : line_ends_) LineEnd.copy(entry + place, LineEnd.size());
}

bool Layout::IsEntryOf(const char* record, const char* entry) const {
  return std::all_of(kept_.begin(), kept_.end(), [&](const KeptSpan& span) {
    return std::memcmp(entry + span.To, record + span.From.Offset, span.From.Width) == 0;
  });
}

std::uint64_t Layout::Window(const char* entry, std::size_t index) const {
  std::uint64_t window = 0;
  const KeyByte* bytes = key_.data() + index * WindowBytes;
  if (straight_[index]) {
    const unsigned char* table = tables_.data() + bytes->Table;
    const char* field = entry + bytes->Offset;
    for (std::size_t at = 0; at < WindowBytes; ++at)
      window = window << 8 | table[static_cast<unsigned char>(field[at])];
    return window;
  }
  for (std::size_t at = 0; at < WindowBytes; ++at)
    window = window << 8 | tables_[bytes[at].Table + static_cast<unsigned char>(entry[bytes[at].Offset])];
  return window;
}

int Layout::Compare(const char* left, const char* right, std::size_t from_window) const {
  for (std::size_t index = from_window; index < Windows(); ++index) {
    std::uint64_t left_window = Window(left, index);
    std::uint64_t right_window = Window(right, index);
    if (left_window != right_window) return left_window < right_window ? -1 : 1;
  }
  return 0;
}

int Layout::CompareNumbers(const char* left, const char* right) const {
  return std::memcmp(left + numbers_.front(), right + numbers_.front(), NumberDigits);
}

}  // namespace sort
