#pragma once

#include "drawing/Surface.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <string_view>

/// Paints on a surface of the picture's size.
using PaintPicture = std::function<void(Surface& surface)>;

/// Whether `path` ends in a form that can be written: .png, .svg or .pdf.
bool IsPictureFile(std::string_view path);

/// The bytes of a picture file in the form of the ending of `path`, with a title where the form has one; a
/// pixel is a point on paper. Nothing for another ending, and for a picture too large to be held.
std::optional<QByteArray> PictureBytes(std::string_view path, Pixel size, const QString& title,
                                       const PaintPicture& paint);
