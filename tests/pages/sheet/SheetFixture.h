#pragma once

#include "app/AppFixture.h"

#include "model/analysis/Balance.h"
#include "pages/telescope/MyPropertySheet0.h"
#include "painting/QtText.h"
#include "views/ResultList.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/// Positions of the pages in the telescope sheet.
enum SheetPage { kRemarks, kPrimary, kTube, kFocuser, kSecondary, kCell, kEyepieces, kBalance };

constexpr int kProperties = 32772;
constexpr int kNewDetailed = 32813;

/// What the telescope sheet's tests do to it, by its real controls.
template <typename Base>
class SheetActions : public Base {
protected:
    using Base::app;
    using Base::Choose;

    COrrevaData& Record() { return *app->Document().active_record; }

    /// A telescope of 200 mm and 1200 mm, all else as the program proposes.
    void MakeSmallTelescope()
    {
        this->MakeTelescope();
        COrrevaData& record = Record();
        record.SetModified(0); // else the reset would ask
        record.Reset();
        record.SetMirrorDiameter(200);
        record.SetFocalLength(1200);
        app->Document().Recalculate();
        record.SetModified(0);
    }

    /// The same with every measure settled; its focal plane lies 193 mm off the axis.
    void MakeMeasuredTelescope()
    {
        MakeSmallTelescope();
        COrrevaData& record = Record();
        record.SetMirrorThickness(33.33);
        record.SetDensity(2.23);
        record.SetFocuserHeight(40);
        record.SetFocuserSpare(10);
        record.SetOazTravel(30);
        record.SetFocuserDiameter(50.8);
        record.SetThicknessHat(10);
        record.SetInsideDiameterHat(236);
        record.SetDistanceBack(50);
        record.SetDistanceFront(100);
        record.SetWanted100PercentFow(12);
        record.SetSecondaryDiameter(50);
        ASSERT_EQ(193.0, record.GetFocalPlaneHeight());
        SuggestBalance(record);
    }

    /// Runs `act` in the sheet that the command opens, and presses Cancel if it is still open then.
    void InSheet(int command, const std::function<void(CMyPropertySheet0&)>& act)
    {
        this->template InNextDialog<CMyPropertySheet0>([&](CMyPropertySheet0& sheet) {
            act(sheet);
            if (sheet.isVisible()) {
                Press(sheet, "cancel");
            }
        });
        Choose(command);
    }
    void InSheet(const std::function<void(CMyPropertySheet0&)>& act) { InSheet(kProperties, act); }

    /// Runs `act` on one page of the tabbed sheet, which then ends with the button.
    void OnPage(SheetPage index, const char* button, const std::function<void(CPropertyPage&)>& act)
    {
        InSheet([&](CMyPropertySheet0& sheet) {
            act(Visit(sheet, index));
            Press(sheet, button);
        });
    }

    static CPropertyPage& Visit(CMyPropertySheet0& sheet, SheetPage index)
    {
        sheet.SetActivePage(index);
        QCoreApplication::processEvents(); // the page takes its place
        return *sheet.Page(index);
    }

    static QPushButton& Button(CPropertySheet& sheet, const char* name)
    {
        return *sheet.findChild<QPushButton*>(name);
    }
    static void Press(CPropertySheet& sheet, const char* name)
    {
        ASSERT_TRUE(Button(sheet, name).isEnabled()) << name;
        QTest::mouseClick(&Button(sheet, name), Qt::LeftButton);
    }

    static CResultList& List(const QWidget& page) { return *FindControl<CResultList>(&page, 1030); }
    /// The list from its top down, cells parted by " | ", in UTF-8.
    static std::vector<std::string> Rows(const QWidget& page)
    {
        std::vector<std::string> rows;
        const CResultList& list = List(page);
        for (int i = 0; i < list.RowCount(); ++i) {
            QString row = list.Cell(i, 0);
            for (int column = 1; column < list.header()->count(); ++column) {
                row += " | " + list.Cell(i, column);
            }
            rows.push_back(row.toStdString());
        }
        return rows;
    }
    /// The second cell beside a label, "no such row" if there is none.
    static std::string Value(const QWidget& page, const std::string& label)
    {
        const CResultList& list = List(page);
        for (int i = 0; i < list.RowCount(); ++i) {
            if (list.Cell(i, 0).toStdString() == label) {
                return list.Cell(i, 1).toStdString();
            }
        }
        return "no such row";
    }
    static void SelectRow(const QWidget& page, int row)
    {
        CResultList& list = List(page);
        const QModelIndex cell = static_cast<QTreeView&>(list).model()->index(row, 0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(cell).center());
    }

    /// Chooses the row of a drop-down by the keyboard.
    static void ChooseEntry(const QWidget& page, int controlId, int row)
    {
        auto* const list = FindControl<QComboBox>(&page, controlId);
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < row; ++i) {
            QTest::keyClick(list, Qt::Key_Down);
        }
    }

    static std::string TextOf(const QWidget& page, int controlId)
    {
        return Base::Text(page, controlId).toStdString();
    }
    /// The text of the label that belongs to a control.
    static std::string LabelOf(const QWidget& page, int controlId)
    {
        for (const QLabel* const label : page.findChildren<QLabel*>()) {
            if (label->buddy() != nullptr && label->buddy()->property(kControlId).toInt() == controlId) {
                return label->text().toStdString();
            }
        }
        return "no label";
    }
};

class SheetFixture : public SheetActions<AppFixture> {};
class GermanSheetFixture : public SheetActions<GermanAppFixture> {};
