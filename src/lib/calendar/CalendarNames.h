#pragma once

#include <cstddef>
#include <cstdint>

/// Languages of the calendar's names: 1 English, 2 German; 0 means 1. Each lookup writes a zero-closed text
/// into the target; an index or a language that has no name clears it, and so does an index of 0, but for the
/// calendar words, which begin at 0. The texts are plain ASCII ("Maerz").
inline constexpr std::size_t kNameWidth = 14;
inline constexpr std::size_t kShortNameWidth = 5;
inline constexpr std::size_t kWordWidth = 17;

/// 1 Monday to 7 Sunday.
void WeekdayName(std::int32_t nWeekday, char (&target)[kNameWidth], std::int32_t nLanguage);
void ShortWeekdayName(std::int32_t nWeekday, char (&target)[kShortNameWidth], std::int32_t nLanguage);
/// 1 to 12.
void MonthName(std::int32_t nMonth, char (&target)[kNameWidth], std::int32_t nLanguage);
void ShortMonthName(std::int32_t nMonth, char (&target)[kShortNameWidth], std::int32_t nLanguage);
/// 0 day, month, year, week, weekday, hour, minute, second, yesterday, today, 10 tomorrow. `bClear` leaves
/// the target empty.
void CalendarWord(std::int32_t nWord, char (&target)[kWordWidth], std::int32_t nLanguage,
                  bool bClear = false);
