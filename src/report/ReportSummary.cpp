#include "report/Report.h"

#include "model/analysis/Summary.h"

ReportLines SummaryReport(const ReportContext& context)
{
    const FullField field{context.field_diameter_100, context.field_angle_100};
    ReportLines lines;
    for (const SummaryRow& row : SummaryRows(context.record, field, context.language)) {
        ListRow cells{row.label};
        if (row.kind == SummaryRow::kValue) {
            cells.push_back(row.value);
        }
        if (row.warning) {
            cells.push_back("!");
        }
        lines.push_back(ReportLine(cells));
    }
    return lines;
}
