#include "cli/DrawVerb.h"

#include "cli/words/ProgramWords.h"
#include "lib/text/Language.h"
#include "support/SampleScopes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

TEST(DrawVerbWords, TheHelpNamesEachPicture)
{
    std::vector<std::string_view> names;
    for (const NamedPicture& picture : Pictures()) {
        names.push_back(picture.name);
    }
    EXPECT_EQ(names, ChoicesOf(FindOptionWords("--picture")->choices));
}

class DrawVerb : public ::testing::Test {
protected:
    DrawVerb()
    {
        MakeRoundScope(record);
        options.size = {400, 300};
    }
    int Draw(const char* picture, const std::string& path)
    {
        return DrawPicture(*FindPicture(picture), {record, {20, 1.5}, kEnglish, options}, path);
    }
    QImage Drawn(const char* picture)
    {
        EXPECT_EQ(0, Draw(picture, folder / "drawn.png"));
        return QImage(QString::fromStdString(folder / "drawn.png"));
    }

    COrrevaData record;
    DrawOptions options;
    TemporaryFolder folder;
};

TEST_F(DrawVerb, KnowsItsPicturesAndForms)
{
    EXPECT_STREQ("section", FindPicture("section")->name);
    EXPECT_STREQ("summary", FindPicture("summary")->name);
    EXPECT_EQ(nullptr, FindPicture("moon"));
    EXPECT_TRUE(IsPictureFile("a.png"));
    EXPECT_TRUE(IsPictureFile("/tmp/a b.svg"));
    EXPECT_TRUE(IsPictureFile("x.pdf"));
    EXPECT_FALSE(IsPictureFile("png"));
    EXPECT_FALSE(IsPictureFile("a.png.txt"));
    EXPECT_FALSE(IsPictureFile(""));
    EXPECT_TRUE(IsPictureSize({1, 16384}));
    EXPECT_FALSE(IsPictureSize({0, 100}));
    EXPECT_FALSE(IsPictureSize({100, 16385}));
    EXPECT_FALSE(IsPictureSize({100, -1}));
}

TEST_F(DrawVerb, PaintsTheSectionIntoPixels)
{
    const QImage image = Drawn("section");
    ASSERT_EQ(QSize(400, 300), image.size());
    EXPECT_EQ(qRgb(0, 102, 153), image.pixel(399, 299));
    // 390 / 1067 pixels a mm: the tube's inside beside the primary is white.
    const double scale = 390.0 / 1067;
    const double down = (300 - 350 * scale) / 4;
    EXPECT_EQ(qRgb(255, 255, 255),
              image.pixel(static_cast<int>(5 + 700 * scale), static_cast<int>(down + 200 * scale)));
    EXPECT_EQ(qRgb(0, 255, 64),
              image.pixel(static_cast<int>(5 + 1007 * scale), static_cast<int>(down + 200 * scale)));
}

TEST_F(DrawVerb, FollowsTheOptionsOfTheSection)
{
    const QImage plain = Drawn("section");
    const auto changes = [&](auto change) {
        options = {};
        options.size = {400, 300};
        change();
        return Drawn("section") != plain;
    };
    EXPECT_FALSE(changes([] {}));
    EXPECT_TRUE(changes([&] { options.mode = RayMode::kParallel; }));
    EXPECT_TRUE(changes([&] { options.no_offset = true; }));
    EXPECT_TRUE(changes([&] { options.box_and_cage = true; }));
    EXPECT_TRUE(changes([&] { options.zoom = 2; }));
    EXPECT_FALSE(changes([&] { options.scroll = {50, 50}; })) << "nothing to scroll at zoom 1";
    EXPECT_FALSE(changes([&] { options.extended = true; })) << "a sliding focuser";
    options.extended = false;
    record.SetFocuserType(2);
    record.SetFocuserHeight(35); // the focal plane stays where it was
    const QImage retracted = Drawn("section");
    options.extended = true;
    EXPECT_NE(retracted, Drawn("section"));
}

