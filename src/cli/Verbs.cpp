#include "cli/Verbs.h"

#include "cli/CalcVerb.h"
#include "cli/CommandLine.h"
#include "cli/DrawVerb.h"
#include "cli/ExchangeVerbs.h"
#include "cli/FigureVerb.h"
#include "cli/Output.h"
#include "cli/PaperOutput.h"
#include "cli/RaysVerb.h"
#include "cli/RescueVerb.h"
#include "cli/VerbTools.h"
#include "document/FoucaultReadings.h"
#include "document/TelescopeFile.h"
#include "drawing/SectionZoom.h"
#include "lib/text/CodePage.h"
#include "lib/text/Numbers.h"
#include "report/ReportOnPaper.h"

#include <limits>

namespace {

using Limits = std::numeric_limits<std::int32_t>;

// Each verb understands all of its words before it reads or writes anything.
// ---------------------------------

ReportContext ContextOf(TerminalDocument& terminal)
{
    return {*terminal.document.active_record, terminal.document.field_angle_100,
            terminal.document.field_diameter_100, terminal.document.mirror_back_position, g_nLanguage};
}

std::vector<const ReportPage*> PagesOf(const CommandLine& words)
{
    std::vector<const ReportPage*> pages;
    for (const std::string& name : words.Values("--page")) {
        pages.push_back(FindReportPage(name));
        if (pages.back() == nullptr) {
            UsageError("unknown page", name);
        }
    }
    if (pages.empty()) {
        for (const ReportPage& page : ReportPages()) {
            if (!page.only_when_named) {
                pages.push_back(&page);
            }
        }
    }
    return pages;
}

std::int32_t Choice(const CommandLine& words, const char* option,
                    std::initializer_list<std::string_view> choices)
{
    const auto value = words.Value(option);
    return value ? static_cast<std::int32_t>(ChoiceOf(option, *value, choices)) : 0;
}

ZoneOptions ZonesOf(const CommandLine& words)
{
    ZoneOptions zones{words.Value("--zones"), words.Value("--centre"), words.Value("--edge"), {}};
    zones.view.mask_type = Choice(words, "--template", {"couder", "everest"});
    zones.view.centre_method = Choice(words, "--method", {"carlin", "couder", "texereau"});
    zones.view.light_source = Choice(words, "--source", {"moving", "fixed"});
    return zones;
}

/// The report of the document's design as a PDF file.
int PaperReportOf(const CommandLine& words, std::span<const ReportPage* const> pages,
                  const ZoneOptions& zones, COrrevaDoc& document)
{
    const std::string path = FileWord(words, 0).value_or("");
    FoucaultReadings readings;
    if (!path.empty() && path != "-") {
        readings.Open(path, g_nLanguage);
    }
    ReportDesign design(*document.active_record);
    ReportContext context = design.Context(g_nLanguage);
    context.details = words.Has("--details");
    context.zones = zones;
    const ReportExtras extras{DateOfDesign(path, g_nLanguage), nullptr, &readings.Book()};
    return WritePaper(OutputPath(words), ReportOnPaper(design, pages, context, extras, PaperOf(words)));
}

int Report(const CommandLine& words)
{
    const std::vector<const ReportPage*> pages = PagesOf(words);
    const ZoneOptions zones = ZonesOf(words);
    const TableFormat format = FormatOf(words);
    const bool onPaper = IsPaperFile(OutputPath(words));
    if (onPaper && words.Has("--format")) {
        UsageError("a PDF file does not take", "--format");
    }
    if (!onPaper && words.Has("--paper")) {
        UsageError("paper needs a PDF file behind -o:", "--paper");
    }
    PaperOf(words);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    if (onPaper) {
        return PaperReportOf(words, pages, zones, terminal.document);
    }
    ReportContext context = ContextOf(terminal);
    context.details = words.Has("--details");
    context.zones = zones;
    if (format != TableFormat::kText) {
        return WriteOutput(OutputPath(words),
                           (format == TableFormat::kCsv ? CsvReport : JsonReport)(pages, context));
    }
    Output output(OutputPath(words));
    WriteReport(pages, context,
                [&](const std::string& line) { return output.Write(Utf8FromCp1252(line) + '\n'); });
    return output.Finish();
}

RayMode ModeOf(const std::string& mode)
{
    constexpr RayMode kModes[] = {RayMode::kParallel, RayMode::kFocal, RayMode::kPointer};
    return kModes[ChoiceOf("--mode", mode, {"parallel", "focal", "pointer"})];
}

ViewOptions ViewOf(const CommandLine& words)
{
    ViewOptions view;
    if (const auto mode = words.Value("--mode")) {
        view.mode = ModeOf(*mode);
    }
    if (const auto pointer = words.Value("--pointer")) {
        const auto [x, y] = NumberPair("--pointer", *pointer);
        view.pointer = {x, y};
    }
    view.hide_lost = words.Has("--hide-lost");
    view.extended = words.Has("--extended");
    view.no_offset = words.Has("--no-offset");
    view.box_and_cage = words.Has("--box-and-cage");
    return view;
}

int Rays(const CommandLine& words)
{
    for (const char* const option : {"--mode", "--pointer"}) {
        if (!words.Has(option)) {
            UsageError("rays needs", option);
        }
    }
    const ViewOptions view = ViewOf(words);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    return WriteOutput(OutputPath(words), RaysText(*terminal.document.active_record, view, g_nLanguage));
}

double NumberOption(const CommandLine& words, const char* option, double otherwise)
{
    const auto value = words.Value(option);
    return value ? TextToDouble(value->c_str()) : otherwise;
}

/// The options that one picture has and no other.
struct PictureOption {
    const char* option;
    std::string_view picture;
    std::string_view other = {};
};

constexpr PictureOption kPictureOptions[] = {
    {"--mode", "section"},         {"--pointer", "section"},  {"--zoom", "section"},
    {"--scroll", "section"},       {"--extended", "section"}, {"--no-offset", "section"},
    {"--box-and-cage", "section"}, {"--seed", "ronchi"},      {"--type", "polygon", "sector"},
    {"--thickness", "polygon"},    {"--value", "sector"},     {"--readings", "wavefront"},
    {"--source", "wavefront"},     {"--conic", "wavefront"},  {"--wavelength", "wavefront"},
};

void RefuseOptionsOfOthers(const CommandLine& words, std::string_view picture)
{
    for (const PictureOption& own : kPictureOptions) {
        if (words.Has(own.option) && own.picture != picture && own.other != picture) {
            UsageError("the picture " + std::string(picture) + " does not take", own.option);
        }
    }
}

/// The words without an option; for the calculators' pictures the diameter is theirs and no telescope's.
CommandLine Without(CommandLine words, std::string_view option)
{
    std::erase_if(words.options, [option](const auto& given) { return given.first == option; });
    return words;
}

DrawOptions DrawOptionsOf(const CommandLine& words, const std::string& picture)
{
    DrawOptions options = OpeningOptions(picture);
    static_cast<ViewOptions&>(options) = ViewOf(words);
    const std::string size = words.Value("--size").value_or("");
    const auto [width, height] = WholePair("--size", size, 'x', Limits::min(), Limits::max());
    options.size = {width, height};
    if (!IsPictureSize(options.size)) {
        UsageError("--size does not take", size);
    }
    if (const auto zoom = words.Value("--zoom")) {
        options.zoom = WholeNumber("--zoom", *zoom, 1, SectionZoom::kMost);
    }
    if (const auto scroll = words.Value("--scroll")) {
        const auto [x, y] = WholePair("--scroll", *scroll, ',', Limits::min(), Limits::max());
        options.scroll = {x, y};
    }
    if (const auto seed = words.Value("--seed")) {
        options.seed = static_cast<std::uint32_t>(WholeNumber("--seed", *seed, 0, Limits::max()));
    }
    if (const auto type = words.Value("--type")) {
        options.type = WholeNumber("--type", *type, Limits::min(), Limits::max());
    }
    options.diameter = NumberOption(words, "--diameter", options.diameter);
    options.thickness = NumberOption(words, "--thickness", options.thickness);
    options.value = NumberOption(words, "--value", options.value);
    return options;
}

int Draw(const CommandLine& words)
{
    for (const char* const option : {"--picture", "--size", "-o"}) {
        if (!words.Has(option)) {
            UsageError("draw needs", option);
        }
    }
    const std::string name = *words.Value("--picture");
    const NamedPicture* const picture = FindPicture(name);
    if (picture == nullptr) {
        UsageError("unknown picture", name);
    }
    RefuseOptionsOfOthers(words, name);
    DrawOptions options = DrawOptionsOf(words, name);
    std::optional<FigureWords> figureWords;
    if (name == "wavefront") {
        figureWords = FigureWordsOf(words);
        options.figure = figureWords->settings;
    }
    const bool calculator = name == "polygon" || name == "sector";
    const std::string path = OutputPath(words);
    if (!IsPictureFile(path)) {
        UsageError("a picture does not go into", path);
    }
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(calculator ? Without(words, "--diameter") : words, file, terminal.host,
                       terminal.document)) {
        return kFailed;
    }
    const COrrevaDoc& document = terminal.document;
    std::optional<Figure> figure;
    if (figureWords) {
        figure = ReadFigure(*figureWords, *document.active_record);
        if (!figure) {
            return kFailed;
        }
    }
    const DrawContext context{*document.active_record,
                              {document.field_diameter_100, document.field_angle_100},
                              g_nLanguage,
                              options,
                              figure ? &*figure : nullptr};
    return DrawPicture(*picture, context, path) == 0 ? kDone : Fail("cannot write " + path);
}

