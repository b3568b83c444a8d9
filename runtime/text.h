// Texts of the system: single bytes in Windows-1252, one byte a character and a column.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace runtime {

// The text without the blanks at its two ends; a view into it.
std::string_view Trim(std::string_view text);
// The text without the blanks at its front.
std::string_view TrimFront(std::string_view text);

// Cut at width, or padded with blanks on the right to it.
std::string Fixed(std::string_view text, std::size_t width);

// Capital letters, A-Z and the accented ones of the code page.
char Upper(char character);
std::string Upper(std::string_view text);

// Where sought begins in text, from 1; 0 when absent, 1 for an empty sought text.
std::size_t Position(std::string_view text, std::string_view sought);

// The same in the capitals of a text; the sought text is in capitals already.
std::size_t PositionOfCapitals(std::string_view text, std::string_view capitals);

// The decimal text with one leading blank where a minus sign would stand: " 5", "-5".
std::string NumberText(std::int64_t number);

// Leading blanks, then a sign, digits and a decimal point as far as they go; 0 for a text without.
double NumericValue(std::string_view text);

// The value of a text that must be a number as a whole; throws Failure "Type mismatch", naming the file, where it is
// none and "Overflow" where it does not fit 32 bits.
std::int32_t WholeNumber(std::string_view text, std::string_view file);

}  // namespace runtime
