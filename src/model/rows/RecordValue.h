#pragma once

#include "model/record/OrrevaData.h"

/// A getter of the record as a function, for tables of rows.
template <double (COrrevaData::*getter)()>
double RecordValue(COrrevaData& record)
{
    return (record.*getter)();
}
