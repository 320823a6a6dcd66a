#include "cli/Report.h"

std::span<const ReportPage> ReportPages()
{
    static constexpr ReportPage kPages[] = {
        {"summary", SummaryReport},     {"primary", PrimaryReport}, {"secondary", SecondaryReport},
        {"tube", TubeReport},           {"focuser", FocuserReport}, {"cell", CellReport},
        {"eyepieces", EyepiecesReport}, {"balance", BalanceReport},
    };
    return kPages;
}
