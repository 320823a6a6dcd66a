#include "drawing/VariationChart.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace {

constexpr Colour kCurveColours[] = {{33, 113, 205}, {214, 108, 8}, {34, 139, 72}, {160, 72, 176}};
constexpr Colour kPresentColour{128, 128, 128};
constexpr Colour kWantedColour{198, 40, 40};
constexpr std::size_t kMostPoints = 2000; // more than any screen has columns

constexpr Bilingual kPresent{"present", "jetzt"};
constexpr Bilingual kWantedField{"wanted field", "gewünschtes Feld"_cp1252};

constexpr std::string_view kFieldValues[] = {"misc/wanted_100percent_fow", "full_field", "tube_field_limit",
                                             "focuser_field_limit", "field_at_75_percent"};

bool IsField(const DesignValue& value) { return std::ranges::count(kFieldValues, value.name) > 0; }

/// Finite numbers from the lowest to the highest.
struct Extent {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void Take(double number)
    {
        if (std::isfinite(number)) {
            low = std::min(low, number);
            high = std::max(high, number);
        }
    }
    ChartRange Range() const { return RoundRange(low, high); }
};

std::string WithUnit(const Bilingual& label, std::string_view unit, int language)
{
    std::string text = label.In(language);
    return unit == "1" ? text : text + " (" + std::string(unit) + ")";
}

std::string_view LeftUnit(const VariationCurves& curves)
{
    const auto length =
        std::ranges::find(curves.values, std::string_view("mm"),
                          [](const DesignValue* value) { return std::string_view(value->unit); });
    return length == curves.values.end() ? curves.values.front()->unit : (*length)->unit;
}

std::vector<Point> Points(const VariationCurves& curves, const std::vector<double>& numbers)
{
    const std::size_t count = std::min(curves.places.size(), numbers.size());
    const std::size_t step = std::max<std::size_t>(1, count / kMostPoints);
    std::vector<Point> points;
    for (std::size_t i = 0; i < count; i += step) {
        points.push_back({curves.places[i], numbers[i]});
    }
    return points;
}

/// Builds the chart of some curves, value by value.
class VariationPlan {
public:
    VariationPlan(const VariationCurves& curves, int language)
        : m_curves(curves), m_language(language), m_leftUnit(LeftUnit(curves))
    {}

    Chart Make()
    {
        for (std::size_t i = 0; i < m_curves.values.size(); ++i) {
            AddCurve(i);
        }
        AddWanted();
        Extent places;
        for (const double place : m_curves.places) {
            places.Take(place);
        }
        m_chart.bottom.title = WithUnit(m_curves.field->label, m_curves.field->unit, m_language);
        m_chart.bottom.range = places.Range();
        m_chart.left.title = m_leftUnit == "1" ? "" : std::string(m_leftUnit);
        m_chart.left.range = m_left.Range();
        if (!m_rightUnits.empty()) {
            m_chart.right = ChartAxis{m_rightUnits, m_right.Range(), {}};
        }
        m_chart.uprights.push_back({m_curves.present, kPresentColour, kPresent.In(m_language)});
        return std::move(m_chart);
    }

private:
    void AddCurve(std::size_t i)
    {
        const DesignValue& value = *m_curves.values[i];
        const bool left = value.unit == m_leftUnit;
        const ChartSide side = left ? ChartSide::kLeft : ChartSide::kRight;
        Extent& extent = left ? m_left : m_right;
        for (const double number : m_curves.curves[i]) {
            extent.Take(number);
        }
        extent.Take(m_curves.present_values[i]);
        if (!left) {
            NoteRightUnit(value.unit);
        }
        const Colour colour = kCurveColours[i % std::size(kCurveColours)];
        m_chart.lines.push_back({Points(m_curves, m_curves.curves[i]), colour, true, side,
                                 WithUnit(value.label, value.unit, m_language)});
        m_chart.dots.push_back({{m_curves.present, m_curves.present_values[i]}, colour, "", side});
    }

    void NoteRightUnit(const std::string& unit)
    {
        if (unit != "1" && m_rightUnits.find(unit) == std::string::npos) {
            m_rightUnits += (m_rightUnits.empty() || m_rightUnits == " " ? "" : ", ") + unit;
        } else if (m_rightUnits.empty()) {
            m_rightUnits = " "; // an axis without a title
        }
    }

    void AddWanted()
    {
        if (std::ranges::any_of(m_curves.values, [](const DesignValue* value) { return IsField(*value); })) {
            m_left.Take(m_curves.wanted_field);
            m_chart.levels.push_back({m_curves.wanted_field, kWantedColour, kWantedField.In(m_language)});
        }
    }

    const VariationCurves& m_curves;
    int m_language;
    std::string_view m_leftUnit;
    std::string m_rightUnits{};
    Extent m_left{};
    Extent m_right{};
    Chart m_chart{};
};

} // namespace

Chart VariationChart(const VariationCurves& curves, int language)
{
    return curves.field == nullptr || curves.values.empty() ? Chart{}
                                                            : VariationPlan(curves, language).Make();
}

std::size_t NearestPlace(const VariationCurves& curves, double x)
{
    std::size_t nearest = 0;
    for (std::size_t i = 1; i < curves.places.size(); ++i) {
        if (std::abs(curves.places[i] - x) < std::abs(curves.places[nearest] - x)) {
            nearest = i;
        }
    }
    return nearest;
}
