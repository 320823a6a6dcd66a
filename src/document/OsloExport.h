#pragma once

#include <string>

class COrrevaDoc;

/// A number in one of the widths of a lens file: `precision` -2 "%0.4f", -1 "%0.1f", 0 "%6.0f", 1 "%8.1f",
/// 2 "%9.2f", 3 "%10.3f", 4 "%11.4f", any other as 2. The text stands until the next call.
const char* FormatOsloNumber(double value, int precision);

/// The lens file of the document's telescope, for OSLO 6.3, with CR LF. Recalculates first, so that every
/// default has come into being and the telescope counts as modified.
std::string OsloExport(COrrevaDoc& document);
