#pragma once

#include "model/record/OrrevaData.h"

#include <string>
#include <vector>

/// The rows of the two panels beside the tube design and the Foucault test.

struct SidePanelRow {
    std::string label;
    std::string value;
    bool line_on_top = false;
};

/// The tube's dimensions, from top to bottom.
std::vector<SidePanelRow> TubePanelRows(COrrevaData& record, int language);

/// The mirror's data; German in both languages.
std::vector<SidePanelRow> MirrorPanelRows(COrrevaData& record);
