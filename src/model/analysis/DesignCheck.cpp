#include "model/analysis/DesignCheck.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/FormatText.h"
#include "model/analysis/FieldPlaces.h"
#include "model/analysis/SecondaryFormulas.h"

#include <algorithm>
#include <cmath>

namespace {

/// The numbers of the design that is checked, by their names.
class CheckedNumbers {
public:
    explicit CheckedNumbers(const DesignState& design) : m_numbers(ReadDesignValues(design)) {}

    double operator()(const char* name) const
    {
        return m_numbers[static_cast<std::size_t>(FindDesignValue(name) - DesignValues().data())];
    }
    const std::vector<double>& All() const { return m_numbers; }
    bool IsTruss() const { return (*this)("tube/type") > 0; }

private:
    std::vector<double> m_numbers;
};

/// A rule about one number. Its texts take what `told` gives, one number or two.
struct CheckRule {
    Severity severity;
    const char* code;
    const char* name;
    const char* concern;
    bool (*holds)(const CheckedNumbers&);
    double (*told)(const CheckedNumbers&);
    double (*against)(const CheckedNumbers&); ///< null: there is nothing to tell beside it
    Bilingual sentence;
    Bilingual remedy; ///< takes the title of the page and the label of the field
};

template <const char* name>
double Number(const CheckedNumbers& numbers)
{
    return numbers(name);
}

constexpr char kWanted[] = "misc/wanted_100percent_fow";
constexpr char kMinorAxis[] = "secondary/diameter";
constexpr char kTotalHeight[] = "focuser_total_height";
constexpr char kFullField[] = "full_field";
constexpr char kTubeLimit[] = "tube_field_limit";
constexpr char kFocuserLimit[] = "focuser_field_limit";
constexpr char kObstruction[] = "linear_obstruction";
constexpr char kFront[] = "tube/distance_front";
constexpr char kEighteen[] = "cell_eighteen";
constexpr char kGravity[] = "centre_of_gravity";
constexpr char kTubeLength[] = "tube_length";

double SmallestMinorAxis(const CheckedNumbers& numbers)
{
    return MinorAxisForCentre(numbers("mirror/diameter"), numbers("mirror/focal_length"),
                              numbers("focal_plane_height"));
}

double FocuserRadius(const CheckedNumbers& numbers) { return numbers("focuser/diameter") / 2; }

template <const char* limit>
bool CutsField(const CheckedNumbers& numbers)
{
    return numbers(limit) < numbers(kWanted);
}

constexpr double kNotedObstruction = 30; // per cent
constexpr double kLargeObstruction = 50;

bool IsObstructionLarge(const CheckedNumbers& numbers) { return numbers(kObstruction) > kLargeObstruction; }

bool IsObstructionNoted(const CheckedNumbers& numbers)
{
    return numbers(kObstruction) > kNotedObstruction && !IsObstructionLarge(numbers);
}

constexpr double kFineEnough = 32; // lambda / 32

bool IsBlankTooThin(const CheckedNumbers& numbers)
{
    return std::ranges::all_of(
        std::initializer_list<const char*>{"cell_three_at_edge", "cell_three_at_70", "cell_nine", kEighteen},
        [&](const char* figure) { return numbers(figure) < kFineEnough; });
}

constexpr Bilingual kObstructsMuch{"The secondary obstructs %s %% of the mirror's diameter.",
                                   "Der Fangspiegel verdeckt %s %% des Spiegeldurchmessers."};
constexpr Bilingual kObstructsLess{
    "On the page %s, a smaller number in the field \"%s\" obstructs less, or its reset arrow proposes one.",
    "Auf der Seite %s verdeckt eine kleinere Zahl im Feld \"%s\" weniger, oder sein Rücksetzpfeil schlägt "
    "eine "
    "vor."_cp1252};

constexpr Bilingual kEnterLarger{
    "On the page %s, enter a larger number into the field \"%s\", or press its reset arrow.",
    "Geben Sie auf der Seite %s eine größere Zahl in das Feld \"%s\" ein, oder drücken Sie seinen "
    "Rücksetzpfeil."_cp1252};
constexpr Bilingual kLookAtList{
    "On the page %s, look through the list \"%s\" for a wrong weight or position.",
    "Suchen Sie auf der Seite %s in der Liste \"%s\" nach einem falschen Gewicht oder einer falschen Lage."};

constexpr CheckRule kRules[] = {
    {Severity::kError,
     "secondary-misses-light",
     kMinorAxis,
     kMinorAxis,
     [](const CheckedNumbers& numbers) { return SmallestMinorAxis(numbers) > numbers(kMinorAxis); },
     Number<kMinorAxis>,
     SmallestMinorAxis,
     {"The secondary of %s mm is smaller than the light's cone, which is %s mm wide there.",
      "Der Fangspiegel von %s mm ist kleiner als der Lichtkegel, der dort %s mm breit ist."},
     kEnterLarger},
    {Severity::kError,
     "focus-in-tube",
     kTotalHeight,
     "focuser/height",
     [](const CheckedNumbers& numbers) { return numbers(kTotalHeight) <= 0; },
     Number<kTotalHeight>,
     nullptr,
     {"The focal plane stands %s mm above the tube, where no eyepiece reaches it.",
      "Die Brennebene liegt %s mm über dem Tubus, wo kein Okular sie erreicht."_cp1252},
     kEnterLarger},
    {Severity::kWarning,
     "secondary-cuts-field",
     kFullField,
     kMinorAxis,
     CutsField<kFullField>,
     Number<kFullField>,
     Number<kWanted>,
     {"The secondary fully lights a field of %s mm, less than the wanted %s mm.",
      "Der Fangspiegel leuchtet ein Feld von %s mm voll aus, weniger als die gewünschten %s mm."_cp1252},
     kEnterLarger},
    {Severity::kWarning,
     "tube-cuts-field",
     kTubeLimit,
     "tube/inside_diameter_hat",
     CutsField<kTubeLimit>,
     Number<kTubeLimit>,
     Number<kWanted>,
     {"The tube passes a fully lit field of %s mm, less than the wanted %s mm.",
      "Der Tubus lässt ein voll ausgeleuchtetes Feld von %s mm durch, weniger als die gewünschten %s mm."_cp1252},
     kEnterLarger},
    {Severity::kWarning,
     "focuser-cuts-field",
     kFocuserLimit,
     "focuser/diameter",
     CutsField<kFocuserLimit>,
     Number<kFocuserLimit>,
     Number<kWanted>,
     {"The focuser passes a fully lit field of %s mm, less than the wanted %s mm.",
      "Der Okularauszug lässt ein voll ausgeleuchtetes Feld von %s mm durch, weniger als die gewünschten %s "
      "mm."_cp1252},
     kEnterLarger},
    {Severity::kWarning, "obstruction-large", kObstruction, kMinorAxis, IsObstructionLarge,
     Number<kObstruction>, nullptr, kObstructsMuch, kObstructsLess},
    {Severity::kNote, "obstruction-large", kObstruction, kMinorAxis, IsObstructionNoted, Number<kObstruction>,
     nullptr, kObstructsMuch, kObstructsLess},
    {Severity::kWarning,
     "front-too-short",
     kFront,
     kFront,
     [](const CheckedNumbers& numbers) { return numbers(kFront) < FocuserRadius(numbers); },
     Number<kFront>,
     FocuserRadius,
     {"The tube ends %s mm in front of the focuser's centre, within the focuser's radius of %s mm.",
      "Der Tubus endet %s mm vor der Mitte des Okularauszugs, innerhalb seines Radius von %s mm."},
     kEnterLarger},
    {Severity::kNote,
     "blank-too-thin",
     kEighteen,
     "mirror/thickness",
     IsBlankTooThin,
     Number<kEighteen>,
     nullptr,
     {"Even 18 points of support keep the mirror to lambda / %s only.",
      "Selbst 18 Auflagepunkte halten den Spiegel nur auf lambda / %s."},
     {"On the page %s, enter a larger number into the field \"%s\", press its reset arrow, or plan a cell of "
      "more points.",
      "Geben Sie auf der Seite %s eine größere Zahl in das Feld \"%s\" ein, drücken Sie seinen "
      "Rücksetzpfeil, oder sehen Sie eine Zelle mit mehr Punkten vor."_cp1252}},
    {Severity::kNote,
     "balance-outside-tube",
     kGravity,
     "balance/mirror",
     [](const CheckedNumbers& numbers) {
         return numbers(kGravity) < 0 || numbers(kGravity) > numbers(kTubeLength);
     },
     Number<kGravity>,
     Number<kTubeLength>,
     {"The centre of gravity lies %s mm from the rear end of a tube of %s mm, which is outside of it.",
      "Der Schwerpunkt liegt %s mm vom hinteren Ende eines Tubus von %s mm und damit außerhalb."_cp1252},
     kLookAtList},
};

constexpr Bilingual kNotFinite{"%s is no finite number.", "%s ist keine endliche Zahl."};
constexpr Bilingual kNotPositive{"%s: %s %s is not above 0.", "%s: %s %s ist nicht größer als 0."_cp1252};
constexpr Bilingual kNarrower{"%s: %s mm is narrower than the mirror of %s mm.",
                              "%s: %s mm ist enger als der Spiegel von %s mm."};

constexpr Bilingual kEnterNumber{
    "On the page %s, enter a number into the field \"%s\", or press its reset arrow.",
    "Geben Sie auf der Seite %s eine Zahl in das Feld \"%s\" ein, oder drücken Sie seinen Rücksetzpfeil."_cp1252};
constexpr Bilingual kEnterPositive{
    "On the page %s, enter a number above 0 into the field \"%s\", or press its reset arrow.",
    "Geben Sie auf der Seite %s eine Zahl größer als 0 in das Feld \"%s\" ein, oder drücken Sie seinen "
    "Rücksetzpfeil."_cp1252};
constexpr Bilingual kLookAtCause{"Look at the numbers that it rests on, first on the page %s at the field "
                                 "\"%s\": enter a number there, or "
                                 "press its reset arrow.",
                                 "Sehen Sie die Zahlen an, auf denen es beruht, zuerst auf der Seite %s das "
                                 "Feld \"%s\": geben Sie dort eine "
                                 "Zahl ein, oder drücken Sie seinen Rücksetzpfeil."_cp1252};
constexpr Bilingual kEnterInDialog{
    "In the dialog \"%s\", enter a number above 0 into the field \"%s\".",
    "Geben Sie im Dialog \"%s\" eine Zahl größer als 0 in das Feld \"%s\" ein."_cp1252};
/// The mirror box shares its width with the tube until a file says otherwise, and no page shows it.
constexpr Bilingual kNoField{"No page has a field for it: save the design with orreva-cli and --set "
                             "%s=unset, and it follows the tube.",
                             "Keine Seite hat ein Feld dafür: sichern Sie den Entwurf mit orreva-cli und "
                             "--set %s=unset, und es folgt dem "
                             "Tubus."_cp1252};

/// Gathers the findings of one design.
class DesignChecker {
public:
    DesignChecker(const DesignState& design, int language) : m_numbers(design), m_language(language) {}

