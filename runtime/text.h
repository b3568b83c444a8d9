// Windows-1252 strings: one byte, one column.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// A view of the text without leading and trailing blanks.
std::string_view Trim(std::string_view text);
// A view of the text without leading blanks.
std::string_view TrimFront(std::string_view text);

// Cut at width, or padded on the right with blanks.
std::string Fixed(std::string_view text, std::size_t width);

// Upper case, accented letters of the code page included.
char Upper(char character);
std::string Upper(std::string_view text);

// Position of sought, from 1; 0 if absent, 1 if sought is empty.
std::size_t Position(std::string_view text, std::string_view sought);

// The same, ignoring case; capitals in upper case.
std::size_t PositionOfCapitals(std::string_view text, std::string_view capitals);

// The decimal text after a blank or its minus sign: " 5", "-5".
std::string NumberText(std::int64_t number);

// The number at the start of the text, after blanks: a sign, digits, a decimal point; 0 if none.
double NumericValue(std::string_view text);

// The text must be exactly a number, else Failure "Type mismatch", or "Overflow" past 32 bits, names the file.
std::int32_t WholeNumber(std::string_view text, std::string_view file);

}  // namespace runtime
