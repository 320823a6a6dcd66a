#pragma once

class COrrevaDoc;

/// Opens the sheet or dialog that has the field of a key of the design file, on its page and with the
/// keyboard in the field. Nothing for a number that no page shows, and while no telescope is loaded.
void OpenField(COrrevaDoc& document, const char* key);
