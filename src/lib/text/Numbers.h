#pragma once

#include <cstdint>
#include <string>

/// Pi and half of it as all formula code takes them: truncated, and not to be corrected.
inline constexpr double kPi = 3.1415926535;
inline constexpr double kHalfPi = 1.57079632675;
inline constexpr double kInch = 25.4; ///< mm

/// Cut toward zero. A value beyond 32 bits gives the nearest end of the range, a NaN 0.
std::int32_t TruncToInt32(double value);

/// A decimal number at the start of `psz`, after white space, as `atof` of the C locale reads it: a point, an
/// optional exponent, no hexadecimal and no words. Unreadable text is 0; a number too large is HUGE_VAL with
/// its sign.
double DecimalValue(const char* psz);

/// What DecimalValue leaves unread: the text behind the number, all of it where there is none. Blanks at its
/// ends do not count.
std::string UnreadTail(const char* psz);

/// As `atoi`: white space, sign, digits; ends of the 32-bit range for what does not fit.
std::int32_t IntegerValue(const char* psz);

/// The converter behind nearly all numeric input. A null pointer, an unreadable text and a text of 1001
/// characters or more are 0.0; leading blanks and tabs are skipped; "1.#INF" is the unset mark HUGE_VAL; the
/// first comma counts as a point.
double TextToDouble(const char* psz);

/// Whether the whole text is a number that TextToDouble reads, between blanks: "1.#INF", words, an empty text
/// and 1001 characters are none.
bool IsNumberText(const char* psz);
