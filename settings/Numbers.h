#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers as the files and the screen show them: a decimal point whatever the locale, no grouping.

// The number that the text begins with, after blanks ("5 Min" gives 5); 0 where there is none or it is beyond all
// bounds. Never fails.
double Val(std::string_view text);

// The number that the whole text is, blanks around it aside. Throws Failure for all else, the empty text included.
double StrictNumber(std::string_view text);

// The shortest text of a single-precision number in 7 significant digits: 0.1, 1234.5, 1.234568E+07.
std::string SingleText(float number);
// The same in 15 significant digits.
std::string DoubleText(double number);

// The nearest whole number, a half going to the even neighbour: 0.5 gives 0, 1.5 gives 2. Throws Failure for what does
// not fit.
std::int32_t RoundHalfEven(double number);
// The number in sixteen bits. Throws Failure for what does not fit.
std::int16_t SixteenBits(std::int32_t number);
