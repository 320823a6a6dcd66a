#pragma once

#include "lib/text/LibString.h"

#include <string>

/// LibString::Format as an expression, for texts that go into a row at once.
template <class... Values>
requires(sizeof...(Values) > 0) std::string FormatText(const char* pszFormat, Values... values)
{
    LibString text;
    text.Format(pszFormat, values...);
    return text.GetText();
}
