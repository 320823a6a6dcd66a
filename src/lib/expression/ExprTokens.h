#pragma once

#include <cstdint>
#include <string>

/// Tokens of the expression language. Any other character is its own token, with its signed value.
inline constexpr std::uint32_t kTokenEnd = 256;
inline constexpr std::uint32_t kTokenLogicalOr = 257;
inline constexpr std::uint32_t kTokenLogicalAnd = 258;
inline constexpr std::uint32_t kTokenOr = 259;
inline constexpr std::uint32_t kTokenAnd = 260;
inline constexpr std::uint32_t kTokenGreater = 261;
inline constexpr std::uint32_t kTokenLess = 262;
inline constexpr std::uint32_t kTokenEqual = 263;
inline constexpr std::uint32_t kTokenPlus = 264;
inline constexpr std::uint32_t kTokenMinus = 265;
inline constexpr std::uint32_t kTokenTimes = 266;
inline constexpr std::uint32_t kTokenDivide = 267;
inline constexpr std::uint32_t kTokenPower = 268;
inline constexpr std::uint32_t kTokenFactorial = 269;
inline constexpr std::uint32_t kTokenOpen = 270;
inline constexpr std::uint32_t kTokenClose = 271;

/// Pointer past blanks (every byte from 1 to 32) and comments, "// to the end of the line" and "/* closed
/// */". Throws ErrCode::OpenComment.
const char* SkipExprBlanks(const char* psz);

struct ExprToken {
    std::uint32_t nToken;
    std::uint32_t nLength; ///< with the blanks and comments before it
};

/// The next token of a text. Nothing moves: the caller steps on if it takes the token.
ExprToken ReadExprToken(const char* psz);

/// Characters that a name goes on with: `a` to `z`, digits and `_`.
bool IsNameCharacter(char c);

/// Length of a number as the language takes it off the text: more than its value is made of, "1.2.3" and
/// "1e5e5" are taken whole.
std::uint32_t NumberLength(const char* psz);

/// Copies what stands between the bracket that opens before `psz` and the one that closes it, without blanks
/// and comments; gives the place behind the closing one. Throws ErrCode::OpenBracket.
const char* CopyBracket(const char* psz, std::string& content);

/// Length of the text before the first comma that stands outside all brackets.
std::size_t ArgumentLength(const char* psz);
