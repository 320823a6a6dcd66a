#include "document/Commands.h"

#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <set>

namespace {

class CommandTable : public testing::Test {
protected:
    void Load() { doc.main_record.Reset(); }

    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST_F(CommandTable, EveryIdStandsOnce)
{
    std::set<int> ids;
    for (const Command& command : Commands()) {
        EXPECT_TRUE(ids.insert(command.id).second) << command.id;
        EXPECT_EQ(&command, FindCommand(command.id));
    }
    EXPECT_EQ(nullptr, FindCommand(1));
}

TEST_F(CommandTable, EnabledAsListed)
{
    const std::set<int> always{32771, 32813, 32802, 57601, 57606, 32808, 32809, 32789,
                               32777, 32788, 32791, 32790, 32810, 33003, 33063};
    const std::set<int> loaded{32803, 32804, 32807, 32811, 57607, 57609, 32772, 32792, 32781,
                               32795, 32794, 32800, 32796, 32776, 32778, 32775, 32779, 32780,
                               32786, 33021, 33022, 33023, 33041, 33061, 33062};
    const auto enabled = [this](int id) {
        const Command* const command = FindCommand(id);
        return command != nullptr && IsEnabled(*command, doc);
    };
    for (const bool telescope : {false, true}) {
        if (telescope) {
            Load();
        }
        for (const int id : always) {
            EXPECT_TRUE(enabled(id)) << id;
        }
        for (const int id : loaded) {
            EXPECT_EQ(telescope, enabled(id)) << id;
        }
        EXPECT_FALSE(enabled(33001)) << "no step to take back";
        EXPECT_FALSE(enabled(33002));
        EXPECT_FALSE(enabled(32801)) << "Startest has no handler";
        EXPECT_FALSE(enabled(57616)) << "the recent files hold no entries";
        EXPECT_FALSE(enabled(32793)) << "not for a solid tube";
    }
    doc.main_record.SetTubeType(2);
    EXPECT_TRUE(enabled(32793));
}

TEST_F(CommandTable, BoxAndCageKeepTheirSwitchForASolidTube)
{
    Load();
    doc.main_record.SetTubeType(2);
    RunCommand(32793, doc);
    doc.main_record.SetTubeType(0);
    EXPECT_EQ(1, doc.show_box_and_cage);
    EXPECT_FALSE(IsEnabled(*FindCommand(32793), doc));
}

TEST_F(CommandTable, ChecksFollowTheirSwitches)
{
    Load();
    const struct {
        int id;
        std::uint8_t ViewSwitches::*place;
        bool inverted;
    } rows[] = {{32776, &ViewSwitches::ray_parallel, false},
                {32778, &ViewSwitches::ray_from_focal_plane, false},
                {32775, &ViewSwitches::ray_from_mouse, false},
                {32780, &ViewSwitches::show_offset, true},
                {32786, &ViewSwitches::show_extended_focuser, false},
                {32793, &ViewSwitches::show_box_and_cage, false},
                {33063, &ViewSwitches::high_contrast, false}};
    for (const auto& row : rows) {
        for (const std::uint8_t value : {std::uint8_t{0}, std::uint8_t{1}}) {
            doc.*row.place = value;
            EXPECT_EQ((value != 0) != row.inverted, IsChecked(*FindCommand(row.id), doc)) << row.id;
        }
        const std::uint8_t before = doc.*row.place;
        EXPECT_TRUE(RunCommand(row.id, doc));
        EXPECT_NE(before, doc.*row.place) << row.id;
    }
    EXPECT_FALSE(IsChecked(*FindCommand(32803), doc));
}

TEST_F(CommandTable, DialogCommandsRunTheirDialog)
{
    const struct {
        int id;
        Modal modal;
    } rows[] = {
        {32795, Modal::ArtificialStar},    {32794, Modal::FoucaultSheet},    {32800, Modal::RonchiSheet},
        {32796, Modal::FieldSimulation},   {32789, Modal::Calculator},       {32777, Modal::InchCalculator},
        {32788, Modal::PolygonCalculator}, {32791, Modal::SectorCalculator}, {33062, Modal::WorkshopSheets}};
    for (const auto& row : rows) {
        host.Take();
        EXPECT_TRUE(RunCommand(row.id, doc));
        EXPECT_EQ(std::vector<std::string>{"modal " + std::to_string(static_cast<int>(row.modal))},
                  host.Take());
    }
}

TEST_F(CommandTable, CommandsOfTheDesktopAndWithoutAHandlerDoNothingHere)
{
    for (const int id : {32801, 57607, 57609, 57606, 32808, 57603, 1}) {
        EXPECT_FALSE(RunCommand(id, doc)) << id;
    }
    EXPECT_TRUE(host.Take().empty());
}

TEST_F(CommandTable, KeysGiveTheirCommands)
{
    const auto command = [](std::string_view keys) {
        for (const Accelerator& accelerator : Accelerators()) {
            if (keys == accelerator.keys) {
                return accelerator.id;
            }
        }
        return 0;
    };
    EXPECT_EQ(32803, command("Ctrl+S"));
    EXPECT_EQ(57665, command("Ctrl+Q"));
    EXPECT_EQ(57601, command("Ctrl+O"));
    EXPECT_EQ(33001, command("Ctrl+Z"));
    EXPECT_EQ(33002, command("Ctrl+Shift+Z"));
    EXPECT_EQ(33002, command("Ctrl+Y"));
}

TEST_F(CommandTable, UndoAndRedoAreEnabledWhileThereIsAStep)
{
    const auto enabled = [this](int id) { return IsEnabled(*FindCommand(id), doc); };
    host.quick_new.push_back(kQuickNewTexts);
    RunCommand(32771, doc);
    EXPECT_TRUE(enabled(33001));
    EXPECT_FALSE(enabled(33002));
    RunCommand(33001, doc);
    EXPECT_FALSE(enabled(33001));
    EXPECT_TRUE(enabled(33002));
}

TEST_F(CommandTable, ADialogThatChangesTheRecordIsAStepUnderItsName)
{
    Load();
    host.in_modal = [this](Modal) { doc.main_record.SetStarPrecision(8); };
    RunCommand(32795, doc);
    ASSERT_NE(nullptr, doc.Steps().UndoName());
    EXPECT_STREQ("Artificial Star", doc.Steps().UndoName()->english);
    EXPECT_STREQ("K\xFCnstlicher Stern", doc.Steps().UndoName()->german);
}

} // namespace
