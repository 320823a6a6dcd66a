#include "model/optics/SeriesFigures.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "model/optics/FigureTexts.h"

namespace {

/// A series that can be reduced, or its fault.
SeriesFigure FigureOfSeries(const ReadingBook& book, const ReadingSeries& series, double D, double f,
                            int language)
{
    constexpr Bilingual kNoMirror{"the mirror has no diameter or no focal length",
                                  "der Spiegel hat keinen Durchmesser oder keine Brennweite"};
    SeriesFigure made{series.name, {}, {}};
    const SeriesReading reading = ReadSeries(series, D / 2);
    if (!(D > 0) || !(f > 0)) {
        made.fault = kNoMirror.In(language);
    } else if (reading.fault) {
        made.fault = SeriesFaultText(*reading.fault, language);
    } else {
        made.figure = ReduceFigure(D, f, reading.zones, {series.light_source, book.conic, book.wavelength});
    }
    return made;
}

void AddSentence(std::string& text, const std::string& sentence)
{
    text += text.empty() ? sentence : '\n' + sentence;
}

/// The mean of the series whose figures are known to be there.
SeriesFigure MeanFigure(const ReadingBook& book, std::span<const ReadingSeries* const> series,
                        std::span<const SeriesFigure> single, double D, double f, int language)
{
    constexpr Bilingual kMean{"Mean of %d series", "Mittel aus %d Messreihen"};
    std::vector<SeriesMeans> means;
    SeriesFigure mean;
    for (std::size_t i = 0; i < series.size(); ++i) {
        if (single[i].figure) {
            means.push_back({ReadSeries(*series[i], D / 2).zones, series[i]->light_source});
        } else {
            AddSentence(mean.fault, single[i].name + ": " + single[i].fault);
        }
    }
    mean.name = FormatText(kMean.In(language), static_cast<int>(means.size()));
    mean.figure = ReduceFigure(D, f, AverageSeries(means), {kMovingSource, book.conic, book.wavelength});
    return mean;
}

} // namespace

std::vector<SeriesFigure> FiguresOfSeries(const ReadingBook& book, std::span<const std::size_t> chosen,
                                          bool averaged, double D, double f, int language)
{
    std::vector<const ReadingSeries*> series;
    std::vector<SeriesFigure> figures;
    for (const std::size_t index : chosen) {
        if (index < book.series.size()) {
            series.push_back(&book.series[index]);
            figures.push_back(FigureOfSeries(book, *series.back(), D, f, language));
        }
    }
    if (averaged && figures.size() > 1) {
        return {MeanFigure(book, series, figures, D, f, language)};
    }
    return figures;
}

std::vector<std::string> SeriesResultTitles(std::span<const SeriesFigure> figures, int language)
{
    std::vector<std::string> titles{kFigureColumns[0].title.In(language)};
    for (const SeriesFigure& figure : figures) {
        titles.push_back(figure.name);
    }
    return titles;
}

ListRows SeriesResultRows(std::span<const SeriesFigure> figures, int language)
{
    ListRows rows;
    for (const ListRow& names : FigureRows(Figure(), language)) {
        rows.push_back({names[0]});
    }
    for (const SeriesFigure& figure : figures) {
        const ListRows values = figure.figure ? FigureRows(*figure.figure, language) : ListRows();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].push_back(figure.figure ? values[i][1] : "–"_cp1252);
        }
    }
    return rows;
}

std::string SeriesVerdict(std::span<const SeriesFigure> figures, int language)
{
    std::string text;
    for (const SeriesFigure& figure : figures) {
        const std::string who = figures.size() > 1 ? figure.name + ": " : "";
        if (figure.figure) {
            AddSentence(text, who + FigureVerdict(*figure.figure, language));
        }
        if (!figure.fault.empty()) {
            AddSentence(text, who + figure.fault);
        }
    }
    return text;
}

ListRow SeriesRow(const ReadingSeries& series, int language)
{
    constexpr Bilingual kSources[] = {{"moving", "bewegt"}, {"fixed", "fest"}};
    std::size_t readings = 0;
    for (const SeriesZone& zone : series.zones) {
        readings += SpreadOf(zone).count;
    }
    return {series.name, series.date, kSources[series.light_source == kFixedSource ? 1 : 0].In(language),
            MaskName(series.mask_type, series.zones.size(), language), std::to_string(readings)};
}

std::string MaskName(std::int32_t mask_type, std::size_t zones, int language)
{
    constexpr Bilingual kNames[] = {{"Couder mask, %d zones", "Couder Maske, %d Zonen"},
                                    {"Everest pinstick, %d zones", "Everest Pinstick, %d Zonen"}};
    return FormatText(kNames[mask_type == kEverestPinstick ? 1 : 0].In(language), static_cast<int>(zones));
}
