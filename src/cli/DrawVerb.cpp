#include "cli/DrawVerb.h"

#include "cli/Output.h"
#include "cli/Toolkit.h"
#include "drawing/FieldPicture.h"
#include "drawing/IlluminationPicture.h"
#include "drawing/MirrorPanelPicture.h"
#include "drawing/PolygonPicture.h"
#include "drawing/RonchiPicture.h"
#include "drawing/SectionPicture.h"
#include "drawing/SectorPicture.h"
#include "drawing/SummaryPicture.h"
#include "drawing/TubePanelPicture.h"
#include "drawing/WavefrontCharts.h"
#include "lib/files/FileBytes.h"
#include "lib/text/Numbers.h"
#include "painting/PictureFile.h"
#include "painting/QtText.h"

#include <cerrno>
#include <ctime>

namespace {

// Pictures -----------------------------------------------------------------------------------------------

void PaintSectionPicture(Surface& surface, const DrawContext& context)
{
    const DrawOptions& options = context.options;
    SectionZoom view{options.zoom, options.scroll.x, options.scroll.y};
    PaintSection(surface, view, context.record, SwitchesFor(options), options.pointer, context.language);
}

void PaintSummaryPicture(Surface& surface, const DrawContext& context)
{
    PaintSummary(surface, context.record, context.field, context.language);
}

/// What a sheet has behind its panel.
constexpr Colour kPanelBackground{240, 240, 240};

void PaintTubePanelPicture(Surface& surface, const DrawContext& context)
{
    PaintTubePanel(surface, context.record, context.language, kPanelBackground);
}

void PaintMirrorPanelPicture(Surface& surface, const DrawContext& context)
{
    PaintMirrorPanel(surface, context.record, kPanelBackground);
}

void PaintFieldPicture(Surface& surface, const DrawContext& context)
{
    FieldSimulation simulation;
    DrawFieldPicture(surface, simulation.Table(context.record, {}));
}

void PaintRonchiPicture(Surface& surface, const DrawContext& context)
{
    const double grating = context.record.GetRonchiGrating();
    const double constant = context.record.GetRonchiConstant();
    DrawRonchiPicture(surface, context.record, grating, constant, context.options.seed);
}

void PaintPolygonPicture(Surface& surface, const DrawContext& context)
{
    const DrawOptions& options = context.options;
    PaintPolygon(surface, {options.diameter, options.thickness, options.type}, context.language);
}

void PaintSectorPicture(Surface& surface, const DrawContext& context)
{
    const DrawOptions& options = context.options;
    PaintSector(surface, {options.diameter, options.value, options.type}, context.language);
}

void PaintIlluminationPicture(Surface& surface, const DrawContext& context)
{
    const IlluminationStops stops = ReadIlluminationStops(context.record);
    const double wanted = context.record.GetWanted100PercentFow();
    PaintChart(surface, IlluminationChart(stops, wanted, {}, kLightIllumination, context.language),
               kLightChart);
}

void PaintSecondaryChoicePicture(Surface& surface, const DrawContext& context)
{
    const IlluminationStops stops = ReadIlluminationStops(context.record);
    const double wanted = context.record.GetWanted100PercentFow();
    PaintChart(surface, SecondaryChoiceChart(stops, wanted, kLightIllumination, context.language),
               kLightChart);
}

void PaintWavefrontPicture(Surface& surface, const DrawContext& context)
{
    const WavefrontCurve curve{context.figure, {}};
    const std::span curves(&curve, context.figure != nullptr ? 1 : 0);
    const double D = context.record.GetMirrorDiameter();
    const double wavelength = context.options.figure.wavelength;
    PaintChart(surface, WavefrontChart(curves, D, wavelength, context.language), kLightChart);
}

constexpr NamedPicture kPictures[] = {
    {"section", PaintSectionPicture},
    {"summary", PaintSummaryPicture},
    {"tube-panel", PaintTubePanelPicture},
    {"mirror-panel", PaintMirrorPanelPicture},
    {"field", PaintFieldPicture},
    {"ronchi", PaintRonchiPicture},
    {"polygon", PaintPolygonPicture},
    {"sector", PaintSectorPicture},
    {"illumination", PaintIlluminationPicture},
    {"secondary-choice", PaintSecondaryChoicePicture},
    {"wavefront", PaintWavefrontPicture},
};

/// The design's title; the program's name for a picture of none.
QString TitleOf(const COrrevaData& record)
{
    const QString title = ToQString(record.GetTitle().GetText());
    return title.isEmpty() ? "Orreva" : title;
}

} // namespace

DrawOptions OpeningOptions(std::string_view picture)
{
    DrawOptions options;
    options.seed = static_cast<std::uint32_t>(std::time(nullptr));
    if (picture == "polygon") {
        options.type = kPolygonStartType;
        options.diameter = TextToDouble(kPolygonStartDiameter);
        options.thickness = TextToDouble(kPolygonStartThickness);
    } else if (picture == "sector") {
        options.type = kSectorStartType;
        options.diameter = TextToDouble(kSectorStartDiameter);
        options.value = TextToDouble(kSectorStartValue);
    }
    return options;
}

std::span<const NamedPicture> Pictures() { return kPictures; }

const NamedPicture* FindPicture(std::string_view name)
{
    for (const NamedPicture& picture : Pictures()) {
        if (picture.name == name) {
            return &picture;
        }
    }
    return nullptr;
}

bool IsPictureSize(Pixel size)
{
    constexpr std::int32_t kLongest = 16384;
    return size.x >= 1 && size.x <= kLongest && size.y >= 1 && size.y <= kLongest;
}

int DrawPicture(const NamedPicture& picture, const DrawContext& context, const std::string& path)
{
    const auto toolkit = OpenToolkit();
    const Pixel size = context.options.size;
    const auto file = PictureBytes(path, size, TitleOf(context.record),
                                   [&](Surface& surface) { picture.paint(surface, context); });
    if (!file) {
        return 1;
    }
    const std::string_view picture_bytes(file->constData(), static_cast<std::size_t>(file->size()));
    const SaveOutcome outcome = ReplaceFile(path.c_str(), picture_bytes, CompanionPutAside());
    return outcome || outcome.error == EPIPE ? 0 : 1; // a reader that has seen enough is no failure
}
