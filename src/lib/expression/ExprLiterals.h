#pragma once

#include "lib/calendar/CalDate.h"

/// Seconds of a time literal: hour, minute and second, none of them bounded ("1:02:03", "1.2.3"), or one of
/// the words jetzt, now, noon, mittag. Text behind the literal is not looked at.
double ReadTimeLiteral(const char* psz);

/// The date of a date literal: day, month (a number or a German name) and year of four digits, or of two for
/// 1950 to 2049 ("24.12.2004", "1.Mai.99", "1-1-49"), or one of the words jetzt, now, heute, today, morgen,
/// tomorow, gestern, yesterday. Nothing is range-checked; text behind the literal is not looked at.
CalDate ReadDateLiteral(const char* psz);