TEST_F(DrawVerb, ScrollsIntoTheEnlargedPicture)
{
    options.zoom = 2;
    const QImage upper = Drawn("section");
    options.scroll = {123, 45};
    const QImage lower = Drawn("section");
    EXPECT_EQ(upper.copy(123, 45, 277, 255), lower.copy(0, 0, 277, 255));
}

TEST_F(DrawVerb, PaintsTheSummaryIntoPixels)
{
    const QImage image = Drawn("summary");
    EXPECT_EQ(qRgb(51, 153, 102), image.pixel(399, 299));
    record.Clear();
    const QImage plain = Drawn("summary");
    EXPECT_NE(plain, image);
    EXPECT_EQ(qRgb(51, 153, 102), plain.pixel(5, 10));
}

TEST_F(DrawVerb, WritesVectorForms)
{
    options.mode = RayMode::kParallel;
    options.pointer = {500, 80};
    ASSERT_EQ(0, Draw("section", folder / "a.svg"));
    const std::string svg = folder.Read("a.svg");
    EXPECT_NE(std::string::npos, svg.find("viewBox=\"0 0 400 300\""));
    EXPECT_NE(std::string::npos, svg.find("Illumination: 75.32%"));
    EXPECT_NE(std::string::npos, svg.find("#ffff00")) << "yellow rays";
    ASSERT_EQ(0, Draw("section", folder / "a.pdf"));
    const std::string pdf = folder.Read("a.pdf");
    EXPECT_EQ("%PDF-", pdf.substr(0, 5));
    EXPECT_NE(std::string::npos, pdf.find("/MediaBox [0 0 400.000000 300.000000]"));
    EXPECT_NE(std::string::npos, pdf.rfind("%%EOF"));
}

TEST_F(DrawVerb, AnSvgIsAsLargeAsAskedForAtTheUsualResolution)
{
    options.size = {960, 480}; // 10 by 5 inches of 96 pixels
    ASSERT_EQ(0, Draw("section", folder / "a.svg"));
    const std::string svg = folder.Read("a.svg");
    EXPECT_NE(std::string::npos, svg.find("width=\"254mm\" height=\"127mm\""));
    EXPECT_NE(std::string::npos, svg.find("viewBox=\"0 0 960 480\""));
}

TEST_F(DrawVerb, VectorFormsHaveTheDesignsTitle)
{
    record.SetTitle("H\xF6he & <8\"");
    ASSERT_EQ(0, Draw("summary", folder / "a.svg"));
    EXPECT_NE(std::string::npos, folder.Read("a.svg").find("<title>H\xC3\xB6he &amp; &lt;8"));
    record.SetTitle("\xC4\x62"); // in UTF-16 00C4 0062
    ASSERT_EQ(0, Draw("summary", folder / "a.pdf"));
    EXPECT_NE(std::string::npos, folder.Read("a.pdf").find(std::string("/Title (\xFE\xFF\0\xC4\0b)", 15)));
}

TEST_F(DrawVerb, APictureWithoutATitleHasTheProgramsName)
{
    record.SetTitle("");
    ASSERT_EQ(0, Draw("polygon", folder / "a.svg"));
    EXPECT_NE(std::string::npos, folder.Read("a.svg").find("<title>Orreva</title>"));
}

TEST_F(DrawVerb, WritesTheFileWholeOrNotAtAll)
{
    const std::string missing = folder / "no such folder/a.png";
    EXPECT_EQ(1, Draw("section", missing));
    EXPECT_EQ(0, folder.Count());
    EXPECT_EQ(0, Draw("summary", folder / "a.png"));
    EXPECT_EQ(1, folder.Count()) << "nothing is left beside it";
}

TEST_F(DrawVerb, TakesTheSmallestAndTheLongestPicture)
{
    for (const Pixel size : {Pixel{1, 1}, Pixel{16384, 1}, Pixel{30, 16384}}) {
        options.size = size;
        options.mode = RayMode::kPointer;
        EXPECT_EQ(QSize(size.x, size.y), Drawn("section").size());
    }
}

} // namespace
