#include "lib/expression/ExprLiterals.h"

#include "lib/calendar/CalTime.h"
#include "lib/text/CharTools.h"
#include "lib/text/CodePage.h"
#include "lib/text/ErrCode.h"

#include <cstring>
#include <initializer_list>

namespace {

/// Words begin with one of the 26 letters; an umlaut begins none.
bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool StartsWithAny(std::initializer_list<const char*> words, const char* psz)
{
    for (const char* const pszWord : words) {
        if (StartsWith(pszWord, psz) != nullptr) {
            return true;
        }
    }
    return false;
}

/// Steps over blanks around at most one of two separators.
void SkipSeparator(const char*& psz, char c1, char c2)
{
    psz = SkipBlanks(psz);
    if (*psz == c1 || *psz == c2) {
        ++psz;
    }
    psz = SkipBlanks(psz);
}

/// Takes up to `nMost` digits; how many there were is told by `psz`.
int TakeDigits(const char*& psz, int nMost)
{
    int nValue = 0;
    for (; nMost > 0 && IsDigit(*psz); --nMost, ++psz) {
        nValue = nValue * 10 + (*psz - '0');
    }
    return nValue;
}

/// One digit, and a second one if it is there.
int TakeOneOrTwoDigits(const char*& psz, ErrCode missing)
{
    if (!IsDigit(*psz)) {
        throw missing;
    }
    return TakeDigits(psz, 2);
}

double TakeHour(const char*& psz)
{
    if (!IsDigit(*psz)) {
        throw ErrCode::MissingHour;
    }
    double dHour = 0.0;
    for (; IsDigit(*psz); ++psz) {
        dHour = dHour * 10.0 + (*psz - '0');
    }
    return dHour;
}

double TimeOfWord(const char* psz)
{
    if (StartsWithAny({"jetzt", "now"}, psz)) {
        return CalTime::Now().TotalSeconds();
    }
    if (StartsWithAny({"noon", "mittag"}, psz)) {
        return CalTime(12, 0, 0).TotalSeconds();
    }
    throw ErrCode::UnknownConstant;
}

/// The words for tomorrow and yesterday move by as many days as a day has seconds: kept.
constexpr CalInterval kOneDay(86400, 0, 0);

CalDate DateOfWord(const char* psz)
{
    if (StartsWithAny({"jetzt", "now", "heute", "today"}, psz)) {
        return CalDate::Today();
    }
    if (StartsWithAny({"morgen", "tomorow"}, psz)) {
        return CalDate::Today() + kOneDay;
    }
    if (StartsWithAny({"gestern", "yesterday"}, psz)) {
        return CalDate::Today() - kOneDay;
    }
    throw ErrCode::UnknownConstant;
}

struct MonthOfName {
    const char* pszName;
    int nMonth;
};

/// German only, in both languages.
constexpr MonthOfName kMonthNames[] = {
    {"Januar", 1},   {"Februar", 2},   {"März"_cp1252, 3}, {"Marz", 3},   {"April", 4},
    {"Mai", 5},      {"Juni", 6},      {"Juli", 7},        {"August", 8}, {"September", 9},
    {"Oktober", 10}, {"November", 11}, {"Dezember", 12},
};

int TakeMonth(const char*& psz)
{
    for (const MonthOfName& month : kMonthNames) {
        if (StartsWithNoCase(month.pszName, psz) != nullptr) {
            psz += std::strlen(month.pszName);
            return month.nMonth;
        }
    }
    return TakeOneOrTwoDigits(psz, ErrCode::MissingMonth);
}

int TakeYear(const char*& psz)
{
    const char* const pszStart = psz;
    const int nYear = TakeDigits(psz, 4);
    switch (psz - pszStart) {
    case 4:
        return nYear;
    case 2:
        return nYear < 50 ? nYear + 2000 : nYear + 1900;
    default:
        throw ErrCode::MissingYear;
    }
}

} // namespace

double ReadTimeLiteral(const char* psz)
{
    psz = SkipBlanks(psz);
    if (IsAsciiLetter(*psz)) {
        return TimeOfWord(psz);
    }
    const double dHour = TakeHour(psz);
    SkipSeparator(psz, ':', '.');
    const int nMinute = TakeOneOrTwoDigits(psz, ErrCode::MissingMinute);
    SkipSeparator(psz, ':', '.');
    const int nSecond = TakeOneOrTwoDigits(psz, ErrCode::MissingSecond);
    return dHour * 3600 + nMinute * 60 + nSecond;
}

CalDate ReadDateLiteral(const char* psz)
{
    if (*psz == ')') {
        throw ErrCode::EmptyBrackets;
    }
    if (IsAsciiLetter(*psz)) {
        return DateOfWord(psz);
    }
    psz = SkipBlanks(psz);
    const int nDay = TakeOneOrTwoDigits(psz, ErrCode::MissingDay);
    SkipSeparator(psz, '.', '-');
    const int nMonth = TakeMonth(psz);
    SkipSeparator(psz, '.', '-');
    const int nYear = TakeYear(psz);
    return {static_cast<std::uint16_t>(nDay), static_cast<std::uint16_t>(nMonth), nYear};
}
