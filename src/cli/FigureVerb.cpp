#include "cli/FigureVerb.h"

#include "cli/CommandLine.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/optics/Readings.h"
#include "report/FigureReport.h"

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
    const double D = record.GetMirrorDiameter();
    const double f = record.GetFocalLength();
    if (!(D > 0) || !(f > 0)) {
        Fail("the mirror has no diameter or no focal length");
        return std::nullopt;
    }
    const auto text = ReadInputWord(words.readings);
    if (!text) {
        return std::nullopt;
    }
    const ReadingsParse parse = ParseReadings(*text, D / 2);
    if (parse.fault) {
        Fail(words.readings + ": " + Utf8FromCp1252(FaultText(*parse.fault, g_nLanguage)));
        return std::nullopt;
    }
    return ReduceFigure(D, f, MeansOf(parse.zones), words.settings);
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
    const std::optional<Figure> figure = ReadFigure(figureWords, record);
    if (!figure) {
        return kFailed;
    }
    return WriteOutput(OutputPath(words), FigureReport(*figure, record.GetMirrorDiameter(), format));
}
