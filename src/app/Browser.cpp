#include "app/Browser.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// Those that the desktop's opener looks for where no other is chosen.
constexpr const char* kBrowsers[] = {"x-www-browser", "firefox",  "epiphany",         "konqueror",
                                     "chromium",      "falkon",   "chromium-browser", "google-chrome",
                                     "www-browser",   "seamonkey"};

constexpr int kPatience = 2000; // ms

/// The desktop's choice for pages.
bool IsBrowserChosen()
{
    QProcess query;
    query.start("xdg-mime", {"query", "default", "text/html"});
    if (!query.waitForFinished(kPatience)) {
        query.kill();
        query.waitForFinished(kPatience);
        return false;
    }
    return !query.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

bool HasBrowser()
{
    return !qEnvironmentVariableIsEmpty("BROWSER") ||
           QFileInfo::exists("/.flatpak-info") || // the desktop outside opens pages
           std::ranges::any_of(
               kBrowsers, [](const char* name) { return !QStandardPaths::findExecutable(name).isEmpty(); }) ||
           IsBrowserChosen();
}
