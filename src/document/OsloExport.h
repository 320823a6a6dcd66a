#pragma once

#include <string>

class COrrevaData;

/// A number in one of the widths of a lens file: `precision` -2 "%0.4f", -1 "%0.1f", 0 "%6.0f", 1 "%8.1f",
/// 2 "%9.2f", 3 "%10.3f", 4 "%11.4f", any other as 2. The text stands until the next call.
const char* FormatOsloNumber(double value, int precision);

/// The lens file of a telescope, for OSLO 6.3, with CR LF. The document recalculates before, so that every
/// default has come into being; the telescope then counts as modified.
std::string OsloExport(COrrevaData& data);
