// What stands in more than one place of the package must be the same in all of them.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace {

std::string ReadAll(const std::string& name)
{
    std::ifstream file(std::filesystem::path(ORREVA_SOURCE_DIR) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What the first match of a pattern holds in its first group.
std::string First(const std::string& text, const std::string& pattern)
{
    std::smatch match;
    return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : "";
}

TEST(Package, TheReleaseIsTheBuildsEverywhere)
{
    const std::string version = First(ReadAll("CMakeLists.txt"), "VERSION ([0-9]+\\.[0-9]+\\.[0-9]+)");
    ASSERT_NE("", version);
    EXPECT_EQ(version, First(ReadAll("CHANGELOG.md"), "\n## ([0-9.]+)"));
    EXPECT_EQ(version, First(ReadAll("debian/changelog"), "^orreva \\(([^)]+)\\)"));
    EXPECT_EQ(version,
              First(ReadAll("share/org.orreva.Orreva.metainfo.xml"), "<release version=\"([^\"]+)\""));
}

TEST(Package, TheDesktopKnowsTheProgramByOneName)
{
    const std::string id = "org.orreva.Orreva";
    const std::string desktop = ReadAll("share/" + id + ".desktop");
    EXPECT_EQ(id, First(desktop, "\nIcon=([^\n]+)"));
    const std::string metainfo = ReadAll("share/" + id + ".metainfo.xml");
    EXPECT_EQ(id, First(metainfo, "<id>([^<]+)"));
    EXPECT_EQ(id + ".desktop", First(metainfo, "desktop-id\">([^<]+)"));
    EXPECT_EQ(id, First(ReadAll("share/flatpak/" + id + ".yml"), "\nid: ([^\n]+)"));
    EXPECT_EQ(id, First(ReadAll("src/programs/Orreva.cpp"), "setDesktopFileName\\(\"([^\"]+)\""));
    EXPECT_EQ(id, First(ReadAll("cmake/Install.cmake"), "set\\(id ([^)]+)\\)"));
}

TEST(Package, EveryTypeThatTheDesktopHandsOverIsDeclared)
{
    const std::string types = First(ReadAll("share/org.orreva.Orreva.desktop"), "\nMimeType=([^\n]+)");
    const std::string declared = ReadAll("share/org.orreva.Orreva.mime.xml");
    const std::string metainfo = ReadAll("share/org.orreva.Orreva.metainfo.xml");
    const std::regex kType("[^;]+");
    int count = 0;
    for (auto type = std::sregex_iterator(types.begin(), types.end(), kType); type != std::sregex_iterator();
         ++type, ++count) {
        EXPECT_NE(std::string::npos, declared.find("<mime-type type=\"" + type->str() + "\"")) << type->str();
        EXPECT_NE(std::string::npos, metainfo.find("<mediatype>" + type->str() + "<")) << type->str();
    }
    EXPECT_EQ(2, count);
}

} // namespace
