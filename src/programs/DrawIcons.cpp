// A tool of the build: draws each icon as plain pixels, so that the workbench starts without rendering vector
// files and without the toolkit's readers of pictures. DrawIcons FOLDER ICON.svg... writes ICON-1.argb,
// ICON-2.argb and ICON-3.argb: the width, then the pixels row by row.

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

/// The icons' own sides are 16 or 64 pixels; larger ones serve desktops of up to three times the scale.
constexpr int kScales[] = {1, 2, 3};

bool Draw(const QString& source, const QString& folder)
{
    QSvgRenderer icon(source);
    for (const int scale : kScales) {
        QImage picture(icon.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        icon.render(&painter);
        painter.end();
        QFile file(QString("%1/%2-%3.argb").arg(folder, QFileInfo(source).baseName()).arg(scale));
        const auto* const pixels = reinterpret_cast<const char*>(picture.constBits());
        const qint32 width = picture.width();
        if (!icon.isValid() || !file.open(QFile::WriteOnly) ||
            file.write(reinterpret_cast<const char*>(&width), sizeof width) != sizeof width ||
            file.write(pixels, picture.sizeInBytes()) != picture.sizeInBytes()) {
            std::fprintf(stderr, "%s cannot be drawn\n", qPrintable(source));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    for (int i = 2; i < argc; ++i) {
        if (!Draw(argv[i], argv[1])) {
            return 1;
        }
    }
    return 0;
}
