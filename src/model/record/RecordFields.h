#pragma once

#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"

#include <span>
#include <variant>

/// One field of the record that a file holds: its key path below `telescope/`, its place, its getter (which
/// may store, see COrrevaData) and its setter.
struct TextField {
    LibString TelescopeFields::*place;
    void (COrrevaData::*set)(const char*);
};
struct RealField {
    double TelescopeFields::*place;
    double (COrrevaData::*get)();
    void (COrrevaData::*set)(double);
};
struct TypeField {
    std::int32_t TelescopeFields::*place;
    std::int32_t (COrrevaData::*get)();
    void (COrrevaData::*set)(std::int32_t);
};
/// A number that a file carries for others: always written as 0, dropped when read.
struct UnusedField {};

struct RecordField {
    const char* key;
    std::variant<TextField, RealField, TypeField, UnusedField> field;
    const char* unit; ///< "1" for a number without one, empty for a text
    Bilingual label;  ///< empty where nothing shows the field
};

/// All fields with a key, in the order of the design file.
std::span<const RecordField> RecordFields();

/// The field of a key, null if there is none.
const RecordField* FindRecordField(const char* key);