    std::vector<DesignFinding> Check()
    {
        AddNotFinite();
        for (const char* const name :
             {"mirror/diameter", "mirror/focal_length", "mirror/thickness", kMinorAxis, "focuser/diameter"}) {
            AddNotPositive(name);
        }
        for (const char* const name : Widths()) {
            AddNotPositive(name);
        }
        for (const char* const name : Widths()) {
            AddNarrower(name);
        }
        for (const CheckRule& rule : kRules) {
            AddByRule(rule);
        }
        return std::move(m_findings);
    }

private:
    std::vector<const char*> Widths() const
    {
        std::vector<const char*> widths{"tube/inside_diameter_hat"};
        if (m_numbers.IsTruss()) {
            widths.push_back("tube/inside_diameter_box");
        }
        return widths;
    }

    void AddNotFinite()
    {
        for (std::size_t i = 0; i < DesignValues().size(); ++i) {
            const DesignValue& value = DesignValues()[i];
            if (!std::isfinite(m_numbers.All()[i])) {
                Add(Severity::kError, "not-finite", value, value.concern,
                    FormatText(kNotFinite.In(m_language), value.label.In(m_language)),
                    value.field != nullptr ? kEnterNumber : kLookAtCause);
            }
        }
    }

    void AddNotPositive(const char* name)
    {
        const double number = m_numbers(name);
        if (number <= 0) {
            const DesignValue& value = *FindDesignValue(name);
            Add(Severity::kError, "not-positive", value, name,
                FormatText(kNotPositive.In(m_language), value.label.In(m_language), Told(number).c_str(),
                           value.unit),
                kEnterPositive);
        }
    }

