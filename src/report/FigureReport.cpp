#include "report/FigureReport.h"

#include "lib/text/Json.h"
#include "lib/text/ShortestNumber.h"

namespace {

struct FigureNumber {
    const char* name;
    double Figure::*value;
    const char* unit;
};

constexpr FigureNumber kFigureNumbers[] = {
    {"wavefront_pv", &Figure::pv, "nm"},
    {"wavefront_rms", &Figure::rms, "nm"},
    {"wavefront_pv_waves", &Figure::pv_waves, "1"},
    {"strehl", &Figure::strehl, "1"},
    {"transverse_max", &Figure::transverse_max, "1"},
    {"conic", &Figure::conic, "1"},
    {"focus", &Figure::focus, "mm"},
};

struct ZoneNumber {
    const char* name;
    double FigureZone::*value;
};

constexpr ZoneNumber kZoneNumbers[] = {
    {"radius", &FigureZone::radius},         {"reading", &FigureZone::reading},
    {"ideal", &FigureZone::ideal},           {"deviation", &FigureZone::deviation},
    {"transverse", &FigureZone::transverse},
};

std::vector<std::string> ZoneColumns()
{
    std::vector<std::string> columns{"zone"};
    for (const ZoneNumber& number : kZoneNumbers) {
        columns.emplace_back(number.name);
    }
    return columns;
}

/// The rows of the zones; `cells` holds what stands before their numbers.
void AppendZones(std::string& text, const TableLayout& layout, const Figure& figure,
                 std::vector<TableCell> cells)
{
    const std::size_t leading = cells.size();
    for (std::size_t i = 0; i < figure.zones.size(); ++i) {
        cells.resize(leading);
        cells.emplace_back(static_cast<double>(i + 1));
        for (const ZoneNumber& number : kZoneNumbers) {
            cells.emplace_back(figure.zones[i].*number.value);
        }
        layout.AppendRow(text, cells, i == 0);
    }
}

/// The object of a figure; `series` comes first, if it has a name.
void WriteFigure(JsonWriter& json, const std::string* series, const Figure& figure, double D)
{
    json.BeginObject();
    if (series != nullptr) {
        json.Key("series");
        json.Text(*series);
    }
    json.Key("zones");
    json.BeginArray();
    for (const FigureZone& zone : figure.zones) {
        json.BeginObject();
        for (const ZoneNumber& number : kZoneNumbers) {
            json.Key(number.name);
            json.Number(zone.*number.value);
        }
        json.EndObject();
    }
    json.EndArray();
    for (const FigureNumber& number : kFigureNumbers) {
        json.Key(number.name);
        json.Number(figure.*number.value);
    }
    json.Key("profile");
    json.BeginArray();
    for (const auto& [radius, height] : ProfileOf(figure, D)) {
        json.BeginArray();
        json.Number(radius);
        json.Number(height);
        json.EndArray();
    }
    json.EndArray();
    json.EndObject();
}

/// The zones, an empty line and the numbers with their units.
void AppendFigure(std::string& text, const Figure& figure)
{
    const TableLayout layout(TableFormat::kText, ZoneColumns(), true);
    layout.AppendHead(text);
    AppendZones(text, layout, figure, {});
    text += '\n';
    for (const FigureNumber& number : kFigureNumbers) {
        text += number.name + std::string("\t");
        AppendNumber(text, figure.*number.value);
        text += std::string("\t") + number.unit + '\n';
    }
}

} // namespace

std::string FigureReport(const Figure& figure, double D, TableFormat format)
{
    std::string text;
    if (format == TableFormat::kJson) {
        JsonWriter json(text);
        WriteFigure(json, nullptr, figure, D);
    } else if (format == TableFormat::kCsv) {
        const TableLayout layout(format, ZoneColumns(), true);
        layout.AppendHead(text);
        AppendZones(text, layout, figure, {});
    } else {
        AppendFigure(text, figure);
    }
    return text;
}

std::string SeriesFiguresReport(std::span<const NamedFigure> figures, double D, TableFormat format)
{
    std::string text;
    if (format == TableFormat::kJson) {
        JsonWriter json(text);
        json.BeginArray();
        for (const auto& [name, figure] : figures) {
            WriteFigure(json, &name, figure, D);
        }
        json.EndArray();
    } else if (format == TableFormat::kCsv) {
        std::vector<std::string> columns = ZoneColumns();
        columns.insert(columns.begin(), "series");
        const TableLayout layout(format, columns, true);
        layout.AppendHead(text);
        for (const auto& [name, figure] : figures) {
            AppendZones(text, layout, figure, {std::string_view(name)});
        }
    } else {
        for (const auto& [name, figure] : figures) {
            text += "# ";
            AppendTextCell(text, name);
            text += '\n';
            AppendFigure(text, figure);
        }
    }
    return text;
}
