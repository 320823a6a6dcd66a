#include "report/Report.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

namespace {

void OnePage(const ReportContext&, const ReportSink& sink)
{
    sink("A heading, alone");
    sink("8\" Spiegel\t5\xB0\t!");
    sink("\t");
}
void EmptyPage(const ReportContext&, const ReportSink&) {}

constexpr ReportPage kOne{"one", {"One", "Eins"}, OnePage};
constexpr ReportPage kEmpty{"empty", {"Empty", "Leer"}, EmptyPage};

class ReportTables : public testing::Test {
protected:
    COrrevaData record;
    ReportContext context{record};
};

TEST_F(ReportTables, CsvIsAsWideAsTheWidestRow)
{
    const ReportPage* const pages[] = {&kEmpty, &kOne};
    EXPECT_EQ("page,cell1,cell2,cell3\n"
              "one,\"A heading, alone\",,\n"
              "one,\"8\"\" Spiegel\",5°,!\n"
              "one,,,\n",
              CsvReport(pages, context));
    EXPECT_EQ("page\n", CsvReport(std::span(pages).first(1), context));
}

TEST_F(ReportTables, JsonKeepsTheCellsOfEachRow)
{
    const ReportPage* const pages[] = {&kEmpty, &kOne};
    EXPECT_EQ("[\n"
              "  {\n"
              "    \"page\": \"empty\",\n"
              "    \"rows\": []\n"
              "  },\n"
              "  {\n"
              "    \"page\": \"one\",\n"
              "    \"rows\": [\n"
              "      [\n"
              "        \"A heading, alone\"\n"
              "      ],\n"
              "      [\n"
              "        \"8\\\" Spiegel\",\n"
              "        \"5°\",\n"
              "        \"!\"\n"
              "      ],\n"
              "      [\n"
              "        \"\",\n"
              "        \"\"\n"
              "      ]\n"
              "    ]\n"
              "  }\n"
              "]\n",
              JsonReport(pages, context));
}

} // namespace
