#pragma once

#include <string>

/// LibString::Format as an expression, for texts that go into a row at once.
std::string FormatText(const char* pszFormat, ...) __attribute__((format(printf, 1, 2)));
