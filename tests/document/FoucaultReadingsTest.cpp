#include "document/FoucaultReadings.h"

#include "lib/text/Language.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

class FoucaultReadingsTest : public testing::Test {
protected:
    static ReadingBook Sample()
    {
        ReadingBook book;
        book.series.resize(1);
        book.series[0].name = "A";
        book.series[0].zones = {{"30", {"1"}}, {"60", {"x"}}, {"90", {}}};
        return book;
    }

    TemporaryFolder folder;
    const std::string design = folder / "mine.orreva.xml";
    FoucaultReadings readings;
};

TEST_F(FoucaultReadingsTest, AreWrittenBesideTheDesignAndComeBack)
{
    EXPECT_TRUE(readings.Change(Sample()));
    EXPECT_FALSE(readings.Change(Sample()));
    EXPECT_TRUE(readings.IsModified());
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_FALSE(readings.IsModified());
    EXPECT_EQ(BookText(Sample()), folder.Read("mine.foucault.csv"));
    FoucaultReadings other;
    EXPECT_EQ("", other.Open(design, kEnglish));
    EXPECT_EQ(Sample(), other.Book());
    EXPECT_FALSE(other.IsModified());
}

TEST_F(FoucaultReadingsTest, ReadingsOfAnotherDesignStayUnderTheirNameWithATilde)
{
    folder.Write("mine.foucault.csv", "somebody's");
    readings.Change(Sample());
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_EQ("somebody's", folder.Read("mine.foucault.csv~"));
    EXPECT_EQ(BookText(Sample()), folder.Read("mine.foucault.csv"));
    // One's own are replaced without.
    folder.Write("mine.foucault.csv~", "kept");
    readings.Change({});
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_EQ("kept", folder.Read("mine.foucault.csv~"));
    FoucaultReadings other;
    other.Open(design, kEnglish);
    other.Change(Sample());
    EXPECT_EQ("", other.Save(design, kEnglish));
    EXPECT_EQ("kept", folder.Read("mine.foucault.csv~"));
}

TEST_F(FoucaultReadingsTest, AMissingFileIsToldAndTheBookIsEmpty)
{
    readings.Change(Sample());
    EXPECT_EQ("There are no Foucault readings beside this design.", readings.Open(design, kEnglish));
    EXPECT_EQ(ReadingBook(), readings.Book());
    EXPECT_EQ("Neben diesem Entwurf stehen keine Foucault-Messwerte.", readings.Open(design, kGerman));
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_FALSE(std::filesystem::exists("mine.foucault.csv"));
}

TEST_F(FoucaultReadingsTest, ADamagedFileIsToldAndKept)
{
    folder.Write("mine.foucault.csv", "<html>");
    const std::string told = readings.Open(design, kEnglish);
    EXPECT_EQ("The file of Foucault readings " + (folder / "mine.foucault.csv") +
                  " is damaged and was not read.",
              told);
    EXPECT_EQ("", readings.Save(design, kEnglish)); // an empty book leaves it alone
    EXPECT_EQ("<html>", folder.Read("mine.foucault.csv"));
    readings.Change(Sample());
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_EQ("<html>", folder.Read("mine.foucault.csv~"));
    EXPECT_EQ(BookText(Sample()), folder.Read("mine.foucault.csv"));
}

TEST_F(FoucaultReadingsTest, ADirectoryInItsPlaceIsDamagedAndAFailedSaveKeepsTheBookModified)
{
    std::filesystem::create_directory("mine.foucault.csv");
    EXPECT_NE("", readings.Open(design, kEnglish));
    readings.Change(Sample());
    const std::string told = readings.Save(folder / "none/mine.orreva.xml", kEnglish);
    EXPECT_EQ("The Foucault readings could not be written to " + (folder / "none/mine.foucault.csv") + ".",
              told);
    EXPECT_TRUE(readings.IsModified());
    EXPECT_EQ(Sample(), readings.Book());
}

TEST_F(FoucaultReadingsTest, TheLastSeriesDeletedIsSavedToo)
{
    readings.Change(Sample());
    readings.Save(design, kEnglish);
    readings.Change({});
    EXPECT_EQ("", readings.Save(design, kEnglish));
    EXPECT_EQ(BookText({}), folder.Read("mine.foucault.csv"));
    EXPECT_EQ("", readings.Open(design, kEnglish));
}

TEST_F(FoucaultReadingsTest, AreForgottenWithTheirDesign)
{
    readings.Change(Sample());
    readings.Clear();
    EXPECT_EQ(ReadingBook(), readings.Book());
    EXPECT_FALSE(readings.IsModified());
}

} // namespace
