#pragma once

#include "model/record/OrrevaData.h"

#include <span>
#include <variant>

/// One field of the record that a file holds: its key path below `telescope/`, its place and its setter.
struct TextField {
    LibString TelescopeFields::*place;
    void (COrrevaData::*set)(const char*);
};
struct RealField {
    double TelescopeFields::*place;
    void (COrrevaData::*set)(double);
};
struct TypeField {
    std::int32_t TelescopeFields::*place;
    void (COrrevaData::*set)(std::int32_t);
};
/// A number that a file carries for others: always written as 0, dropped when read.
struct UnusedField {};

struct RecordField {
    const char* key;
    std::variant<TextField, RealField, TypeField, UnusedField> field;
};

/// All fields with a key, in the order of the design file.
std::span<const RecordField> RecordFields();

/// The field of a key, null if there is none.
const RecordField* FindRecordField(const char* key);
