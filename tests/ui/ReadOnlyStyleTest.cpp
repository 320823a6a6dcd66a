#include "app/ReadOnlyStyle.h"

#include "ui/WidgetPixels.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace {

QColor Background(bool readOnly, QStyle& style)
{
    QLineEdit edit;
    edit.setReadOnly(readOnly);
    edit.setStyle(&style);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Window, Qt::cyan);
    edit.setPalette(palette);
    edit.resize(100, 30);
    return Shown(edit).pixelColor(80, 15);
}

TEST(ReadOnlyStyle, AFieldThatOnlyShowsHasTheColourOfItsDialog)
{
    CReadOnlyStyle style;
    EXPECT_EQ(QColor(Qt::cyan), Background(true, style));
    EXPECT_EQ(QColor(Qt::yellow), Background(false, style));
}

} // namespace
