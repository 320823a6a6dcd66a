#include "cli/DrawVerb.h"

#include "drawing/FieldPicture.h"
#include "drawing/MirrorPanelPicture.h"
#include "drawing/PolygonPicture.h"
#include "drawing/RonchiPicture.h"
#include "drawing/SectionPicture.h"
#include "drawing/SectorPicture.h"
#include "drawing/SummaryPicture.h"
#include "drawing/TubePanelPicture.h"
#include "lib/files/FileBytes.h"
#include "lib/text/Numbers.h"
#include "painting/PainterSurface.h"
#include "painting/QtText.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <clocale>
#include <ctime>
#include <functional>
#include <memory>

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

constexpr NamedPicture kPictures[] = {
    {"section", PaintSectionPicture},      {"summary", PaintSummaryPicture},
    {"tube-panel", PaintTubePanelPicture}, {"mirror-panel", PaintMirrorPanelPicture},
    {"field", PaintFieldPicture},          {"ronchi", PaintRonchiPicture},
    {"polygon", PaintPolygonPicture},      {"sector", PaintSectorPicture},
};

// Forms of files -----------------------------------------------------------------------------------------

using Paint = std::function<void(QPaintDevice& device)>;

/// Each writes what `paint` paints to `file`, with a title where the form has one; false if it cannot.
bool WritePng(QBuffer& file, Pixel size, const QString&, const Paint& paint)
{
    QImage image(size.x, size.y, QImage::Format_RGB32);
    if (image.isNull()) {
        return false;
    }
    image.fill(Qt::white);
    paint(image);
    return image.save(&file, "PNG");
}

bool WriteSvg(QBuffer& file, Pixel size, const QString& title, const Paint& paint)
{
    constexpr int kPixelsPerInch = 96; // those of style sheets, by which viewers reckon
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(QSize(size.x, size.y));
    generator.setViewBox(QRect(0, 0, size.x, size.y));
    generator.setResolution(kPixelsPerInch);
    generator.setTitle(title);
    paint(generator);
    return true;
}

bool WritePdf(QBuffer& file, Pixel size, const QString& title, const Paint& paint)
{
    constexpr int kPointsPerInch = 72;
    QPdfWriter writer(&file);
    writer.setCreator("Orreva");
    writer.setTitle(title);
    writer.setResolution(kPointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(size.x, size.y), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    paint(writer);
    return true;
}

struct Form {
    std::string_view ending;
    bool (*write)(QBuffer& file, Pixel size, const QString& title, const Paint& paint);
};
constexpr Form kForms[] = {{".png", WritePng}, {".svg", WriteSvg}, {".pdf", WritePdf}};

const Form* FormOf(std::string_view path)
{
    for (const Form& form : kForms) {
        if (path.ends_with(form.ending)) {
            return &form;
        }
    }
    return nullptr;
}

/// The design's title; the program's name for a picture of none.
QString TitleOf(const COrrevaData& record)
{
    const QString title = ToQString(record.GetTitle().GetText());
    return title.isEmpty() ? "Orreva" : title;
}

/// Fonts need an application of the toolkit; this one needs no screen. Null if there is one already.
std::unique_ptr<QGuiApplication> OpenToolkit()
{
    if (QCoreApplication::instance() != nullptr) {
        return nullptr;
    }
    static char name[] = "orreva-cli";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Warnings of the toolkit about the desktop that is not there are none of ours.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    auto application = std::make_unique<QGuiApplication>(count, arguments);
    std::setlocale(LC_NUMERIC, "C"); // the toolkit follows the user's language
    return application;
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

bool IsPictureFile(std::string_view path) { return FormOf(path) != nullptr; }

bool IsPictureSize(Pixel size)
{
    constexpr std::int32_t kLongest = 16384;
    return size.x >= 1 && size.x <= kLongest && size.y >= 1 && size.y <= kLongest;
}

int DrawPicture(const NamedPicture& picture, const DrawContext& context, const std::string& path)
{
    const auto toolkit = OpenToolkit();
    const Pixel size = context.options.size;
    const auto paint = [&](QPaintDevice& device) {
        QPainter painter(&device);
        PainterSurface surface(painter, size.x, size.y);
        picture.paint(surface, context);
    };
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!FormOf(path)->write(file, size, TitleOf(context.record), paint)) {
        return 1;
    }
    const QByteArray& bytes = file.data();
    return ReplaceFile(path.c_str(), {bytes.constData(), static_cast<std::size_t>(bytes.size())}) ? 0 : 1;
}
