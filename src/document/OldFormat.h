#pragma once

#include "model/record/OrrevaData.h"

#include <cstdint>

class OldArchive;

/// The first number of a file of the format's last version, a date.
inline constexpr std::uint32_t kLastOldVersion = 20040101;

/// Reads the old binary format into a record, which it resets first. False if the bytes end early; the record
/// keeps what was read. A version other than the last is told to `host`.
bool ImportOld(OldArchive& archive, COrrevaData& record, RecordHost& host);
