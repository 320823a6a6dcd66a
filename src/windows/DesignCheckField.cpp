#include "windows/DesignCheckField.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "windows/SeverityMark.h"
#include "windows/WindowText.h"

#include <QStringList>

namespace {

constexpr std::size_t kTold = 5; // findings in the tooltip

constexpr Bilingual kName{"Design check", "Entwurf prüfen"_cp1252};
constexpr Bilingual kFine{"Nothing to complain of", "Nichts zu beanstanden"};

struct Counted {
    Bilingual one;
    Bilingual many;
};
constexpr Counted kErrors{{"%d error", "%d Fehler"}, {"%d errors", "%d Fehler"}};
constexpr Counted kWarnings{{"%d warning", "%d Warnung"}, {"%d warnings", "%d Warnungen"}};

QString CountText(const Counted& words, std::size_t count)
{
    const Bilingual& word = count == 1 ? words.one : words.many;
    return ToQString(FormatText(word.In(g_nLanguage), static_cast<int>(count)).c_str());
}

QString ProblemsText(std::size_t errors, std::size_t warnings)
{
    QStringList parts;
    if (errors > 0) {
        parts << CountText(kErrors, errors);
    }
    if (warnings > 0) {
        parts << CountText(kWarnings, warnings);
    }
    return parts.join(", ");
}

/// The first errors and warnings, a line each; the dots stand for more.
QString FirstProblems(const std::vector<DesignFinding>& findings)
{
    QStringList lines;
    for (const DesignFinding& finding : findings) {
        if (finding.severity == Severity::kNote) {
            continue;
        }
        if (static_cast<std::size_t>(lines.size()) == kTold) {
            lines << "...";
            break;
        }
        lines << ToQString(finding.sentence.c_str()).toHtmlEscaped();
    }
    return lines.join("<br>");
}

} // namespace

CDesignCheckField::CDesignCheckField(QWidget* parent) : QToolButton(parent)
{
    setObjectName("designCheck");
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ShowNothing();
}

void CDesignCheckField::ShowFindings(const std::vector<DesignFinding>& findings)
{
    const std::size_t errors = CountProblems(findings, Severity::kError);
    const std::size_t warnings = CountProblems(findings, Severity::kWarning);
    const auto worst = errors > 0     ? std::optional(Severity::kError)
                       : warnings > 0 ? std::optional(Severity::kWarning)
                                      : std::nullopt;
    setIcon(SeverityMark(worst));
    setText(ProblemsText(errors, warnings));
    setToolTip(worst ? FirstProblems(findings) : Shown(kFine));
    setAccessibleName(Shown(kName) + ": " + (worst ? text() : Shown(kFine)));
    show();
}

void CDesignCheckField::ShowNothing() { hide(); }

#include "moc_DesignCheckField.cpp"
