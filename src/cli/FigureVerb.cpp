#include "cli/FigureVerb.h"

#include "cli/CommandLine.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/optics/ReadingSeries.h"
#include "report/FigureReport.h"

#include <vector>

namespace {

double FigureNumberWord(const CommandLine& words, const char* option, double otherwise)
{
    const auto word = words.Value(option);
    if (!word) {
        return otherwise;
    }
    const std::optional<double> value = ReadingValue(*word);
    if (!value) {
        UsageError(std::string(option) + " does not take", *word);
    }
    return *value;
}

/// The text of the readings, if the mirror has what a reduction needs.
std::optional<std::string> ReadReadings(const FigureWords& words, COrrevaData& record)
{
    if (!(record.GetMirrorDiameter() > 0) || !(record.GetFocalLength() > 0)) {
        Fail("the mirror has no diameter or no focal length");
        return std::nullopt;
    }
    return ReadInputWord(words.readings);
}

bool IsWithoutFault(const FigureWords& words, const std::optional<ReadingsFault>& fault)
{
    if (fault) {
        Fail(words.readings + ": " + Utf8FromCp1252(FaultText(*fault, g_nLanguage)));
    }
    return !fault;
}

std::optional<Figure> FigureOf(const FigureWords& words, std::string_view text, COrrevaData& record)
{
    const double D = record.GetMirrorDiameter();
    const ReadingsParse parse = ParseReadings(text, D / 2);
    if (!IsWithoutFault(words, parse.fault)) {
        return std::nullopt;
    }
    return ReduceFigure(D, record.GetFocalLength(), MeansOf(parse.zones), words.settings);
}

/// A file that is kept beside a design may hold several series: each is read as a file of its own.
std::optional<std::vector<NamedFigure>> FiguresInFile(const FigureWords& words, std::string_view text,
                                                      COrrevaData& record)
{
    const double D = record.GetMirrorDiameter();
    const SeriesImport import = ImportSeries(text, D / 2, "");
    if (!IsWithoutFault(words, import.fault)) {
        return std::nullopt;
    }
    std::vector<NamedFigure> figures;
    for (const ReadingSeries& series : import.series) {
        const std::vector<ZoneMean> zones = ReadSeries(series, D / 2).zones;
        const auto figure = ReduceFigure(D, record.GetFocalLength(), zones, words.settings);
        if (!figure) {
            return std::nullopt;
        }
        figures.push_back({Utf8FromCp1252(series.name), *figure});
    }
    return figures;
}

} // namespace

FigureWords FigureWordsOf(const CommandLine& words)
{
    const auto readings = words.Value("--readings");
    if (!readings) {
        UsageError("the figure needs", "--readings");
    }
    FigureWords figure{*readings, {}};
    if (const auto source = words.Value("--source")) {
        figure.settings.light_source =
            static_cast<std::int32_t>(ChoiceOf("--source", *source, {"moving", "fixed"}));
    }
    figure.settings.conic = FigureNumberWord(words, "--conic", figure.settings.conic);
    figure.settings.wavelength = FigureNumberWord(words, "--wavelength", figure.settings.wavelength);
    if (!(figure.settings.wavelength > 0)) {
        UsageError("--wavelength does not take", *words.Value("--wavelength"));
    }
    return figure;
}

std::optional<Figure> ReadFigure(const FigureWords& words, COrrevaData& record)
{
    const auto text = ReadReadings(words, record);
    return text ? FigureOf(words, *text, record) : std::nullopt;
}

int FigureVerb(const CommandLine& words)
{
    const FigureWords figureWords = FigureWordsOf(words);
    const TableFormat format = FormatOf(words);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    terminal.document.Recalculate(); // so that no first reading shows
    COrrevaData& record = *terminal.document.active_record;
    const auto text = ReadReadings(figureWords, record);
    if (!text) {
        return kFailed;
    }
    const double D = record.GetMirrorDiameter();
    if (SeriesCount(*text) > 1) {
        const auto figures = FiguresInFile(figureWords, *text, record);
        return figures ? WriteOutput(OutputPath(words), SeriesFiguresReport(*figures, D, format)) : kFailed;
    }
    const auto figure = FigureOf(figureWords, *text, record);
    return figure ? WriteOutput(OutputPath(words), FigureReport(*figure, D, format)) : kFailed;
}
