#pragma once

#include <cstdint>

/// One kind of tube: its text (German in both languages), its short name, which nobody reads, and its value
/// in the record.
struct TubeType {
    const char* text;
    const char* short_name;
    std::int32_t tube_type;
};

/// The fixed list of designs, closed by an entry with the value -1. A drop-down inserts each at its top.
extern const TubeType kTubeTypes[7];
