// The readings of the knife edge come and go with the design that they belong to.

#include "document/OrrevaDoc.h"

#include "document/RescueCopies.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr Bilingual kStep{"Foucault Test", "Foucault Test"};

class DesignReadings : public testing::Test {
protected:
    DesignReadings()
    {
        host.quick_new.push_back(kQuickNewTexts);
        doc.BeginCommand();
        doc.OnFileNewQuick();
        doc.BeginCommand();
        doc.main_record.SaveAs((folder / "mine.orreva.xml").c_str());
    }

    static ReadingBook Book(const char* name)
    {
        ReadingBook book;
        book.series.resize(1);
        book.series[0].name = name;
        return book;
    }

    /// The sheet, ended with OK, leaves a book.
    void InSheet(const ReadingBook& book)
    {
        host.modals.push_back(true);
        host.in_modal = [this, book](Modal) { doc.StoreReadings(book); };
        doc.BeginCommand();
        doc.RunSheet(Modal::FoucaultSheet, kStep);
        doc.NoteStep(kStep);
    }

    void Open(const std::string& path)
    {
        host.paths.push_back(path);
        doc.BeginCommand();
        doc.OnFileOpen();
    }

    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST_F(DesignReadings, AreSavedAndOpenedWithIt)
{
    InSheet(Book("A"));
    EXPECT_EQ(1, doc.main_record.modified);
    doc.BeginCommand();
    doc.OnFileSave();
    EXPECT_EQ(BookText(Book("A")), folder.Read("mine.foucault.csv"));
    host.quick_new.push_back(kQuickNewTexts);
    doc.BeginCommand();
    doc.OnFileNewQuick();
    EXPECT_EQ(ReadingBook(), doc.readings.Book());
    Open(folder / "mine.orreva.xml");
    EXPECT_EQ(Book("A"), doc.readings.Book());
    EXPECT_EQ(0, doc.main_record.modified);
}

TEST_F(DesignReadings, ComeWithAnEarlierDesignFromBesideItsPath)
{
    InSheet(Book("A"));
    doc.BeginCommand();
    doc.OnFileSave();
    RescueCopies copies(folder / "rescue");
    doc.KeepCopies(&copies);
    copies.Keep(RescueReason::Discarded, doc.main_record);
    host.quick_new.push_back(kQuickNewTexts);
    doc.BeginCommand();
    doc.OnFileNewQuick();
    doc.main_record.SaveAs((folder / "other.orreva.xml").c_str());
    InSheet(Book("B"));
    host.yes_no.push_back(false);
    host.earlier = 0;
    doc.BeginCommand();
    doc.OnEarlierDesigns();
    EXPECT_EQ(folder / "mine.orreva.xml", std::string(doc.main_record.file_path.GetText()));
    EXPECT_EQ(Book("A"), doc.readings.Book());
    doc.BeginCommand();
    doc.OnFileSave();
    EXPECT_EQ(BookText(Book("A")), folder.Read("mine.foucault.csv"));
    doc.KeepCopies(nullptr);
}

TEST_F(DesignReadings, AreSavedWhenThePromptIsAnsweredWithYes)
{
    InSheet(Book("A"));
    host.yes_no.push_back(true);
    host.quick_new.push_back(kQuickNewTexts);
    doc.BeginCommand();
    doc.OnFileNewQuick();
    EXPECT_EQ(BookText(Book("A")), folder.Read("mine.foucault.csv"));
    EXPECT_EQ(ReadingBook(), doc.readings.Book());
}

TEST_F(DesignReadings, AreUndoneAndDoneAgain)
{
    InSheet(Book("A"));
    InSheet(Book("B"));
    doc.BeginCommand();
    doc.OnUndo();
    EXPECT_EQ(Book("A"), doc.readings.Book());
    doc.BeginCommand();
    doc.OnUndo();
    EXPECT_EQ(ReadingBook(), doc.readings.Book());
    EXPECT_EQ(0, doc.main_record.modified);
    doc.BeginCommand();
    doc.OnRedo();
    EXPECT_EQ(Book("A"), doc.readings.Book());
    EXPECT_EQ(1, doc.main_record.modified);
}

TEST_F(DesignReadings, AMissingOrDamagedFileIsToldAndTheDesignOpens)
{
    Open(folder / "mine.orreva.xml");
    EXPECT_NE(std::string::npos, host.status.find("There are no Foucault readings beside this design."));
    folder.Write("mine.foucault.csv", "<html>");
    Open(folder / "mine.orreva.xml");
    EXPECT_NE(std::string::npos, host.status.find("is damaged and was not read."));
    EXPECT_TRUE(doc.HasFile());
    EXPECT_EQ(250, doc.main_record.GetMirrorDiameter());
}

} // namespace
