#include "painting/PictureFile.h"

#include "painting/PainterSurface.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

using Paint = std::function<void(QPaintDevice& device)>;

/// Each writes what `paint` paints to `file`, with a title where the form has one; false if it cannot.
bool WritePng(QBuffer& file, Pixel size, const QString&, const Paint& paint)
{
    QImage image(size.x, size.y, QImage::Format_RGB32);
    if (image.isNull()) {
        return false;
    }
    image.fill(Qt::white);
    paint(image);
    return image.save(&file, "PNG");
}

bool WriteSvg(QBuffer& file, Pixel size, const QString& title, const Paint& paint)
{
    constexpr int kPixelsPerInch = 96; // those of style sheets, by which viewers reckon
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(QSize(size.x, size.y));
    generator.setViewBox(QRect(0, 0, size.x, size.y));
    generator.setResolution(kPixelsPerInch);
    generator.setTitle(title.toHtmlEscaped()); // which the generator leaves to us
    paint(generator);
    return true;
}

bool WritePdf(QBuffer& file, Pixel size, const QString& title, const Paint& paint)
{
    constexpr int kPointsPerInch = 72;
    QPdfWriter writer(&file);
    writer.setCreator("Orreva");
    writer.setTitle(title);
    writer.setResolution(kPointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(size.x, size.y), QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    paint(writer);
    return true;
}

struct Form {
    std::string_view ending;
    bool (*write)(QBuffer& file, Pixel size, const QString& title, const Paint& paint);
};
constexpr Form kForms[] = {{".png", WritePng}, {".svg", WriteSvg}, {".pdf", WritePdf}};

const Form* FormOf(std::string_view path)
{
    for (const Form& form : kForms) {
        if (path.ends_with(form.ending)) {
            return &form;
        }
    }
    return nullptr;
}

} // namespace

bool IsPictureFile(std::string_view path) { return FormOf(path) != nullptr; }

std::optional<QByteArray> PictureBytes(std::string_view path, Pixel size, const QString& title,
                                       const PaintPicture& paint)
{
    const Form* const form = FormOf(path);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    const auto paintOn = [&](QPaintDevice& device) {
        QPainter painter(&device);
        PainterSurface surface(painter, size.x, size.y);
        paint(surface);
    };
    if (form == nullptr || !form->write(file, size, title, paintOn)) {
        return std::nullopt;
    }
    return file.data();
}
