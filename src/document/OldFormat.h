#pragma once

#include "model/record/OrrevaData.h"

class OldArchive;

/// Reads the old binary format into a record, which it resets first. False if the bytes end early; the record
/// keeps what was read. A version other than the last is told to `host`.
bool ImportOld(OldArchive& archive, COrrevaData& record, RecordHost& host);
