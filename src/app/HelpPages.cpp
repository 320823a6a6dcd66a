#include "app/HelpPages.h"

#include "pages/sheet/Help.h"

namespace {

struct Page {
    long data;
    const char* base;
    const char* path;
};

// Contexts are the numbers of dialogs and pages; the base addresses are settings of the build.
constexpr Page kPages[] = {
    {1, ORREVA_FORUM_BASE, "phpBB2/viewforum.php?f=7"},
    {100, ORREVA_WIKI_BASE, "Formelsammlung"},
    {103, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Bemerkungen"},
    {104, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Hauptspiegel"},
    {105, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Tubus"},
    {106, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Focuser"},
    {107, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Fangspiegel"},
    {108, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Spiegelzelle"},
    {129, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Okulare"},
    {135, ORREVA_MANUAL_BASE, "Benutzeroberfläche/Reiter_Schwerpunkt"},
};

} // namespace

QUrl HelpPage(long data, unsigned command)
{
    if (command == kHelpContext) {
        for (const Page& page : kPages) {
            if (page.data == data) {
                return QUrl(QString::fromUtf8(page.base) + QString::fromUtf8(page.path));
            }
        }
    }
    return QUrl(QString::fromUtf8(ORREVA_MANUAL_START));
}
