#include "report/Report.h"

#include "model/analysis/Balance.h"
#include "model/analysis/Cell.h"
#include "model/analysis/Eyepieces.h"
#include "model/analysis/Focuser.h"
#include "model/analysis/Primary.h"
#include "model/analysis/Secondary.h"
#include "model/analysis/Tube.h"

ReportLines PrimaryReport(const ReportContext& context)
{
    ReportLines lines;
    AppendRows(lines, PrimaryRows(ReadPrimary(context.record), context.details, context.language));
    return lines;
}

ReportLines SecondaryReport(const ReportContext& context)
{
    const SecondaryTexts texts = ReadSecondary(context.record);
    const SecondaryResult result = AnalyseSecondary(context.record, texts, context.details, context.language);
    ReportLines lines;
    AppendRows(lines, result.rows);
    lines.push_back(ReportLine({result.verdict}));
    return lines;
}

ReportLines TubeReport(const ReportContext& context)
{
    const TubeTexts texts = ReadTube(context.record);
    ReportLines lines;
    AppendRows(lines, TubeRows(context.record, texts, context.language));
    return lines;
}

ReportLines FocuserReport(const ReportContext& context)
{
    const FocuserTexts texts = ReadFocuser(context.record);
    ReportLines lines{ReportLine({FocuserTypeText(texts.type, context.language)})};
    for (std::size_t i = 0; i < kFocuserNumbers; ++i) {
        const std::string label = kFocuserFields[i].label.In(context.language);
        lines.push_back(ReportLine({label.substr(0, label.find('\n')), texts.numbers[i]}));
    }
    return lines;
}

ReportLines CellReport(const ReportContext& context)
{
    const CellFigures figures = ComputeCell(context.record);
    ReportLines lines;
    AppendRows(lines, CellRows(figures, context.language));
    lines.push_back(ReportLine({CellVerdict(figures, context.language)}));
    return lines;
}

void EyepiecesReport(const ReportContext& context, const ReportSink& sink)
{
    const EyepieceList list = LoadEyepieces(context.eyepiece_path.c_str());
    bool more = true;
    for (const std::size_t i : SortEyepieces(list.entries)) {
        ReportLines lines{ReportLine({list.entries[i].name})};
        AppendRows(lines, EyepieceRows(context.record, list.entries[i], context.language));
        for (std::size_t k = 0; more && k < lines.size(); ++k) {
            more = sink(lines[k]);
        }
        if (!more) {
            return;
        }
    }
    if (list.end != EyepieceList::End::kComplete) {
        sink(EyepieceEndLine(list, context.eyepiece_path.c_str()));
    }
}

ReportLines BalanceReport(const ReportContext& context)
{
    ReportLines lines;
    AppendRows(lines, BalanceRows(context.record, context.mirror_back_position, context.language));
    lines.push_back(ReportLine({TotalWeightText(context.record)}));
    lines.push_back(ReportLine({CenterOfGravityText(context.record, context.language)}));
    return lines;
}
