// What every reader turns a file into: rows of cells under named columns, one row at a time, so that the length of the
// file costs no memory.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace exchange {

// Reads into the target and returns the number of bytes; 0 at the end.
using ByteSource = std::function<std::size_t(char* target, std::size_t count)>;
using ByteSink = std::function<void(std::string_view bytes)>;

// What is wrong with a file, in words; nothing if all is well.
using Fault = std::optional<std::string>;

// A longer cell, name or other piece of a file is a fault: a reader may have to keep one whole.
inline constexpr std::size_t LongestPiece = std::size_t(1024) * 1024;
inline constexpr std::size_t MostColumns = 1000;
inline constexpr int MostLevels = 64;  // of nesting

// Faults that several readers have.
inline constexpr std::string_view TooManyColumns = "more than 1,000 columns";
inline constexpr std::string_view TooLong = "a value of more than a megabyte";
inline constexpr std::string_view TooDeep = "more than 64 levels";

// The column of the record number; in a file of this program the others have the names of the fields.
inline constexpr std::string_view RecordColumn = "Record";

class Rows {
 public:
  // Gets each row; false ends the reading.
  using Take = std::function<bool(const Rows& row)>;
  explicit Rows(Take take) : take_(std::move(take)) {}

  // The number of the column, a new one at its first use; MostColumns if there are too many.
  std::size_t Column(std::string_view name);
  // A second text of a cell is appended after "; ". The end of a very long one is dropped.
  void Add(std::size_t column, std::string_view text);
  // Ends the row; does nothing if it is empty. False: end the reading.
  bool End();

  // Whether this program wrote the file.
  bool Own = false;

  const std::vector<std::string>& Names() const { return names_; }
  // Of the row that is being taken: how many columns it may have cells in, and their texts, in UTF-8; empty if not
  // given.
  std::size_t Width() const { return cells_.size(); }
  std::string_view Text(std::size_t column) const { return cells_[column].Text; }
  bool IsGiven(std::size_t column) const { return cells_[column].Given; }

 private:
  struct Cell {
    std::string Text;
    bool Given = false;
  };
  Take take_;
  std::vector<std::string> names_;
  std::unordered_map<std::string, std::size_t> numbers_;
  std::vector<Cell> cells_;
  std::vector<std::size_t> given_;
  std::string sought_;
};

}  // namespace exchange
