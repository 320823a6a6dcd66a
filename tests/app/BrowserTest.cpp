#include "app/Browser.h"

#include "app/AppFixture.h"
#include "app/HelpPages.h"
#include "painting/QtText.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <QFileInfo>

namespace {

void WriteProgram(const TemporaryFolder& folder, const std::string& name, const std::string& script)
{
    folder.Write(name, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(folder / name, std::filesystem::perms::owner_all);
}

TEST(Browser, IsTheUsersOneThatIsThereOrTheDesktopsChoice)
{
    const TemporaryFolder folder;
    const Environment path("PATH", folder.Path().c_str());
    const Environment none("BROWSER", nullptr);
    EXPECT_FALSE(HasBrowser());
    WriteProgram(folder, "xdg-mime", "exit 0");
    EXPECT_FALSE(HasBrowser()) << "nothing is chosen";
    WriteProgram(folder, "xdg-mime", "[ \"$*\" = \"query default text/html\" ] && echo pages.desktop");
    EXPECT_TRUE(HasBrowser());
    std::filesystem::remove(folder / "xdg-mime");
    const Environment own("BROWSER", "lynx");
    EXPECT_TRUE(HasBrowser());
    const Environment noneAgain("BROWSER", "");
    EXPECT_FALSE(HasBrowser());
    WriteProgram(folder, "firefox", "exit 0");
    EXPECT_TRUE(HasBrowser());
}

class WithoutBrowser : public AppFixture {};

TEST_F(WithoutBrowser, TheStatusBarSaysWhereThePageIs)
{
    const Environment path("PATH", folder.Path().c_str());
    const Environment none("BROWSER", nullptr);
    Choose(32790);
    ASSERT_EQ(1u, helpPages.size());
    EXPECT_EQ(UnopenedHelpText(helpPages[0], kEnglish), ToQString(app->Document().Status().Text()));
}

} // namespace
