#include "document/FileContent.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(FileContent, ADesignBeginsAsXmlOrHoldsItsElement)
{
    for (const char* text :
         {"<?xml version=\"1.0\"?>", "\xEF\xBB\xBF<?xml", " \r\n\t<?xml", "\xEF\xBB\xBF \n<?xml",
          "<telescope>", "<!-- mine --><telescope", "any text <telescope kind"}) {
        EXPECT_TRUE(LooksLikeDesign(text)) << text;
    }
    for (const char* text : {"", " ", "\xEF\xBB\xBF", "xml", "a <?xml", "<Telescope>", "telescope", "<?xm"}) {
        EXPECT_FALSE(LooksLikeDesign(text)) << text;
    }
}

TEST(FileContent, OnlyTheFirst4096BytesCount)
{
    const std::string mark = "<telescope";
    EXPECT_TRUE(LooksLikeDesign(std::string(4096 - mark.size(), '.') + mark));
    EXPECT_FALSE(LooksLikeDesign(std::string(4097 - mark.size(), '.') + mark));
    EXPECT_FALSE(LooksLikeDesign(std::string(4096, ' ') + "<?xml"));
}

TEST(FileContent, AFileOfTheOldFormatMayHoldAnyRemark)
{
    const std::string version = "\xA5\xC9\x31\x01"; // 20040101, its lowest byte first
    EXPECT_FALSE(LooksLikeDesign(version + "\x0A<telescope"));
    EXPECT_TRUE(LooksLikeDesign("\xA6\xC9\x31\x01\x0A<telescope"));
}

TEST(FileContent, AFileIsLookedAt)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(LooksLikeDesignFile(folder.Write("a", "<?xml").c_str()));
    EXPECT_FALSE(LooksLikeDesignFile(folder.Write("b", "xml").c_str()));
    EXPECT_FALSE(LooksLikeDesignFile((folder / "missing").c_str()));
    EXPECT_FALSE(LooksLikeDesignFile(folder.Path().c_str()));
}

} // namespace
