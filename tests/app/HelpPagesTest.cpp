#include "app/HelpPages.h"

#include "lib/text/Language.h"

#include <gtest/gtest.h>

namespace {

HelpAddresses OnTheWeb()
{
    return {"https://example.org/wiki/Handbuch/", "https://example.org/wiki/Handbuch",
            "https://example.org/wiki/", "https://example.org/", "/nowhere"};
}

HelpAddresses BesideTheProgram() { return {{}, {}, {}, {}, "/opt/manual/en"}; }

TEST(HelpPages, EachContextHasItsPage)
{
    const struct {
        long data;
        const char* web;
        const char* local;
    } rows[] = {
        {1, "https://example.org/phpBB2/viewforum.php?f=7", "Forum"},
        {100, "https://example.org/wiki/Formelsammlung", "Formelsammlung"},
        {103, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Bemerkungen",
         "Benutzeroberfläche/Reiter_Bemerkungen"},
        {104, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Hauptspiegel",
         "Benutzeroberfläche/Reiter_Hauptspiegel"},
        {105, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Tubus",
         "Benutzeroberfläche/Reiter_Tubus"},
        {106, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Focuser",
         "Benutzeroberfläche/Reiter_Focuser"},
        {107, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Fangspiegel",
         "Benutzeroberfläche/Reiter_Fangspiegel"},
        {108, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Spiegelzelle",
         "Benutzeroberfläche/Reiter_Spiegelzelle"},
        {129, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Okulare",
         "Benutzeroberfläche/Reiter_Okulare"},
        {135, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Reiter_Schwerpunkt",
         "Benutzeroberfläche/Reiter_Schwerpunkt"},
        {151, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Papier", "Benutzeroberfläche/Papier"},
        {152, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Befehle_Werkzeuge",
         "Benutzeroberfläche/Befehle_Werkzeuge"},
        {153, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Befehle_Werkzeuge",
         "Benutzeroberfläche/Befehle_Werkzeuge"},
        {154, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Befehle_Werkzeuge",
         "Benutzeroberfläche/Befehle_Werkzeuge"},
        {155, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Befehle_Bearbeiten",
         "Benutzeroberfläche/Befehle_Bearbeiten"},
        {156, "https://example.org/wiki/Handbuch/Benutzeroberfläche/Befehle_Datei",
         "Benutzeroberfläche/Befehle_Datei"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(QString::fromUtf8(row.web), HelpPage(row.data, 1, OnTheWeb()).toString());
        EXPECT_EQ("/opt/manual/en/" + QString::fromUtf8(row.local) + ".html",
                  HelpPage(row.data, 1, BesideTheProgram()).toLocalFile());
    }
}

TEST(HelpPages, EverythingElseOpensTheStartPage)
{
    for (const HelpAddresses& addresses : {OnTheWeb(), BesideTheProgram()}) {
        const QUrl start = HelpPage(0, 1, addresses);
        EXPECT_TRUE(start.isValid());
        EXPECT_EQ(start, HelpPage(102, 1, addresses));
        EXPECT_EQ(start, HelpPage(-1, 1, addresses));
        EXPECT_EQ(start, HelpPage(104, 3, addresses)) << "a command other than the context's";
        EXPECT_NE(start, HelpPage(104, 1, addresses));
    }
    EXPECT_EQ("https://example.org/wiki/Handbuch", HelpPage(0, 1, OnTheWeb()).toString());
    EXPECT_EQ("/opt/manual/en/index.html", HelpPage(0, 1, BesideTheProgram()).toLocalFile());
}

TEST(HelpPages, EachEmptyAddressLeadsToTheProgramsOwnManualByItself)
{
    HelpAddresses addresses = OnTheWeb();
    addresses.forumBase.clear();
    EXPECT_EQ("/nowhere/Forum.html", HelpPage(1, 1, addresses).toLocalFile());
    EXPECT_TRUE(HelpPage(100, 1, addresses).toString().startsWith("https://"));
    addresses.manualStart.clear();
    EXPECT_EQ("/nowhere/index.html", HelpPage(0, 1, addresses).toLocalFile());
    EXPECT_TRUE(HelpPage(104, 1, addresses).toString().startsWith("https://"));
}

TEST(HelpPages, TheManualIsTheLanguages)
{
    EXPECT_TRUE(BuiltHelpAddresses(kEnglish).localFolder.endsWith("manual/en"));
    EXPECT_TRUE(BuiltHelpAddresses(kGerman).localFolder.endsWith("manual/de"));
}

TEST(HelpPages, TheStatusBarSaysWhereAPageIsOrThatItIsMissing)
{
    const QUrl missing = QUrl::fromLocalFile("/no such folder/de/Forum.html");
    EXPECT_EQ("The manual is not installed: /no such folder/de/Forum.html is missing.",
              UnopenedHelpText(missing, kEnglish));
    EXPECT_EQ("Das Handbuch ist nicht installiert: /no such folder/de/Forum.html fehlt.",
              UnopenedHelpText(missing, kGerman));
    const QUrl there = QUrl::fromLocalFile("/");
    EXPECT_EQ("No browser found. The help page is /", UnopenedHelpText(there, kEnglish));
    EXPECT_EQ("Kein Browser gefunden. Die Hilfe steht in /", UnopenedHelpText(there, kGerman));
    EXPECT_EQ("No browser found. The help page is https://example.org/x",
              UnopenedHelpText(QUrl("https://example.org/x"), kEnglish));
}

} // namespace
