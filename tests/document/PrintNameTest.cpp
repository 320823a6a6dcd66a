#include "document/PrintName.h"

#include "model/record/OrrevaData.h"

#include <gtest/gtest.h>

namespace {

TEST(PrintName, IsTheTitleAndThePage)
{
    COrrevaData record;
    record.SetTitle("Newton 200/1200");
    record.file_path = "/home/me/other.orreva.xml";
    EXPECT_EQ("Newton 200/1200 - cross-section", PrintName(record, "cross-section"));
}

TEST(PrintName, IsTheFilesNameWithoutATitle)
{
    COrrevaData record;
    record.SetTitle("  ");
    record.file_path = "/home/me/D\xC3\xB6ner.orreva.xml"; // the file system's UTF-8
    EXPECT_EQ("D\xF6ner", DesignName(record));
    record.file_path = "/home/me/notes.txt";
    EXPECT_EQ("notes.txt", DesignName(record));
    record.file_path = "";
    EXPECT_EQ("design summary", PrintName(record, "design summary"));
}

TEST(PrintName, GivesAFileNameWithoutFolders)
{
    EXPECT_EQ("Newton 200-1200 - cross-section.pdf", ProposedFile("Newton 200/1200 - cross-section", ".pdf"));
    EXPECT_EQ("a-b-c-d-e-f-g-h-i-j.pdf", ProposedFile("a/b\\c:d*e?f\"g<h>i|j", ".pdf"));
    EXPECT_EQ("hidden.pdf", ProposedFile(".. .hidden", ".pdf"));
    EXPECT_EQ("x-y.pdf", ProposedFile("x\ny", ".pdf"));
    EXPECT_EQ("Orreva.pdf", ProposedFile("", ".pdf"));
    EXPECT_EQ(124u, ProposedFile(std::string(5000, 'x'), ".pdf").size());
}

} // namespace
