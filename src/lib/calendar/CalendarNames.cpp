#include "lib/calendar/CalendarNames.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::int32_t kLanguages = 2;

constexpr char kWeekdays[kLanguages][7][kNameWidth] = {
    {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"},
    {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"}};

constexpr char kShortWeekdays[kLanguages][7][kShortNameWidth] = {
    {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"}, {"Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"}};

constexpr char kMonths[kLanguages][12][kNameWidth] = {
    {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
     "November", "December"},
    {"Januar", "Februar", "Maerz", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
     "November", "Dezember"}};

constexpr char kShortMonths[kLanguages][12][kShortNameWidth] = {
    {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
    {"Jan", "Feb", "Maer", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"}};

constexpr char kWords[kLanguages][11][kWordWidth] = {
    {"day", "month", "year", "week", "weekday", "hour", "minute", "second", "yesterday", "today", "tomorrow"},
    {"Tag", "Monat", "Jahr", "Woche", "Wochentag", "Stunde", "Minute", "Sekunde", "gestern", "heute",
     "morgen"}};

template <std::size_t nNames, std::size_t nWidth>
void CopyName(const char (&names)[kLanguages][nNames][nWidth], std::int32_t nName, char (&target)[nWidth],
              std::int32_t nLanguage)
{
    const std::int32_t nRow = std::max(nLanguage, 1);
    const bool bKnown =
        nName >= 0 && nName < static_cast<std::int32_t>(nNames) && nLanguage >= 0 && nRow <= kLanguages;
    std::memcpy(target, bKnown ? names[nRow - 1][nName] : "", bKnown ? nWidth : 1);
}

} // namespace

void WeekdayName(std::int32_t nWeekday, char (&target)[kNameWidth], std::int32_t nLanguage)
{
    CopyName(kWeekdays, std::max(nWeekday, 0) - 1, target, nLanguage);
}

void ShortWeekdayName(std::int32_t nWeekday, char (&target)[kShortNameWidth], std::int32_t nLanguage)
{
    CopyName(kShortWeekdays, std::max(nWeekday, 0) - 1, target, nLanguage);
}

void MonthName(std::int32_t nMonth, char (&target)[kNameWidth], std::int32_t nLanguage)
{
    CopyName(kMonths, std::max(nMonth, 0) - 1, target, nLanguage);
}

void ShortMonthName(std::int32_t nMonth, char (&target)[kShortNameWidth], std::int32_t nLanguage)
{
    CopyName(kShortMonths, std::max(nMonth, 0) - 1, target, nLanguage);
}

void CalendarWord(std::int32_t nWord, char (&target)[kWordWidth], std::int32_t nLanguage, bool bClear)
{
    CopyName(kWords, bClear ? -1 : nWord, target, nLanguage);
}
