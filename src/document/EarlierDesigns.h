#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

class COrrevaData;
struct RescueCopy;

/// The list of earlier designs.
inline constexpr ListColumn kEarlierDesignColumns[] = {
    {{"Time", "Zeit"}, 150}, {{"Reason", "Grund"}, 110}, {{"Title", "Titel"}, 200}, {{"Path", "Pfad"}, 320}};

/// One copy's row. The time is that of the zone in which it was kept.
ListRow EarlierDesignRow(const RescueCopy& copy, int language);

/// Reads the design of a copy; false if it cannot be read any more.
bool ReadEarlierDesign(const RescueCopy& copy, COrrevaData& design);
