#include "views/ProgramIcon.h"

#include <QGuiApplication>
#include <QResource>

#include <algorithm>
#include <cmath>

QIcon ProgramIcon(const QString& name)
{
    constexpr int kLargestScale = 3;
    constexpr qsizetype kBytes = 4; // a pixel
    const int scale = std::clamp(static_cast<int>(std::ceil(qGuiApp->devicePixelRatio())), 1, kLargestScale);
    const QByteArray pixels =
        QResource(QString(":/icons/%1-%2.argb").arg(name).arg(scale)).uncompressedData();
    const auto side = static_cast<int>(std::sqrt(static_cast<double>(pixels.size() / kBytes)));
    if (side == 0) {
        return {};
    }
    const QImage picture(reinterpret_cast<const uchar*>(pixels.constData()), side, side,
                         QImage::Format_ARGB32_Premultiplied);
    QPixmap pixmap = QPixmap::fromImage(picture.copy());
    pixmap.setDevicePixelRatio(scale);
    return QIcon(pixmap);
}
