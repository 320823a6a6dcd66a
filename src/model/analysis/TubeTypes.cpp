#include "model/analysis/TubeTypes.h"

#include "lib/text/CodePage.h"

const TubeType kTubeTypes[7] = {
    {"2 senkrechte Trusses", "2Truss", 5},
    {"3 senkrechte Trusses", "3Truss", 4},
    {"4 senkrechte Trusses", "4Truss", 3},
    {"Sechs schräge Trusses"_cp1252, "6Truss", 2},
    {"Acht schräge Trusses"_cp1252, "8Truss", 1},
    {"Tubus", "Tube", 0},
    {"", "", -1},
};
