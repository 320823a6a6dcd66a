#include "views/ProgramIcon.h"

#include "app/AppFixture.h"

#include <QDir>
#include <QImage>
#include <QSvgRenderer>

namespace {

/// Every drawing of an icon has a picture, and it shows something that is not one colour throughout.
TEST(ProgramIcon, EveryDrawingHasItsPicture)
{
    const QStringList drawings = QDir(QString(ORREVA_SOURCE_DIR) + "/res/icons").entryList({"*.svg"});
    EXPECT_GE(drawings.size(), 15);
    for (const QString& drawing : drawings) {
        const QString name = QFileInfo(drawing).baseName();
        const QImage picture = ProgramIcon(name).pixmap(64).toImage();
        EXPECT_EQ(QSvgRenderer(QString(ORREVA_SOURCE_DIR) + "/res/icons/" + drawing).defaultSize(),
                  picture.size())
            << name.toStdString();
        bool varies = false;
        for (int i = 0; i < picture.width() * picture.height(); ++i) {
            varies = varies || picture.pixel(i % picture.width(), i / picture.width()) != picture.pixel(0, 0);
        }
        EXPECT_TRUE(varies) << name.toStdString();
    }
}

/// The picture of twice the pixels takes the same room.
TEST(ProgramIcon, ALargerScaleIsAsLargeOnTheScreen)
{
    const QSizeF once = ProgramPicture("info", 1).deviceIndependentSize();
    for (const int scale : {2, 3}) {
        const QPixmap larger = ProgramPicture("info", scale);
        EXPECT_EQ(once * scale, QSizeF(larger.size()));
        EXPECT_EQ(once, larger.deviceIndependentSize());
    }
}

TEST(ProgramIcon, AnUnknownNameIsNoIcon) { EXPECT_TRUE(ProgramIcon("no-such-icon").isNull()); }

} // namespace
