#pragma once

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/optics/Figure.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A file of readings: one zone a line, its centre's radius and the places of the knife, in mm, parted by
// comma, semicolon or TAB. Lines that begin with # or "radius" and empty lines are skipped.

inline constexpr std::size_t kMostZones = 64;
inline constexpr std::size_t kMostReadings = 100; ///< a zone

/// What may be wrong with a zone or a reading, wherever they stand.
namespace readings_fault {

inline constexpr Bilingual kNoRadius{"the radius of the zone is no number",
                                     "der Radius der Zone ist keine Zahl"};
inline constexpr Bilingual kNoReading{"the zone has no reading", "die Zone hat keinen Messwert"};
inline constexpr Bilingual kNoNumber{"a reading is no number", "ein Messwert ist keine Zahl"};
inline constexpr Bilingual kNotAbove0{"the radius of a zone must be above 0",
                                      "der Radius einer Zone muss über 0 liegen"_cp1252};
inline constexpr Bilingual kNotRising{"the radii of the zones must rise",
                                      "die Radien der Zonen müssen steigen"_cp1252};
inline constexpr Bilingual kBeyond{"the zone lies beyond the edge of the mirror",
                                   "die Zone liegt außerhalb des Spiegels"_cp1252};
inline constexpr Bilingual kManyReadings{"more than 100 readings of a zone",
                                         "mehr als 100 Messwerte einer Zone"};
inline constexpr Bilingual kManyZones{"more than 64 zones", "mehr als 64 Zonen"};
inline constexpr Bilingual kFewZones{"fewer than 3 zones", "weniger als 3 Zonen"};

} // namespace readings_fault

struct MeasuredZone {
    double radius;                ///< mm
    std::vector<double> readings; ///< mm, at least one
};

/// Why a file of readings is not taken.
struct ReadingsFault {
    int line; ///< counted from 1, the skipped ones too
    Bilingual reason;
};

struct ReadingsParse {
    std::vector<MeasuredZone> zones; ///< up to the fault
    std::optional<ReadingsFault> fault;
};

/// Reads the text of such a file, which may begin with a byte-order mark and have CR LF. `outer` is half the
/// mirror's diameter in mm, beyond which no zone lies.
ReadingsParse ParseReadings(std::string_view text, double outer);

/// The same of a part of a file that begins with the line of that number, and never with a byte-order mark.
ReadingsParse ParseReadingLines(std::string_view text, double outer, int first_line);

/// "line 3: the radii must rise".
std::string FaultText(const ReadingsFault& fault, int language);

/// The zones with the means of their readings.
std::vector<ZoneMean> MeansOf(const std::vector<MeasuredZone>& zones);

/// A number that a cell of the file holds whole: an optional sign, digits, a point, digits, an exponent, and
/// blanks around it. Nothing for anything else, nor for a number too large for a double.
std::optional<double> ReadingValue(std::string_view cell);
