// The control statement of a sort: clauses of a word and a list in parentheses, in any order.
//
//   S(position,width,C,A ...)      the key, field by field; A ascending, D descending
//   ALTSEQ(file)                   the file of the weights; without it, weight = value
//   OUTREC(position,width | Arrn | CRLF, ...)   the parts of an output record; Arrn is the record number
//   Include(position,width,C,EQ|NE|GT|GE|LT|LE,"constant")   which records are kept; without it, all
//   Record(length)                 of an input record
//
// Positions count from 1. Case is ignored, and blanks may come between all parts.
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

struct KeyField {
  RecordSpan Span;
  bool Descending = false;
};

struct OutputPiece {
  enum class Kind { Bytes, RecordNumber, LineEnd } As = Kind::Bytes;
  RecordSpan Span = {};  // of Bytes
  bool operator==(const OutputPiece&) const = default;
};

// Which results of comparing the field with the constant keep the record.
struct IncludeTest {
  RecordSpan Span;
  bool KeepsLess = false, KeepsEqual = false, KeepsGreater = false;
  std::string Constant;
};

struct Statement {
  std::vector<KeyField> Fields;
  std::optional<std::string> WeightsFile;
  std::vector<OutputPiece> Output;
  std::optional<IncludeTest> Include;
  std::size_t RecordLength = 0;
};

inline constexpr std::size_t MaxRecordLength = 32767;

// Nothing if the text is not such a statement, or if a span of it exceeds the record.
std::optional<Statement> ParseStatement(std::string_view text);

}  // namespace sort
