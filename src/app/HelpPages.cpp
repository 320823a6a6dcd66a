#include "app/HelpPages.h"

#include "lib/text/Language.h"
#include "pages/sheet/Help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

/// The manual's folder below the program's own: installed, and in the build tree.
constexpr const char* kManualFolders[] = {"../" ORREVA_DATA_FOLDER "/orreva/manual/", "../manual/"};
constexpr const char* kStartPage = "index";

struct Page {
    long data;
    QString HelpAddresses::*base;
    const char* path;  // on the web, behind the base
    const char* local; // in the program's own manual, without the ending
};

// Contexts are the numbers of dialogs and pages; the base addresses are settings of the build.
constexpr Page kPages[] = {
    {1, &HelpAddresses::forumBase, "phpBB2/viewforum.php?f=7", "Forum"},
    {100, &HelpAddresses::wikiBase, "Formelsammlung", "Formelsammlung"},
    {103, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Bemerkungen",
     "Benutzeroberfläche/Reiter_Bemerkungen"},
    {104, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Hauptspiegel",
     "Benutzeroberfläche/Reiter_Hauptspiegel"},
    {105, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Tubus", "Benutzeroberfläche/Reiter_Tubus"},
    {106, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Focuser",
     "Benutzeroberfläche/Reiter_Focuser"},
    {107, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Fangspiegel",
     "Benutzeroberfläche/Reiter_Fangspiegel"},
    {108, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Spiegelzelle",
     "Benutzeroberfläche/Reiter_Spiegelzelle"},
    {129, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Okulare",
     "Benutzeroberfläche/Reiter_Okulare"},
    {135, &HelpAddresses::manualBase, "Benutzeroberfläche/Reiter_Schwerpunkt",
     "Benutzeroberfläche/Reiter_Schwerpunkt"},
    {151, &HelpAddresses::manualBase, "Benutzeroberfläche/Papier", "Benutzeroberfläche/Papier"},
    {152, &HelpAddresses::manualBase, "Benutzeroberfläche/Befehle_Werkzeuge",
     "Benutzeroberfläche/Befehle_Werkzeuge"},
    {153, &HelpAddresses::manualBase, "Benutzeroberfläche/Befehle_Werkzeuge",
     "Benutzeroberfläche/Befehle_Werkzeuge"},
    {154, &HelpAddresses::manualBase, "Benutzeroberfläche/Befehle_Werkzeuge",
     "Benutzeroberfläche/Befehle_Werkzeuge"},
    {155, &HelpAddresses::manualBase, "Benutzeroberfläche/Befehle_Bearbeiten",
     "Benutzeroberfläche/Befehle_Bearbeiten"},
    {156, &HelpAddresses::manualBase, "Benutzeroberfläche/Befehle_Datei", "Benutzeroberfläche/Befehle_Datei"},
};

QUrl LocalPage(const HelpAddresses& addresses, const char* page)
{
    return QUrl::fromLocalFile(addresses.localFolder + '/' + QString::fromUtf8(page) + ".html");
}

} // namespace

HelpAddresses BuiltHelpAddresses(int language)
{
    const QString name = language == kGerman ? "de" : "en";
    const QDir program(QCoreApplication::applicationDirPath());
    QString folder;
    for (const char* const candidate : kManualFolders) {
        folder = QDir::cleanPath(program.filePath(candidate + name));
        if (QFileInfo::exists(folder)) {
            break;
        }
    }
    return {ORREVA_MANUAL_BASE, ORREVA_MANUAL_START, ORREVA_WIKI_BASE, ORREVA_FORUM_BASE, folder};
}

QUrl HelpPage(long data, unsigned command, const HelpAddresses& addresses)
{
    if (command == kHelpContext) {
        for (const Page& page : kPages) {
            if (page.data == data) {
                const QString& base = addresses.*page.base;
                return base.isEmpty() ? LocalPage(addresses, page.local)
                                      : QUrl(base + QString::fromUtf8(page.path));
            }
        }
    }
    return addresses.manualStart.isEmpty() ? LocalPage(addresses, kStartPage) : QUrl(addresses.manualStart);
}

QString UnopenedHelpText(const QUrl& page, int language)
{
    const QString place = page.isLocalFile() ? QDir::toNativeSeparators(page.toLocalFile()) : page.toString();
    if (page.isLocalFile() && !QFileInfo::exists(page.toLocalFile())) {
        return (language == kGerman ? QString("Das Handbuch ist nicht installiert: %1 fehlt.")
                                    : QString("The manual is not installed: %1 is missing."))
            .arg(place);
    }
    return (language == kGerman ? QString("Kein Browser gefunden. Die Hilfe steht in %1")
                                : QString("No browser found. The help page is %1"))
        .arg(place);
}
