#include "drawing/paper/SheetParts.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "model/optics/CentreMarks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Bilingual kNoSecondary{"the secondary has no size", "der Fangspiegel hat keine Größe"_cp1252};
constexpr Bilingual kNoMarks{"the centre marks have no size",
                             "die Mittenmarkierungen haben keine Größe"_cp1252};

constexpr double kWordHeight = 3;
constexpr double kWordGap = 2;

/// Words that begin at a place, which is the middle of their line's height; the box makes room for them.
void AddWords(SheetDrawing& drawing, Point at, std::string text)
{
    SheetText words{at, std::move(text), kWordHeight};
    const double half = words.HalfSize().x;
    words.middle.x += half;
    SheetBox& box = drawing.box;
    box.low = {std::min(box.low.x, at.x), std::min(box.low.y, at.y - kWordHeight / 2)};
    box.high = {std::max(box.high.x, words.middle.x + half), std::max(box.high.y, at.y + kWordHeight / 2)};
    drawing.texts.push_back(std::move(words));
}

// The secondary --------------------------------------------------------------------------------------------

constexpr Bilingual kMinor{"small axis %0.2f mm", "kleine Achse %0.2f mm"};
constexpr Bilingual kMajor{"long axis %0.2f mm", "große Achse %0.2f mm"_cp1252};
constexpr Bilingual kGeometric{"geometric centre", "geometrische Mitte"};
constexpr Bilingual kOptical{"optical centre, off by %0.2f mm", "optische Mitte, versetzt um %0.2f mm"};
constexpr Bilingual kFocuserEnd{"end at the focuser", "Ende am Focuser"};
constexpr Bilingual kMirrorEnd{"end at the primary", "Ende am Hauptspiegel"};

/// Words beside the ellipse with a line that leads to what they tell of.
void AddNote(SheetDrawing& drawing, Point of, Point at, std::string text)
{
    drawing.lines.push_back({of, {at.x - 1, at.y}, kSheetHelp});
    AddWords(drawing, at, std::move(text));
}

// The marks ------------------------------------------------------------------------------------------------

constexpr Bilingual kPrimaryMark{"mark of the primary: at most %0.2f mm",
                                 "Markierung des Hauptspiegels: höchstens %0.2f mm"_cp1252};
constexpr Bilingual kSecondaryMark{"mark of the secondary: at most %0.2f mm",
                                   "Markierung des Fangspiegels: höchstens %0.2f mm"_cp1252};
constexpr Bilingual kNoPrimaryMark{"mark of the primary: 0 mm, none",
                                   "Markierung des Hauptspiegels: 0 mm, keine"};
constexpr Bilingual kNoSecondaryMark{"mark of the secondary: 0 mm, none",
                                     "Markierung des Fangspiegels: 0 mm, keine"};

/// A mark below the drawing so far, with its words below it.
void AddMark(SheetDrawing& drawing, double diameter, const Bilingual& words, const Bilingual& none,
             int language)
{
    const double radius = diameter / 2;
    double y = drawing.box.high.y + kWordGap;
    if (diameter > 0) {
        const Point centre{radius, y + radius};
        drawing.arcs.push_back({centre, radius, radius});
        drawing.Cross(centre, std::min(3.0, radius / 2));
        y += diameter + kWordGap;
        drawing.box.high = {std::max(drawing.box.high.x, diameter), y};
    }
    const std::string text =
        diameter > 0 ? FormatText(words.In(language), diameter) : std::string(none.In(language));
    AddWords(drawing, {0, y + kWordHeight / 2}, text);
}

} // namespace

SheetResult SecondarySheet(COrrevaData& record, int language)
{
    const double m = record.GetSecondaryDiameter();
    const double shift = std::numbers::sqrt2 * record.GetSecondaryOffset();
    if (!(m > 0) || !std::isfinite(m) || !std::isfinite(shift)) {
        return kNoSecondary;
    }
    const double a = m / 2;
    const double b = std::numbers::sqrt2 * m / 2;
    SheetContent sheet;
    SheetDrawing& drawing = sheet.drawing;
    // The offset moves the mirror away from the focuser: the light's axis meets it nearer to that end, above.
    const Point optical{0, -shift};
    drawing.box = {{-a, std::min(-b, optical.y)}, {a, std::max(b, optical.y)}};
    drawing.arcs.push_back({{0, 0}, a, b});
    drawing.lines.push_back({{-a, 0}, {a, 0}, kSheetHelp});
    drawing.lines.push_back({{0, -b}, {0, b}, kSheetHelp});
    drawing.Cross(optical, 2, kSheetInk);
    drawing.arcs.push_back({optical, 1, 1});

    // Beside a large ellipse the notes would ask for more paper than the ellipse does.
    constexpr double kLarge = 110;
    const double x = m > kLarge ? 8 : a + 6;
    const double lines = 2 * kWordHeight; // the distance of the notes
    AddNote(drawing, {0, -b}, {x, -2.5 * lines}, kFocuserEnd.In(language));
    AddNote(drawing, optical, {x, -lines}, FormatText(kOptical.In(language), shift));
    AddNote(drawing, {0, 0}, {x, 0}, kGeometric.In(language));
    AddWords(drawing, {x, lines}, FormatText(kMinor.In(language), m));
    AddWords(drawing, {x, 1.5 * lines}, FormatText(kMajor.In(language), 2 * b));
    AddNote(drawing, {0, b}, {x, 2.5 * lines}, kMirrorEnd.In(language));
    return sheet;
}

SheetResult MarksSheet(COrrevaData& record, int language)
{
    const CentreMarks marks = FindCentreMarks(record);
    if (!std::isfinite(marks.primary) || !std::isfinite(marks.secondary)) {
        return kNoMarks;
    }
    SheetContent sheet;
    AddMark(sheet.drawing, marks.primary, kPrimaryMark, kNoPrimaryMark, language);
    AddMark(sheet.drawing, marks.secondary, kSecondaryMark, kNoSecondaryMark, language);
    return sheet;
}
