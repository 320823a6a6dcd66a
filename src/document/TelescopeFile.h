#pragma once

#include "model/record/OrrevaData.h"

#include <string>
#include <string_view>

class XmlScanner;

/// The bytes of the design file of a record. Raw fields are written, so that nothing is computed or stored:
/// an unset number is the text "1.#INF00", a NaN "-1.#IND00". Texts stand as they are, unescaped.
std::string WriteTelescope(const COrrevaData& data);

/// Whether a text can be a design file at all: it holds "<telescope".
bool IsDesignText(std::string_view text);

/// Stores every value of a design file directly into the record: no setter runs, nothing is cleared. A key
/// that is missing gives 0 or the empty text, not the unset mark.
void ReadTelescope(const XmlScanner& scanner, COrrevaData& data);
