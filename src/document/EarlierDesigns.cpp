#include "document/EarlierDesigns.h"

#include "document/RescueCopies.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/CodePage.h"

namespace {

/// By the order of RescueReason.
constexpr Bilingual kReasonTexts[] = {
    {"not saved, by choice", "nicht gesichert, gewollt"},
    {"could not be saved", "nicht zu sichern"},
    {"program broke off", "Programm brach ab"},
    {"file replaced", "Datei ersetzt"},
};

/// "2026-11-21T20:13:05+01:00" without the letter and the zone.
std::string PlainTime(std::string time)
{
    constexpr std::size_t kSeconds = sizeof "2026-11-21T20:13:05" - 1;
    time.resize(std::min(time.size(), kSeconds));
    if (const std::size_t letter = time.find('T'); letter != std::string::npos) {
        time[letter] = ' ';
    }
    return time;
}

} // namespace

ListRow EarlierDesignRow(const RescueCopy& copy, int language)
{
    return {PlainTime(copy.time), kReasonTexts[static_cast<std::size_t>(copy.reason)].In(language),
            copy.title, Cp1252FromUtf8(copy.path)};
}

bool ReadEarlierDesign(const RescueCopy& copy, COrrevaData& design)
{
    const XmlScanner scanner(copy.file.c_str());
    if (scanner.HasText()) {
        ReadTelescope(scanner, design);
    }
    return scanner.HasText();
}
