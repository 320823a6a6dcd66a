#include "document/History.h"

#include "model/record/OrrevaData.h"

#include <gtest/gtest.h>

namespace {

constexpr Bilingual kA{"A", "AA"};
constexpr Bilingual kB{"B", "BB"};

RecordState With(double focalLength, const char* path = "x.orreva.xml")
{
    RecordState state;
    state.fields.title = "t";
    state.fields.focal_length = focalLength;
    state.fields.mirror_diameter = 200;
    state.path = path;
    state.modified = 1;
    return state;
}

class StepHistory : public testing::Test {
protected:
    StepHistory() { history.StartFrom(With(1)); }

    /// Takes a step back from a record that stands at `now`; the focal length that comes of it.
    double Undo(double now) { return Put(history.Undo(With(now))); }
    double Redo(double now) { return Put(history.Redo(With(now))); }
    double Put(const RecordState& state)
    {
        history.StartFrom(state);
        return state.fields.focal_length;
    }

    History history;
};

TEST_F(StepHistory, GoesBackAndForth)
{
    EXPECT_EQ(nullptr, history.UndoName());
    EXPECT_TRUE(history.Note(kA, With(2)));
    EXPECT_TRUE(history.Note(kB, With(3)));
    EXPECT_STREQ("B", history.UndoName()->english);
    EXPECT_EQ(2, Undo(3));
    EXPECT_STREQ("A", history.UndoName()->english);
    EXPECT_STREQ("BB", history.RedoName()->german);
    EXPECT_EQ(1, Undo(2));
    EXPECT_EQ(nullptr, history.UndoName());
    EXPECT_EQ(2, Redo(1));
    EXPECT_EQ(3, Redo(2));
    EXPECT_EQ(nullptr, history.RedoName());
}

TEST_F(StepHistory, AStepForgetsWhatWasTakenBack)
{
    history.Note(kA, With(2));
    Undo(2);
    history.Note(kB, With(5));
    EXPECT_EQ(nullptr, history.RedoName());
    EXPECT_EQ(1, Undo(5));
}

TEST_F(StepHistory, WhatChangedNothingIsNoStep)
{
    EXPECT_FALSE(history.Note(kA, With(1)));
    EXPECT_EQ(nullptr, history.UndoName());
}

TEST_F(StepHistory, KeepsAHundredSteps)
{
    for (int i = 2; i <= 151; ++i) {
        history.Note(kA, With(i));
    }
    int steps = 0;
    double at = 151;
    for (; history.UndoName() != nullptr; ++steps) {
        at = Undo(at);
    }
    EXPECT_EQ(100, steps);
    EXPECT_EQ(51, at);
}

TEST_F(StepHistory, ANewPathIsThatOfTheDesignsOtherStatesToo)
{
    history.StartFrom(With(1, "other"));
    history.Note(kA, With(2, "noname"), StepKind::Replaces);
    history.Note(kB, With(3, "noname"));
    history.Renamed("noname", "mine");
    RecordState state = history.Undo(With(3, "mine"));
    EXPECT_EQ("mine", state.path);
    state = history.Undo(state);
    EXPECT_EQ("other", state.path);
    EXPECT_EQ("mine", history.Redo(state).path);
}

TEST_F(StepHistory, AnEarlierDesignOfTheSameNameKeepsIt)
{
    history.StartFrom(With(1, "noname"));
    history.Note(kA, With(2, "noname"), StepKind::Replaces);
    history.Renamed("noname", "mine");
    EXPECT_EQ("noname", history.Undo(With(2, "mine")).path);
}

TEST_F(StepHistory, ASaveTellsWhichStatesDifferFromTheFile)
{
    history.Note(kA, With(2));
    history.Note(kB, With(1));
    history.Saved("x.orreva.xml", With(1).fields);
    RecordState state = history.Undo(With(1));
    EXPECT_EQ(1, state.modified);
    state = history.Undo(state);
    EXPECT_EQ(0, state.modified) << "what the file holds";
}

TEST(RecordStates, AreTakenAndPut)
{
    COrrevaData record;
    record.Reset();
    record.SetMirrorDiameter(200);
    record.SetTitle("mine");
    record.SetModified(1);
    const RecordState state = StateOf(record);
    record.Clear();
    PutState(state, record);
    EXPECT_EQ(200.0, record.mirror_diameter);
    EXPECT_STREQ("mine", record.title);
    EXPECT_STREQ("noname.orreva.xml", record.file_path);
    EXPECT_EQ(1, record.IsModified());
}

TEST(RecordStates, ReadingARecordDoesNotChangeIt)
{
    COrrevaData record;
    record.Reset();
    const RecordState before = StateOf(record);
    record.GetFocalPlaneHeight();
    record.GetSecondaryDiameter();
    record.GetBalanceFinder();
    EXPECT_TRUE(IsSameDesign(before, StateOf(record)));
    record.SetBalanceFinder(record.GetBalanceFinder() + 0.01);
    EXPECT_FALSE(IsSameDesign(before, StateOf(record)));
}

TEST(RecordStates, DifferByPathTextAndKind)
{
    COrrevaData record;
    record.Reset();
    const RecordState before = StateOf(record);
    record.SetTitle("another");
    EXPECT_FALSE(IsSameDesign(before, StateOf(record)));
    PutState(before, record);
    record.SetTubeType(3);
    EXPECT_FALSE(IsSameDesign(before, StateOf(record)));
    PutState(before, record);
    record.file_path = "elsewhere";
    EXPECT_FALSE(IsSameDesign(before, StateOf(record)));
}

} // namespace
