#pragma once

#include "model/record/OrrevaData.h"

#include <string>

class XmlScanner;

/// The bytes of the design file of a record. Raw fields are written, so that nothing is computed or stored:
/// an unset number is the text "1.#INF00", a NaN "-1.#IND00". Texts stand as they are, unescaped.
std::string WriteTelescope(const COrrevaData& data);

/// Writes design files, whole or not at all, and reads them.
RecordFiles& DesignFiles();

/// Stores every value of a design file directly into the record: no setter runs, nothing is cleared. A key
/// that is missing gives 0 or the empty text, not the unset mark.
void ReadTelescope(const XmlScanner& scanner, COrrevaData& data);
