#include "views/ProgramIcon.h"

#include "app/AppFixture.h"

#include <QDir>
#include <QImage>

namespace {

/// Every drawing of an icon has a picture, and it shows something that is not one colour throughout.
TEST(ProgramIcon, EveryDrawingHasItsPicture)
{
    const QStringList drawings = QDir(QString(ORREVA_SOURCE_DIR) + "/res/icons").entryList({"*.svg"});
    EXPECT_GE(drawings.size(), 15);
    for (const QString& drawing : drawings) {
        const QString name = QFileInfo(drawing).baseName();
        const int side = name == "orreva" ? 64 : 16;
        const QImage picture = ProgramIcon(name).pixmap(side).toImage();
        EXPECT_EQ(QSize(side, side), picture.size()) << name.toStdString();
        bool varies = false;
        for (int i = 0; i < side * side; ++i) {
            varies = varies || picture.pixel(i % side, i / side) != picture.pixel(0, 0);
        }
        EXPECT_TRUE(varies) << name.toStdString();
    }
}

TEST(ProgramIcon, AnUnknownNameIsNoIcon) { EXPECT_TRUE(ProgramIcon("no-such-icon").isNull()); }

} // namespace
