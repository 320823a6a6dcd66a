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

std::string ZoneTableText(const Figure& figure, TableFormat format)
{
    std::vector<std::string> columns{"zone"};
    for (const ZoneNumber& number : kZoneNumbers) {
        columns.emplace_back(number.name);
    }
    const TableLayout layout(format, columns, true);
    std::string text;
    layout.AppendHead(text);
    for (std::size_t i = 0; i < figure.zones.size(); ++i) {
        std::vector<TableCell> cells{static_cast<double>(i + 1)};
        for (const ZoneNumber& number : kZoneNumbers) {
            cells.emplace_back(figure.zones[i].*number.value);
        }
        layout.AppendRow(text, cells, i == 0);
    }
    return text;
}

std::string FigureJson(const Figure& figure, double D)
{
    std::string text;
    JsonWriter json(text);
    json.BeginObject();
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
    return text;
}

} // namespace

std::string FigureReport(const Figure& figure, double D, TableFormat format)
{
    if (format == TableFormat::kJson) {
        return FigureJson(figure, D);
    }
    std::string text = ZoneTableText(figure, format);
    if (format == TableFormat::kText) {
        text += '\n';
        for (const FigureNumber& number : kFigureNumbers) {
            text += number.name + std::string("\t");
            AppendNumber(text, figure.*number.value);
            text += std::string("\t") + number.unit + '\n';
        }
    }
    return text;
}
