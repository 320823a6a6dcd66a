#include "pages/sheet/SheetFixture.h"

#include "model/analysis/Focuser.h"

#include <QGroupBox>
#include <QRadioButton>

namespace {

class FocuserPage : public SheetFixture {};
class FocuserPageGerman : public GermanSheetFixture {};

bool IsEnabled(const QWidget& page, int control) { return FindControl<QWidget>(&page, control)->isEnabled(); }
bool IsChecked(const QWidget& page, int control)
{
    return FindControl<QRadioButton>(&page, control)->isChecked();
}

struct TypeRow {
    int type;
    int radio;
    bool travel;
    bool length;
    bool sliding;
};

constexpr TypeRow kTypes[] = {
    {0, 1041, true, true, false}, {1, 1042, false, false, true}, {2, 1007, true, true, true}};

TEST_F(FocuserPage, TheKindEnablesItsFields)
{
    MakeMeasuredTelescope();
    for (const TypeRow& row : kTypes) {
        Record().SetFocuserType(row.type);
        OnPage(kFocuser, "cancel", [&](CPropertyPage& page) {
            EXPECT_TRUE(IsChecked(page, row.radio));
            EXPECT_EQ(row.travel, IsEnabled(page, 1052)) << row.type;
            EXPECT_EQ(row.length, IsEnabled(page, 1054)) << row.type;
            EXPECT_EQ(row.sliding, IsEnabled(page, 1053)) << row.type;
            EXPECT_FALSE(IsEnabled(page, 1042)) << "a sliding focuser alone cannot be picked";
            EXPECT_FALSE(IsEnabled(page, 1055));
            EXPECT_FALSE(IsEnabled(page, 1062));
        });
    }
}

TEST_F(FocuserPage, AClickOnAKindWritesOnApply)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kFocuser);
        Click(page, 1042);
        EXPECT_TRUE(IsChecked(page, 1041)) << "disabled";
        Click(page, 1007);
        EXPECT_TRUE(IsEnabled(page, 1053));
        EXPECT_EQ(0, Record().GetFocuserType());
        Type(page, 1053, "75");
        Press(sheet, "apply");
        EXPECT_EQ(2, Record().GetFocuserType());
        EXPECT_EQ(75.0, Record().GetOschTravel());
        Click(page, 1041);
        EXPECT_FALSE(IsEnabled(page, 1053));
        Press(sheet, "apply");
        EXPECT_EQ(0, Record().GetFocuserType());
    });
}

TEST_F(FocuserPage, ASlidingFocuserStaysOne)
{
    MakeMeasuredTelescope();
    Record().SetFocuserType(1);
    OnPage(kFocuser, "ok", [](CPropertyPage&) {});
    EXPECT_EQ(1, Record().GetFocuserType());
}

TEST_F(FocuserPage, ANumberThatIsNoKindIsKeptUntilOneIsChosen)
{
    MakeMeasuredTelescope();
    Record().SetFocuserType(7);
    OnPage(kFocuser, "ok", [](CPropertyPage& page) {
        for (const TypeRow& row : kTypes) {
            EXPECT_FALSE(IsChecked(page, row.radio));
        }
    });
    EXPECT_EQ(7, Record().GetFocuserType());
    OnPage(kFocuser, "ok", [](CPropertyPage& page) { Click(page, 1041); });
    EXPECT_EQ(0, Record().GetFocuserType());
}

TEST_F(FocuserPage, StoresItsSixMeasures)
{
    MakeMeasuredTelescope();
    Record().SetFocuserType(2);
    OnPage(kFocuser, "ok", [](CPropertyPage& page) {
        Type(page, 1016, "70");
        Type(page, 1017, "60");
        Type(page, 1002, "5,5");
        Type(page, 1052, "45");
        Type(page, 1054, "55");
        Type(page, 1053, "88");
    });
    EXPECT_EQ(70.0, Record().GetFocuserDiameter());
    EXPECT_EQ(60.0, Record().GetFocuserHeight());
    EXPECT_EQ(5.5, Record().GetFocuserSpare());
    EXPECT_EQ(45.0, Record().GetOazTravel());
    EXPECT_EQ(55.0, Record().GetOazLength());
    EXPECT_EQ(88.0, Record().GetOschTravel());
}

TEST_F(FocuserPage, TheInnerDiameterFollowsTheWantedField)
{
    MakeMeasuredTelescope();
    Record().SetFocuserDiameter(24.4);
    OnPage(kFocuser, "cancel", [this](CPropertyPage& page) {
        EXPECT_EQ("24.4", TextOf(page, 1016));
        Click(page, 1061);
        EXPECT_EQ("50.8", TextOf(page, 1016)) << "193 * 200 / 1200 + 6 = 38.2 mm: two inches";
        Record().SetWanted100PercentFow(80);
        Click(page, 1061);
        EXPECT_EQ("76.2", TextOf(page, 1016)) << "72.2 mm: three inches";
    });
    EXPECT_NEAR(76.2, Record().GetFocuserDiameter(), 1e-9);
}

TEST_F(FocuserPage, OtherMeasuresGoBackToo)
{
    MakeMeasuredTelescope();
    Record().SetFocuserType(2);
    Record().SetFocuserSpare(99);
    Record().SetOschTravel(99);
    OnPage(kFocuser, "cancel", [](CPropertyPage& page) {
        Click(page, 1059);
        EXPECT_EQ("10.0", TextOf(page, 1002));
        Click(page, 1056);
        EXPECT_EQ("100.0", TextOf(page, 1053));
    });
}

TEST_F(FocuserPage, DoesNotReadAgainWhenItComesToTheFront)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        Visit(sheet, kFocuser);
        Visit(sheet, kSecondary);
        Record().SetFocuserHeight(77);
        EXPECT_EQ("40.0", TextOf(Visit(sheet, kFocuser), 1017));
    });
}

/// The form's labels are those of the reports.
void CheckLabels(const std::function<std::string(int control)>& labelOf, int language)
{
    const int controls[] = {1016, 1017, 1002, 1052, 1054, 1053};
    for (std::size_t i = 0; i < kFocuserNumbers; ++i) {
        EXPECT_EQ(ToQString(kFocuserFields[i].label.In(language)).toStdString(), labelOf(controls[i]));
    }
}

TEST_F(FocuserPage, GroupsAndLabelsAgreeWithTheReports)
{
    MakeMeasuredTelescope();
    OnPage(kFocuser, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Focuser", page.findChild<QGroupBox*>("oazGroup")->title());
        EXPECT_EQ("Sliding Focuser", page.findChild<QGroupBox*>("oschGroup")->title());
        CheckLabels([&](int control) { return LabelOf(page, control); }, kEnglish);
    });
}

TEST_F(FocuserPageGerman, GroupsAndLabelsAgreeWithTheReports)
{
    MakeMeasuredTelescope();
    OnPage(kFocuser, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Auszug", page.findChild<QGroupBox*>("oazGroup")->title());
        EXPECT_EQ("Schlitten", page.findChild<QGroupBox*>("oschGroup")->title());
        CheckLabels([&](int control) { return LabelOf(page, control); }, kGerman);
    });
}

} // namespace
