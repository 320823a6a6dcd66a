#include "model/analysis/FieldPlaces.h"

#include "lib/text/CodePage.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr auto kSheet = FieldSheet::kTelescope;
constexpr auto kTubeSheet = FieldSheet::kTube;
constexpr auto kStarDialog = FieldSheet::kArtificialStar;
constexpr auto kRonchiSheet = FieldSheet::kRonchi;

constexpr Bilingual kPrimary{"Primary", "Hauptspiegel"};
constexpr Bilingual kTubePage{"Tube", "Tubus"};
constexpr Bilingual kFocuserPage{"Focuser", "Focuser"};
constexpr Bilingual kSecondaryPage{"Secondary", "Fangspiegel"};
constexpr Bilingual kBalancePage{"Center of Gravity", "Schwerpunkt"};
constexpr Bilingual kTubeGeneral{"Tube Properties, General", "Eigenschaften Tubus, Allgemein"};
constexpr Bilingual kTubeTruss{"Tube Properties, Truss Tube", "Eigenschaften Tubus, Gitterrohrtubus"};
constexpr Bilingual kStarTitle{"Mindestabstand künstlicher Stern"_cp1252,
                               "Mindestabstand künstlicher Stern"_cp1252};
constexpr Bilingual kRonchiSetup{"Setup", "Setup"};
constexpr Bilingual kComponents{"Weight and Center of Gravity of the Components",
                                "Gewichte und Schwerpunkte der verwendeten Komponenten"};

/// What is set by a choice is shown by its first radio button.
constexpr FieldPlace kPlaces[] = {
    {"misc/wanted_100percent_fow",
     kSheet,
     4,
     kSecondaryPage,
     1049,
     {"Wanter 100% illuminated field of view (mm)", "Gewünschtes 100% ausgeleuchtetes Bildfeld"_cp1252}},
    {"mirror/focal_length", kSheet, 1, kPrimary, 1008, {"Focal Length (mm)", "Brennweite (mm)"}},
    {"mirror/diameter", kSheet, 1, kPrimary, 1007, {"Diameter (mm)", "Durchmesser (mm)"}},
    {"mirror/thickness", kSheet, 1, kPrimary, 1010, {"Thickness (mm)", "Spiegeldicke (mm)"}},
    {"mirror/density", kSheet, 1, kPrimary, 1037, {"Density", "Dichte (Density)"}},
    {"tube/type", kTubeSheet, 0, kTubeGeneral, 1067, {"Design", "Design"}},
    {"tube/distance_front",
     kSheet,
     2,
     kTubePage,
     1015,
     {"Distance Focuser to front End of Tube (mm)", "Abstand Focuser - vorderes Tubusende (mm)"}},
    {"tube/distance_back",
     kSheet,
     2,
     kTubePage,
     1014,
     {"Distance Mirror to rear End of Tube (mm)", "Abstand Hauptspiegel - hinteres Tubusende (mm)"}},
    {"tube/inside_diameter_hat",
     kSheet,
     2,
     kTubePage,
     1012,
     {"Inner Diameter (mm)", "Innendurchmesser (mm)"}},
    {"tube/thickness_hat", kSheet, 2, kTubePage, 1013, {"Thickness (mm)", "Wanddicke (mm)"}},
    {"tube/thickness_box", kTubeSheet, 1, kTubeTruss, 1069, {"Tickness (mm)", "Wanddicke (mm)"}},
    {"tube/height_box", kTubeSheet, 1, kTubeTruss, 1015, {"Height (mm)", "Höhe (mm)"_cp1252}},
    {"tube/height_hat", kTubeSheet, 1, kTubeTruss, 1016, {"Height (mm)", "Höhe (mm)"_cp1252}},
    {"focuser/type", kSheet, 3, kFocuserPage, 1041, {"Focuser", "Okularauszug"}},
    {"focuser/height",
     kSheet,
     3,
     kFocuserPage,
     1017,
     {"Hieght of retracted Focuser (mm)", "Höhe des (eingefahrenen) Focusers (mm)"_cp1252}},
    {"focuser/diameter", kSheet, 3, kFocuserPage, 1016, {"Inner Diameter (mm)", "Innendurchmesser (mm)"}},
    {"focuser/spare",
     kSheet,
     3,
     kFocuserPage,
     1002,
     {"Height of Focal Plane above retracted Focuser",
      "Höhe der Brennebene über dem (eingefahrenen) Focuser"_cp1252}},
    {"focuser/oaz_travel",
     kSheet,
     3,
     kFocuserPage,
     1052,
     {"Travel (mm)", "Verstellweg des Innenrohres (Travel)"}},
    {"focuser/oaz_length", kSheet, 3, kFocuserPage, 1054, {"Pipe Length", "Länge des Innenrohres"_cp1252}},
    {"focuser/osch_travel", kSheet, 3, kFocuserPage, 1053, {"Travel (mm)", "Verstellweg (Travel)"}},
    {"secondary/diameter",
     kSheet,
     4,
     kSecondaryPage,
     1018,
     {"Diameter of minor Axis (mm)", "Durchmesser der kleinen Achse"}},
    // No field of its own: it follows from the minor axis.
    {"secondary/offset",
     kSheet,
     4,
     kSecondaryPage,
     1018,
     {"Diameter of minor Axis (mm)", "Durchmesser der kleinen Achse"}},
    {"tests/artificial_star/diameter",
     kStarDialog,
     0,
     kStarTitle,
     1002,
     {"Durchmesser des Sterns (mm)", "Durchmesser des Sterns (mm)"}},
    {"tests/artificial_star/precision",
     kStarDialog,
     0,
     kStarTitle,
     1000,
     {"Genauigkeit (Lambda/x)", "Genauigkeit (Lambda/x)"}},
    {"tests/matching_ronchi/grating",
     kRonchiSheet,
     0,
     kRonchiSetup,
     1012,
     {"Gitter (Linien/mm)", "Gitter (Linien/mm)"}},
    {"tests/matching_ronchi/constant",
     kRonchiSheet,
     0,
     kRonchiSetup,
     1013,
     {"Konische Konstante (0 = Sphäre, 1 = Parabel)"_cp1252,
      "Konische Konstante (0 = Sphäre, 1 = Parabel)"_cp1252}},
};

/// Weights and balance positions share one list.
constexpr FieldPlace kBalanceList{"", kSheet, 7, kBalancePage, 1030, kComponents};

constexpr FieldPlace kNowhere{"", FieldSheet::kNone, 0, {"", ""}, 0, {"", ""}};

} // namespace

const FieldPlace& PlaceOfField(std::string_view key)
{
    if (key.starts_with("weight/") || key.starts_with("balance/")) {
        return kBalanceList;
    }
    const auto found = std::ranges::find(kPlaces, key, &FieldPlace::key);
    return found == std::end(kPlaces) ? kNowhere : *found;
}
