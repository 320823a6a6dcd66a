#include "app/HelpPages.h"

#include <gtest/gtest.h>

namespace {

TEST(HelpPages, EachContextHasItsPage)
{
    const struct {
        long data;
        const char* end;
    } rows[] = {{1, "phpBB2/viewforum.php?f=7"},
                {100, "Formelsammlung"},
                {103, "Benutzeroberfläche/Reiter_Bemerkungen"},
                {104, "Benutzeroberfläche/Reiter_Hauptspiegel"},
                {105, "Benutzeroberfläche/Reiter_Tubus"},
                {106, "Benutzeroberfläche/Reiter_Focuser"},
                {107, "Benutzeroberfläche/Reiter_Fangspiegel"},
                {108, "Benutzeroberfläche/Reiter_Spiegelzelle"},
                {129, "Benutzeroberfläche/Reiter_Okulare"},
                {135, "Benutzeroberfläche/Reiter_Schwerpunkt"}};
    for (const auto& row : rows) {
        const QString page = HelpPage(row.data, 1).toString();
        EXPECT_TRUE(page.startsWith("https://") && page.endsWith(QString::fromUtf8(row.end))) << row.data;
    }
}

TEST(HelpPages, EverythingElseOpensTheStartPage)
{
    const QUrl start = HelpPage(0, 1);
    EXPECT_TRUE(start.isValid());
    EXPECT_EQ(start, HelpPage(102, 1));
    EXPECT_EQ(start, HelpPage(-1, 1));
    EXPECT_EQ(start, HelpPage(104, 3)) << "a command other than the context's";
    EXPECT_NE(start, HelpPage(104, 1));
}

} // namespace
