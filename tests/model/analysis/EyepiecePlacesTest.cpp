#include "model/analysis/EyepiecePlaces.h"

#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using Places = std::vector<std::string>;

TEST(EyepiecePlaces, TheCurrentFolderThenTheFoldersOfData)
{
    const Environment user("XDG_DATA_HOME", "/user");
    const Environment system("XDG_DATA_DIRS", "/first:/second");
    const Places places = EyepiecePlaces();
    ASSERT_EQ(5u, places.size());
    EXPECT_EQ((Places{"eyepiece.dat", "/user/orreva/eyepiece.dat", "/first/orreva/eyepiece.dat",
                      "/second/orreva/eyepiece.dat"}),
              Places(places.begin(), places.end() - 1));
}

TEST(EyepiecePlaces, TheFirstListThatIsThereCounts)
{
    const TemporaryFolder folder;
    const Places places{folder / "a", folder / "b", folder / "c"};
    EXPECT_EQ(folder / "a", FindEyepieces(places)) << "the one that the user would write";
    EXPECT_EQ("", InstalledEyepieces(places));
    folder.Write("c", "Ortho,12,45\n");
    EXPECT_EQ(folder / "c", FindEyepieces(places));
    folder.Write("b", "# empty\n");
    EXPECT_EQ(folder / "b", FindEyepieces(places)) << "an empty list is a list";
    EXPECT_EQ(folder / "c", InstalledEyepieces(places));
    folder.Write("c", "");
    EXPECT_EQ("", InstalledEyepieces(places));
    folder.Write("a", "Erfle,32,65\n");
    folder.Write("b", "Kellner,20,45\n");
    EXPECT_EQ(folder / "b", InstalledEyepieces(places)) << "the last, not the nearest";
    folder.Write("b", "");
    EXPECT_EQ(folder / "a", InstalledEyepieces(places)) << "the last that has any";
}

TEST(EyepiecePlaces, TheTextNamesEachPlaceWhole)
{
    const TemporaryFolder folder;
    EXPECT_EQ("There are no eyepieces. The first of these lists counts that is there:\n" +
                  std::filesystem::current_path().string() + "/eyepiece.dat\n/B\xFCro/x",
              EyepiecePlacesText({"eyepiece.dat", "/Büro/x"}, kEnglish));
    EXPECT_EQ("Es gibt keine Okulare. Es z\xE4hlt die erste dieser Listen, die da ist:\n/x",
              EyepiecePlacesText({"/x"}, kGerman));
}

} // namespace
