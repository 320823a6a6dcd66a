#pragma once

#include "model/optics/CouderMask.h"
#include "model/optics/Readings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The series of readings of one mirror, as the builder types them: texts, so that nothing typed is lost,
// whether it is a number or not yet. Texts are bytes of code page 1252 here and UTF-8 in the file.

/// A zone's row of the table: its radius, and the readings, run by run. A cell may be empty.
struct SeriesZone {
    std::string radius;
    std::vector<std::string> readings;

    bool operator==(const SeriesZone&) const = default;
};

struct ReadingSeries {
    std::string name;
    std::string date; ///< as ISO 8601
    std::int32_t light_source = kMovingSource;
    std::int32_t mask_type = kCouderMask;
    std::vector<SeriesZone> zones;

    bool operator==(const ReadingSeries&) const = default;
};

/// All series that are kept beside a design, and what they are held against.
struct ReadingBook {
    std::vector<ReadingSeries> series;
    double conic = -1;
    double wavelength = 550; ///< nm

    bool operator==(const ReadingBook&) const = default;
};

inline constexpr std::size_t kMostSeries = 1000;

// Making series ------------------------------------------------------------------------------------------

/// A new series without readings, named by the first free number. Its zones are those of the current mask;
/// without a mask, or with one that has no zones, those of the zone calculator, at most 64. D: mm.
ReadingSeries NewSeries(const ReadingBook& book, const CouderMask* mask, const ZoneFields& fields, double D,
                        std::string date, int language);

/// The series once more, under a name of its own.
ReadingSeries CopyOfSeries(const ReadingBook& book, const ReadingSeries& series);

/// Gives a series another name, in one line and without the blanks around it; false if the name is empty or
/// another series has it.
bool RenameSeries(ReadingBook& book, std::size_t index, std::string_view name);

// Cells --------------------------------------------------------------------------------------------------

/// Column 0 of the table is the radius, the runs follow.
inline constexpr std::size_t kRadiusColumn = 0;

/// The text of a cell, empty where the series has none.
std::string CellOf(const ReadingSeries& series, std::size_t zone, std::size_t column);

/// Stores what was typed; a comma counts as a point. A cell beyond the table makes room up to its limits;
/// false, with nothing stored, beyond those.
bool StoreCell(ReadingSeries& series, std::size_t zone, std::size_t column, std::string_view text);

/// Stores a block of a spreadsheet (cells parted by TAB, lines by LF or CR LF) from a cell on; false, with
/// nothing stored, if it does not fit into the limits of the table.
bool PasteBlock(ReadingSeries& series, std::size_t zone, std::size_t column, std::string_view block);

/// The number of runs: the longest zone's.
std::size_t RunsOf(const ReadingSeries& series);

/// Whether a cell holds what does not belong there: text that is no number, or a radius that is not above 0,
/// does not rise, or lies beyond `outer`. Null if all is well; an empty reading is not wrong, only missing.
const Bilingual* CellFault(const ReadingSeries& series, std::size_t zone, std::size_t column, double outer);

/// Mean of a zone's readings and their spread, the standard deviation of a single one, mm. Cells that are
/// empty or wrong do not count.
struct ZoneSpread {
    std::size_t count = 0;
    double mean = 0;   ///< of at least one reading
    double spread = 0; ///< of at least two
};
ZoneSpread SpreadOf(const SeriesZone& zone);

/// What hinders a series from being reduced: the place of the first cell at fault.
struct SeriesFault {
    std::size_t zone;
    std::size_t column;
    Bilingual reason;
};

/// "zone 3, reading 2: this is no number".
std::string SeriesFaultText(const SeriesFault& fault, int language);

/// The zones of a series as they are reduced, or why they cannot be. `outer`: half the mirror's diameter, mm.
struct SeriesReading {
    std::vector<ZoneMean> zones;
    std::optional<SeriesFault> fault;
};
SeriesReading ReadSeries(const ReadingSeries& series, double outer);

// The file -----------------------------------------------------------------------------------------------

/// The path of the readings kept beside a design: "NAME.foucault.csv" for "NAME.orreva.xml".
std::string ReadingsPath(std::string_view design_path);

/// A series as a file of readings with its name, date, source and mask in lines that begin with #. UTF-8.
std::string SeriesText(const ReadingSeries& series);

/// All series, one after the other. What SeriesText writes is a part of it.
std::string BookText(const ReadingBook& book);

/// The book of such a file, with every cell as it stands there; nothing if the file is damaged: no file of
/// ours, no UTF-8, or beyond the limits.
std::optional<ReadingBook> ParseBook(std::string_view text);

/// How many series a file of readings holds, by the lines that name them.
std::size_t SeriesCount(std::string_view text);

/// The series of a file of readings that are imported into a book: each must be without fault. A series
/// without a name is given `name`.
struct SeriesImport {
    std::vector<ReadingSeries> series;
    std::optional<ReadingsFault> fault;
};
SeriesImport ImportSeries(std::string_view text, double outer, const std::string& name);