int Save(const CommandLine& words)
{
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    return WriteOutput(OutputPath(words), WriteTelescope(*terminal.document.active_record));
}

int Import(const CommandLine& words)
{
    const auto file = FileWord(words, 0);
    if (!file) {
        UsageError("import needs a file behind", "import");
    }
    TerminalDocument terminal;
    return ImportVerb(terminal.document, *file, OutputPath(words));
}

int Export(const CommandLine& words)
{
    if (words.plain.empty()) {
        UsageError("export needs oslo or fta behind", "export");
    }
    const ExportForm* const form = FindExport(words.plain.front());
    if (form == nullptr) {
        UsageError("unknown export", words.plain.front());
    }
    const auto file = FileWord(words, 1);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    return form->run(terminal.document, OutputPath(words));
}

int Calc(const CommandLine& words) { return CalcVerb(words.plain, OutputPath(words)); }

int Rescue(const CommandLine& words)
{
    const TableFormat format = FormatOf(words);
    const auto number = FileWord(words, 0);
    return number ? WriteRescueCopy(*number, OutputPath(words)) : ListRescueCopies(format, OutputPath(words));
}

struct Entry {
    Verb verb;
    int (*run)(const CommandLine& words);
};

constexpr Entry kEntries[] = {{kReport, Report},   {kRays, Rays},
                              {kDraw, Draw},       {kSaveVerb, Save},
                              {kImport, Import},   {kExport, Export},
                              {kCalc, Calc},       {kValues, ValuesVerb},
                              {kSweep, SweepVerb}, {kCompare, CompareVerb},
                              {kCheck, CheckVerb}, {kFigureVerb, FigureVerb},
                              {kRescue, Rescue},   {kSheetsVerb, SheetsVerb}};

} // namespace

int RunVerb(const CommandLine& words)
{
    for (const Entry& entry : kEntries) {
        if (entry.verb == words.verb) {
            return entry.run(words);
        }
    }
    return kFailed;
}