    void AddNarrower(const char* name)
    {
        const double mirror = m_numbers("mirror/diameter");
        const double width = m_numbers(name);
        if (width < mirror) {
            const DesignValue& value = *FindDesignValue(name);
            Add(Severity::kError, "tube-narrower-than-mirror", value, name,
                FormatText(kNarrower.In(m_language), value.label.In(m_language), Told(width).c_str(),
                           Told(mirror).c_str()),
                kEnterLarger);
        }
    }

    void AddByRule(const CheckRule& rule)
    {
        if (!rule.holds(m_numbers)) {
            return;
        }
        const std::string told = Told(rule.told(m_numbers));
        const char* const sentence = rule.sentence.In(m_language);
        Add(rule.severity, rule.code, *FindDesignValue(rule.name), rule.concern,
            rule.against == nullptr
                ? FormatText(sentence, told.c_str())
                : FormatText(sentence, told.c_str(), Told(rule.against(m_numbers)).c_str()),
            rule.remedy);
    }

    void Add(Severity severity, const char* code, const DesignValue& value, const char* concern,
             std::string sentence, const Bilingual& remedy)
    {
        m_findings.push_back({severity, code, &value, concern, std::move(sentence), Remedy(concern, remedy)});
    }

    std::string Remedy(const char* concern, const Bilingual& remedy) const
    {
        const FieldPlace& place = PlaceOfField(concern);
        if (place.sheet == FieldSheet::kNone) {
            return FormatText(kNoField.In(m_language), concern);
        }
        const Bilingual& text = IsComponentsList(place)                      ? kLookAtList
                                : place.sheet == FieldSheet::kArtificialStar ? kEnterInDialog
                                                                             : remedy;
        return FormatText(text.In(m_language), place.page_title.In(m_language), place.label.In(m_language));
    }

    static bool IsComponentsList(const FieldPlace& place) { return place.key.empty(); }
    static std::string Told(double number) { return FiniteText("%0.2f", {number}); }

    CheckedNumbers m_numbers;
    int m_language;
    std::vector<DesignFinding> m_findings;
};

} // namespace

const Bilingual kSeverityNames[3] = {{"Error", "Fehler"}, {"Warning", "Warnung"}, {"Note", "Hinweis"}};

const char* SeverityWord(Severity severity)
{
    static constexpr const char* kWords[] = {"error", "warning", "note"};
    return kWords[static_cast<std::size_t>(severity)];
}

std::vector<DesignFinding> CheckDesign(const DesignState& design, int language)
{
    return DesignChecker(design, language).Check();
}

std::size_t CountProblems(const std::vector<DesignFinding>& findings, Severity severity)
{
    return static_cast<std::size_t>(std::ranges::count(findings, severity, &DesignFinding::severity));
}
