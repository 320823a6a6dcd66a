#include "model/analysis/Eyepieces.h"

#include "lib/files/FileBytes.h"
#include "lib/files/FileQueries.h"
#include "lib/text/CharTools.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "model/rows/RowMaker.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace {

constexpr std::size_t kLineLimit = 1000;

/// Takes one line with its end, LF or CR LF, off the front of `text`.
std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (end != std::string_view::npos && line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

bool IsSkipped(const LibString& line) { return line[0] == 0 || line[0] == '#' || line[0] == '\r'; }

double TakeNumber(LibString& line)
{
    LibString token;
    line.NextToken(token, ',');
    return TextToDouble(token);
}

} // namespace

std::vector<Eyepiece> ParseEyepieces(std::string_view text, std::size_t most)
{
    std::vector<Eyepiece> eyepieces;
    while (!text.empty() && eyepieces.size() < most) {
        LibString line(std::string(TakeLine(text).substr(0, kLineLimit)).c_str());
        line.TrimBlanks();
        if (IsSkipped(line)) {
            continue;
        }
        LibString name;
        line.NextToken(name, ',');
        Eyepiece& eyepiece = eyepieces.emplace_back();
        eyepiece.name = name.GetText();
        eyepiece.focal_length = TakeNumber(line);
        eyepiece.apparent_field = TakeNumber(line);
    }
    return eyepieces;
}

EyepieceList LoadEyepieces(const char* path)
{
    using End = EyepieceList::End;
    const auto bytes = ReadFileBytes(path, EyepieceList::kMostBytes + 1);
    if (!bytes) {
        return {{}, FileExists(path) != 0 ? End::kUnreadable : End::kComplete};
    }
    std::string_view text = *bytes;
    const bool cut = text.size() > EyepieceList::kMostBytes;
    if (cut) {
        text = text.substr(0, text.rfind('\n') + 1); // the line that the limit cuts is none
    }
    EyepieceList list{ParseEyepieces(text, EyepieceList::kMostEntries + 1),
                      cut ? End::kMoreBytes : End::kComplete};
    if (list.entries.size() > EyepieceList::kMostEntries) {
        list.entries.resize(EyepieceList::kMostEntries);
        list.end = End::kMoreEntries;
    }
    return list;
}

std::string EyepieceEndText(const EyepieceList& list, int language)
{
    constexpr Bilingual kTexts[] = {
        {"", ""},
        {"More than 100000 eyepieces: the first are shown",
         "Mehr als 100000 Okulare: Die ersten sind zu sehen"},
        {"More than 16 MiB of eyepieces: the first are shown",
         "Mehr als 16 MiB Okulare: Die ersten sind zu sehen"},
        {"eyepiece.dat cannot be read", "eyepiece.dat kann nicht gelesen werden"},
    };
    return kTexts[static_cast<std::size_t>(list.end)].In(language);
}

std::string EyepieceEndLine(const EyepieceList& list, const char* path)
{
    switch (list.end) {
    case EyepieceList::End::kMoreEntries:
        return "more than 100000 eyepieces";
    case EyepieceList::End::kMoreBytes:
        return "more than 16 MiB of eyepieces";
    case EyepieceList::End::kUnreadable:
        return std::string("cannot read ") + path;
    case EyepieceList::End::kComplete:
        break;
    }
    return "";
}

std::vector<std::size_t> SortEyepieces(const std::vector<Eyepiece>& eyepieces)
{
    std::vector<std::string> folded;
    folded.reserve(eyepieces.size());
    for (const Eyepiece& eyepiece : eyepieces) {
        std::string& name = folded.emplace_back(eyepiece.name);
        std::ranges::transform(name, name.begin(), FoldUpper);
    }
    std::vector<std::size_t> order(eyepieces.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    // std::string compares its bytes without sign.
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        return std::tie(folded[a], eyepieces[a].name) < std::tie(folded[b], eyepieces[b].name);
    });
    return order;
}

ListRows EyepieceRows(COrrevaData& record, const Eyepiece& eyepiece, int language)
{
    const double f = eyepiece.focal_length;
    const double a = eyepiece.apparent_field;
    const double m = record.GetFocalLength() / f;
    const double p = record.GetMirrorDiameter() / m;
    const double w = a / m;

    // One format serves all that ends in a degree sign, the focal length too.
    constexpr const char* kDegrees = "%0.2f°"_cp1252;
    RowMaker rows(language, false);
    rows.Add({"Actual Field of View", "Tatsächliches Gesichtsfeld"_cp1252}, FormatText(kDegrees, w));
    rows.Add({"Exit Pupil", "Austrittspupille"}, FormatText("%0.2f", p));
    rows.Add({"Magnification", "Vergrösserung"_cp1252}, FormatText("%0.2f", m));
    rows.Add({"Apparent Filed of View", "Scheinbares Gesichtsfeld"}, FormatText(kDegrees, a));
    rows.Add({"Focal Length", "Brennweite"}, FormatText(kDegrees, f));
    return rows.Take();
}
