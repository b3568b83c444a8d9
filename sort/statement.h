// The control statement of a sort: clauses of a word and a list in parentheses, in any order.
//
//   S(position,width,C,A ...)      what is compared, field by field; A ascending, D descending
//   ALTSEQ(file)                   the file of the weights; without it bytes are compared as they are
//   OUTREC(position,width | Arrn | CRLF, ...)   what an output record is put together from
//   Include(position,width,C,EQ|NE|GT|GE|LT|LE,"constant")   which records are kept; all without it
//   Record(length)                 of an input record
//
// Positions count from 1. Words may be in capitals or not, and blanks may stand between all parts.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sort {

// By character.
using Weights = std::array<unsigned char, 256>;

// Bytes of an input record, from 0.
struct RecordSpan {
  std::size_t Offset = 0;
  std::size_t Width = 0;
  bool operator==(const RecordSpan&) const = default;
};

struct SortField {
  RecordSpan Span;
  bool Descending = false;
};

struct OutputPiece {
  enum class Kind { Bytes, RecordNumber, LineEnd } As = Kind::Bytes;
  RecordSpan Span = {};  // of Bytes
  bool operator==(const OutputPiece&) const = default;
};

// The record is kept where what stands before the constant in this row of relations holds.
struct IncludeTest {
  RecordSpan Span;
  bool KeepsLess = false, KeepsEqual = false, KeepsGreater = false;
  std::string Constant;
};

struct SortStatement {
  std::vector<SortField> Fields;
  std::optional<std::string> WeightsFile;
  std::vector<OutputPiece> Output;
  std::optional<IncludeTest> Include;
  std::size_t RecordLength = 0;
};

inline constexpr std::size_t LongestRecord = 32767;

// Nothing where the text is no such statement, or a span of it does not lie within the record.
std::optional<SortStatement> ParseSortStatement(std::string_view text);

}  // namespace sort
