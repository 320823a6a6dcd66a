#include "app/AppFixture.h"

#include "document/Commands.h"
#include "pages/sheet/PageArea.h"
#include "pages/sheet/PropertySheet.h"
#include "pages/sheet/ResetButton.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace {

/// What a screen of 800 by 600 has for a dialog at one and a half times the usual size, without the frame
/// that desktops put around it.
constexpr QSize kRoom(523, 360);

constexpr int kDialogs[] = {
    command_id::kNewQuick,           command_id::kArtificialStar,   command_id::kFieldSimulation,
    command_id::kRaytracingSettings, command_id::kCalculator,       command_id::kInchCalculator,
    command_id::kPolygonCalculator,  command_id::kSectorCalculator, command_id::kAbout,
};
constexpr int kSheets[] = {command_id::kProperties, command_id::kTubeProperties, command_id::kFoucaultTest,
                           command_id::kMatchingRonchi};

class SmallScreens : public AppFixture {
protected:
    explicit SmallScreens(int language = kEnglish) : AppFixture(language) { MakeTelescope(); }

    void ExpectDialogsHaveRoom();
    void ExpectSheetsStayOnTheScreen();
    void ExpectResetsNameTheirFields();
};
class SmallScreensGerman : public SmallScreens {
protected:
    SmallScreensGerman() : SmallScreens(kGerman) {}
};

void SmallScreens::ExpectDialogsHaveRoom()
{
    for (const int id : kDialogs) {
        if (id == command_id::kNewQuick) {
            app->Document().main_record.SetModified(0);
        }
        InDialogOf<QDialog>(id, [id](QDialog& dialog) {
            QCoreApplication::processEvents();
            const QSize least = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
            if (dialog.findChild<CPageArea*>() == nullptr) {
                EXPECT_LE(least.width(), kRoom.width()) << id;
                EXPECT_LE(least.height(), kRoom.height()) << id;
            } else {
                EXPECT_LT(kRoom.height(), least.height()) << "scrolls for no reason: " << id;
            }
        });
        if (id == command_id::kNewQuick) {
            MakeTelescope();
        }
    }
}

/// Each page is visited; the sheet stays on the screen, and its buttons in the sheet.
void SmallScreens::ExpectSheetsStayOnTheScreen()
{
    for (const int id : kSheets) {
        InNextDialog<CPropertySheet>([id](CPropertySheet& sheet) {
            const QSize screen = sheet.screen()->availableSize();
            for (int page = 0; page < sheet.PageCount(); ++page) {
                sheet.SetActivePage(page);
                QCoreApplication::processEvents();
                const QSize least = sheet.minimumSizeHint();
                EXPECT_LE(least.width(), screen.width()) << id << " page " << page;
                EXPECT_LE(least.height(), screen.height()) << id << " page " << page;
                EXPECT_LE(sheet.width(), screen.width()) << id << " page " << page;
                EXPECT_LE(sheet.height(), screen.height()) << id << " page " << page;
                for (const char* name : {"ok", "cancel", "apply"}) {
                    const auto* const button = sheet.findChild<QPushButton*>(name);
                    EXPECT_TRUE(sheet.rect().contains(QRect(button->mapTo(&sheet, QPoint()), button->size())))
                        << id << " page " << page << ' ' << name;
                }
            }
            sheet.reject();
        });
        Choose(id);
    }
}

void SmallScreens::ExpectResetsNameTheirFields()
{
    int resets = 0;
    for (const int id : kSheets) {
        InNextDialog<CPropertySheet>([id, &resets](CPropertySheet& sheet) {
            for (int page = 0; page < sheet.PageCount(); ++page) {
                sheet.SetActivePage(page);
                for (const CResetButton* const reset : sheet.Page(page)->findChildren<CResetButton*>()) {
                    ++resets;
                    EXPECT_TRUE(reset->accessibleName().endsWith(": " + reset->toolTip()))
                        << id << " page " << page << ' ' << reset->objectName().toStdString() << ": "
                        << reset->accessibleName().toStdString();
                }
            }
            sheet.reject();
        });
        Choose(id);
    }
    EXPECT_EQ(29, resets); // with those of a truss there would be four more
}

TEST_F(SmallScreens, HaveRoomForEveryDialog) { ExpectDialogsHaveRoom(); }
TEST_F(SmallScreensGerman, HaveRoomForEveryDialog) { ExpectDialogsHaveRoom(); }
TEST_F(SmallScreens, HaveTheButtonsOfEverySheet) { ExpectSheetsStayOnTheScreen(); }
TEST_F(SmallScreensGerman, HaveTheButtonsOfEverySheet) { ExpectSheetsStayOnTheScreen(); }
TEST_F(SmallScreens, ResetButtonsNameTheirFields) { ExpectResetsNameTheirFields(); }
TEST_F(SmallScreensGerman, ResetButtonsNameTheirFields) { ExpectResetsNameTheirFields(); }

} // namespace
