#include "views/ProgramIcon.h"

#include <QGuiApplication>
#include <QResource>

#include <algorithm>
#include <cmath>
#include <cstring>

QPixmap ProgramPicture(const QString& name, int scale)
{
    constexpr qsizetype kBytes = 4; // a pixel
    const QByteArray bytes = QResource(QString(":/icons/%1-%2.argb").arg(name).arg(scale)).uncompressedData();
    qint32 width = 0;
    if (bytes.size() <= qsizetype{sizeof width}) {
        return {};
    }
    std::memcpy(&width, bytes.constData(), sizeof width);
    const auto* const pixels = reinterpret_cast<const uchar*>(bytes.constData()) + sizeof width;
    const auto height = static_cast<int>((bytes.size() - qsizetype{sizeof width}) / (kBytes * width));
    const QImage picture(pixels, width, height, QImage::Format_ARGB32_Premultiplied);
    QPixmap pixmap = QPixmap::fromImage(picture.copy());
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

QIcon ProgramIcon(const QString& name)
{
    constexpr int kLargestScale = 3;
    const int scale = std::clamp(static_cast<int>(std::ceil(qGuiApp->devicePixelRatio())), 1, kLargestScale);
    return QIcon(ProgramPicture(name, scale));
}
