// Variables of the run state that know their name, so that a story can read them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "runtime/checked_int.h"

namespace screen {

class StateEntry;

// The list of a run state's variables, in the order of declaration.
class StateList {
 public:
  StateList() = default;
  StateList(const StateList&) = delete;
  StateList& operator=(const StateList&) = delete;
  const std::vector<const StateEntry*>& Entries() const { return entries_; }

 private:
  friend class StateEntry;
  std::vector<const StateEntry*> entries_;
};

class StateEntry {
 public:
  const std::string_view Name;
  virtual std::variant<std::int64_t, std::string> Read() const = 0;

 protected:
  StateEntry(StateList& list, std::string_view name) : Name(name) { list.entries_.push_back(this); }
  ~StateEntry() = default;
};

// A whole number of that width; an assignment that does not fit stops the program with "Overflow".
template <typename Width>
class Number final : public StateEntry {
 public:
  Number(StateList& list, std::string_view name) : StateEntry(list, name) {}
  Number& operator=(std::int64_t value) { return word_ = value, *this; }
  Number& operator=(const Number& other) { return word_ = other.word_, *this; }
  Number& operator+=(std::int64_t step) { return word_ += step, *this; }
  Number& operator-=(std::int64_t step) { return word_ -= step, *this; }
  operator std::int64_t() const { return word_; }
  std::variant<std::int64_t, std::string> Read() const override { return word_; }

 private:
  runtime::CheckedInt<Width> word_;
};

using Number16 = Number<std::int16_t>;
using Number32 = Number<std::int32_t>;

class Text final : public StateEntry {
 public:
  Text(StateList& list, std::string_view name) : StateEntry(list, name) {}
  Text& operator=(std::string_view text) { return text_ = text, *this; }
  Text& operator=(const Text& other) { return text_ = other.text_, *this; }
  operator std::string_view() const { return text_; }
  const std::string& Value() const { return text_; }
  bool operator==(std::string_view text) const { return text_ == text; }
  std::variant<std::int64_t, std::string> Read() const override { return text_; }

 private:
  std::string text_;
};

}  // namespace screen
