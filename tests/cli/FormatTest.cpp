#include "cli/Shell.h"

#include <gtest/gtest.h>

namespace {

TEST(CliFormat, ReportInThreeForms)
{
    const std::string words = "report --page marks --page star --format ";
    EXPECT_EQ(Cli("report --page marks --page star").out, Cli(words + "text").out);

    // D^2 / (q^2 * 512 * 587.56 / 20) * 1000 at q = 6: 115.42 m
    const CliRun csv = Cli(words + "csv");
    EXPECT_EQ(0, csv.status);
    EXPECT_TRUE(csv.out.starts_with("page,cell1,cell2\nmarks,Maximaler Durchmesser")) << csv.out;
    EXPECT_NE(std::string::npos, csv.out.find("\nstar,error,115.42m\n")) << csv.out;

    const CliRun json = Cli(words + "json");
    EXPECT_EQ(0, json.status);
    EXPECT_TRUE(json.out.starts_with("[\n  {\n    \"page\": \"marks\",\n    \"rows\": [\n")) << json.out;
    EXPECT_NE(std::string::npos, json.out.find("\"error\",\n        \"115.42m\"\n")) << json.out;
}

TEST(CliFormat, EveryPageGoesIntoEveryForm)
{
    EXPECT_EQ(0, Cli("report --format csv").status);
    const CliRun json = Cli("report --format json");
    EXPECT_EQ(0, json.status);
    EXPECT_TRUE(json.out.ends_with("]\n"));
}

TEST(CliFormat, AnUnknownFormIsNamed)
{
    const CliRun run = Cli("report --format xml");
    EXPECT_EQ(2, run.status);
    EXPECT_EQ("", run.out);
    EXPECT_EQ("orreva-cli: --format does not take xml\n", run.err);
    EXPECT_EQ(2, Cli("rays --mode focal --pointer 1,2 --format csv").status) << "rays are no table";
}

} // namespace
