// The spans that are kept are laid together without overlap, so that a title that is both compared and written stands
// in the entry once.
#include "store/sort_layout.h"

#include <algorithm>
#include <cstring>

namespace store {
namespace {

constexpr std::size_t NumberBytes = sizeof(std::uint32_t);
constexpr std::size_t NumberDigits = 7;
constexpr std::string_view LineEnd = "\r\n";

constexpr std::uint32_t AscendingTable = 0;
constexpr std::uint32_t DescendingTable = 256;
constexpr std::uint32_t ZeroTable = 512;

std::size_t LengthOf(const OutputPiece& piece) {
  switch (piece.As) {
    case OutputPiece::Kind::RecordNumber:
      return NumberDigits;
    case OutputPiece::Kind::LineEnd:
      return LineEnd.size();
    default:
      return piece.Span.Width;
  }
}

void WriteNumber(const char* entry, char* target) {
  std::uint32_t number = 0;
  std::memcpy(&number, entry, NumberBytes);
  for (std::size_t digit = NumberDigits; digit-- > 0; number /= 10)
    target[digit] = static_cast<char>('0' + number % 10);
}

}  // namespace

SortLayout::SortLayout(const SortStatement& statement, const Weights& weights)
    : record_length_(statement.RecordLength) {
  for (std::size_t character = 0; character < weights.size(); ++character) {
    tables_[AscendingTable + character] = weights[character];
    tables_[DescendingTable + character] = static_cast<unsigned char>(255 - weights[character]);
  }
  KeepSpans(statement);
  LayOutKey(statement);
  for (OutputPiece piece : statement.Output) {
    output_length_ += LengthOf(piece);
    if (piece.As == OutputPiece::Kind::Bytes) piece.Span.Offset = InEntry(piece.Span.Offset);
    output_.push_back(piece);
  }
  keeps_ = {false, true, false};
  if (!statement.Include) return;
  const IncludeTest& test = *statement.Include;
  include_ = test.Span;
  include_constant_ = test.Constant;
  include_constant_.resize(std::max(test.Constant.size(), test.Span.Width), ' ');
  for (char& character : include_constant_)
    character = static_cast<char>(weights[static_cast<unsigned char>(character)]);
  keeps_ = {test.KeepsLess, test.KeepsEqual, test.KeepsGreater};
}

void SortLayout::KeepSpans(const SortStatement& statement) {
  std::vector<RecordSpan> spans;
  for (const SortField& field : statement.Fields) spans.push_back(field.Span);
  for (const OutputPiece& piece : statement.Output) {
    if (piece.As == OutputPiece::Kind::Bytes) spans.push_back(piece.Span);
  }
  std::sort(spans.begin(), spans.end(),
            [](const RecordSpan& left, const RecordSpan& right) { return left.Offset < right.Offset; });
  entry_length_ = NumberBytes;
  for (const RecordSpan& span : spans) {
    std::size_t kept_to = kept_.empty() ? 0 : kept_.back().From.Offset + kept_.back().From.Width;
    std::size_t end = span.Offset + span.Width;
    if (kept_.empty() || span.Offset > kept_to) {
      kept_.push_back({span, entry_length_});
      entry_length_ += span.Width;
    } else if (end > kept_to) {
      kept_.back().From.Width += end - kept_to;
      entry_length_ += end - kept_to;
    }
  }
}

std::size_t SortLayout::InEntry(std::size_t record_offset) const {
  auto span = std::upper_bound(kept_.begin(), kept_.end(), record_offset,
                               [](std::size_t offset, const KeptSpan& kept) { return offset < kept.From.Offset; });
  --span;
  return record_offset - span->From.Offset + span->To;
}

void SortLayout::LayOutKey(const SortStatement& statement) {
  for (const SortField& field : statement.Fields) {
    auto offset = static_cast<std::uint32_t>(InEntry(field.Span.Offset));
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

bool SortLayout::Keeps(const char* record) const {
  const char* field = record + include_.Offset;
  for (std::size_t at = 0; at < include_constant_.size(); ++at) {
    unsigned char weight = tables_[static_cast<unsigned char>(at < include_.Width ? field[at] : ' ')];
    auto constant = static_cast<unsigned char>(include_constant_[at]);
    if (weight != constant) return keeps_[weight < constant ? 0 : 2];
  }
  return keeps_[1];
}

void SortLayout::MakeEntry(const char* record, std::uint32_t number, char* entry) const {
  std::memcpy(entry, &number, NumberBytes);
  for (const KeptSpan& span : kept_) std::memcpy(entry + span.To, record + span.From.Offset, span.From.Width);
}

std::uint64_t SortLayout::Window(const char* entry, std::size_t index) const {
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

int SortLayout::Compare(const char* left, const char* right, std::size_t from_window) const {
  for (std::size_t index = from_window; index < Windows(); ++index) {
    std::uint64_t left_window = Window(left, index);
    std::uint64_t right_window = Window(right, index);
    if (left_window != right_window) return left_window < right_window ? -1 : 1;
  }
  return 0;
}

void SortLayout::WriteOutput(const char* entry, char* target) const {
  for (const OutputPiece& piece : output_) {
    switch (piece.As) {
      case OutputPiece::Kind::RecordNumber:
        WriteNumber(entry, target);
        break;
      case OutputPiece::Kind::LineEnd:
        LineEnd.copy(target, LineEnd.size());
        break;
      default:
        std::memcpy(target, entry + piece.Span.Offset, piece.Span.Width);
    }
    target += LengthOf(piece);
  }
}

}  // namespace store
