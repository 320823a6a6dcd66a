#include "lib/text/CharTools.h"

namespace {

/// A German letter as code page 1252 (ANSI) and code pages 437 and 850 (OEM) write it.
struct GermanLetter {
    unsigned char oemSmall;
    unsigned char oemCapital;
    unsigned char ansiSmall;
    unsigned char ansiCapital;
};

constexpr GermanLetter kGermanLetters[] = {
    {0x81, 0x9A, 0xFC, 0xDC}, // ü
    {0x84, 0x8E, 0xE4, 0xC4}, // ä
    {0x94, 0x99, 0xF6, 0xD6}, // ö
    {0xE1, 0xE1, 0xDF, 0xDF}, // ß
};

constexpr unsigned char Byte(char c) { return static_cast<unsigned char>(c); }
constexpr bool IsSmall(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }
constexpr int kToSmall = 'a' - 'A';

/// The letter of a byte that is not an OEM capital; null for none.
const GermanLetter* FindLetter(char c)
{
    for (const GermanLetter& letter : kGermanLetters) {
        if (Byte(c) == letter.oemSmall || Byte(c) == letter.ansiSmall || Byte(c) == letter.ansiCapital) {
            return &letter;
        }
    }
    return nullptr;
}

bool IsOemCapital(char c)
{
    for (const GermanLetter& letter : kGermanLetters) {
        if (Byte(c) == letter.oemCapital) {
            return true;
        }
    }
    return false;
}

constexpr bool IsPlain(char c) { return Byte(c) >= 32 && Byte(c) < 128; }

} // namespace

char FoldUpperSmall(char c)
{
    if (IsPlain(c)) {
        return IsSmall(c) ? static_cast<char>(c - kToSmall) : c;
    }
    const GermanLetter* const letter = FindLetter(c);
    return letter != nullptr ? static_cast<char>(letter->oemCapital) : '_';
}

char FoldUpper(char c) { return IsOemCapital(c) ? c : FoldUpperSmall(c); }

char FoldLower(char c)
{
    if (IsPlain(c)) {
        return IsCapital(c) ? static_cast<char>(c + kToSmall) : c;
    }
    const GermanLetter* const letter = FindLetter(c);
    return letter != nullptr ? static_cast<char>(letter->oemSmall) : '_';
}

bool IsLetter(char c) { return IsSmall(c) || IsCapital(c) || FindLetter(c) != nullptr; }
