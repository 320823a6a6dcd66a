#include "drawing/SectionSentences.h"

#include "drawing/SectionPicture.h"
#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"
#include "raytrace/RaySets.h"
#include "raytrace/ScopeGeometry.h"

namespace {

constexpr Bilingual kTube{"Tube: %0.1f mm long, %0.1f mm wide inside, walls of %0.1f mm.",
                          "Tubus: %0.1f mm lang, innen %0.1f mm weit, Wände %0.1f mm dick."_cp1252};
constexpr Bilingual kPrimarySentence{
    "Primary: %0.1f mm in diameter, %0.1f mm thick, its face %0.1f mm behind the tube's front end.",
    "Hauptspiegel: %0.1f mm Durchmesser, %0.1f mm dick, Vorderseite %0.1f mm hinter dem vorderen Tubusende."};
constexpr Bilingual kSecondarySentence{
    "Secondary: minor axis %0.1f mm, its middle %0.1f mm behind the tube's front end, offset %0.2f mm.",
    "Fangspiegel: kleine Achse %0.1f mm, Mitte %0.1f mm hinter dem vorderen Tubusende, Offset %0.2f mm."};
constexpr Bilingual kFocuserSentence{
    "Focuser: %0.1f mm in diameter, its axis %0.1f mm behind the tube's front end, the focal plane %0.1f mm "
    "above the tube.",
    "Focuser: %0.1f mm Durchmesser, Achse %0.1f mm hinter dem vorderen Tubusende, Brennebene %0.1f mm über dem Tubus."_cp1252};
constexpr Bilingual kExtended{"The drawtube is extended by %0.1f mm.",
                              "Der Auszug ist um %0.1f mm ausgefahren."};
constexpr Bilingual kLit{"The fully lit part of the focal plane is %0.1f mm wide.",
                         "Der voll ausgeleuchtete Teil der Brennebene ist %0.1f mm breit."};
constexpr Bilingual kUnlit{"No part of the focal plane is fully lit.",
                           "Kein Teil der Brennebene ist voll ausgeleuchtet."};
constexpr Bilingual kBoxAndCage{"Mirror box %0.1f mm, upper cage %0.1f mm long.",
                                "Spiegelbox %0.1f mm, Hut %0.1f mm lang."};
constexpr Bilingual kParallelRays{"Parallel rays from a spot in infinity.",
                                  "Parallele Strahlen von einem Punkt in der Unendlichkeit."};
constexpr Bilingual kFocalRays{"Rays from the focal plane, at the height of the mouse pointer.",
                               "Strahlen von der Brennebene, in der Höhe des Mauszeigers."_cp1252};
constexpr Bilingual kPointerRays{"Rays from the mouse pointer.", "Strahlen vom Mauszeiger."};
constexpr Bilingual kZoom{"Enlarged %d times.", "%d-fach vergrößert."_cp1252};

/// The drawtube of the types 0 and 2 is the only one that slides.
bool HasDrawtube(COrrevaData& record)
{
    const std::int32_t type = record.GetFocuserType();
    return type == 0 || type == 2;
}

class Sentences {
public:
    Sentences(COrrevaData& telescope, const ViewSwitches& shown, int chosen)
        : m_record(telescope), m_switches(shown), m_language(chosen),
          m_g(BuildGeometry(telescope, shown.show_offset != 0))
    {}

    std::vector<std::string> Take(Point pointer)
    {
        AddTube();
        AddMirrors();
        AddFocuser();
        AddRays(pointer);
        return std::move(m_sentences);
    }

private:
    void Add(const Bilingual& format, std::initializer_list<double> numbers)
    {
        m_sentences.push_back(FiniteText(format.In(m_language), numbers));
    }
    double FromFront(double x) const { return x - m_g.frontX; }

    void AddTube()
    {
        Add(kTube, {m_g.tubeLength, m_record.GetInsideDiameterHat(), m_record.GetThicknessHat()});
        if (m_switches.show_box_and_cage != 0) {
            Add(kBoxAndCage, {m_record.GetHeightBox(), m_record.GetHeightHat()});
        }
    }

    void AddMirrors()
    {
        Add(kPrimarySentence,
            {m_record.GetMirrorDiameter(), m_record.GetMirrorThickness(), FromFront(m_g.mirrorX)});
        const double middle = (m_g.secondaryLeft + m_g.secondaryRight) / 2;
        const bool offset = m_switches.show_offset != 0;
        Add(kSecondarySentence, {m_record.GetSecondaryDiameter(), FromFront(middle),
                                 offset ? m_record.GetSecondaryOffset() : 0.0});
        if (!offset) {
            Add(kNoOffset, {});
        }
    }

    void AddFocuser()
    {
        Add(kFocuserSentence, {m_record.GetFocuserDiameter(), FromFront(m_g.focuserX), m_g.top});
        if (m_switches.show_extended_focuser != 0 && HasDrawtube(m_record)) {
            Add(kExtended, {m_record.GetOazTravel()});
        }
        const double lit = LitPartOfFocalPlane(m_record);
        Add(lit > 0 ? kLit : kUnlit, {lit});
    }

    void AddRays(Point pointer)
    {
        if (m_switches.ray_parallel != 0) {
            Add(kParallelRays, {});
            if (const auto status = TraceActiveSet(m_g, m_record, m_switches, pointer).status) {
                m_sentences.push_back(FormatParallelStatus(m_language, *status));
            }
        } else if (m_switches.ray_from_focal_plane != 0) {
            Add(kFocalRays, {});
        } else if (m_switches.ray_from_mouse != 0) {
            Add(kPointerRays, {});
        }
    }

    COrrevaData& m_record;
    const ViewSwitches& m_switches;
    int m_language;
    ScopeGeometry m_g;
    std::vector<std::string> m_sentences;
};

} // namespace

std::vector<std::string> SectionSentences(COrrevaData& record, const ViewSwitches& switches, Point pointer,
                                          std::int32_t zoom, int language)
{
    if (!record.HasFile()) {
        return {kNoTelescope.In(language)};
    }
    std::vector<std::string> sentences = Sentences(record, switches, language).Take(pointer);
    if (zoom > 1) {
        sentences.push_back(FormatText(kZoom.In(language), zoom));
    }
    return sentences;
}
