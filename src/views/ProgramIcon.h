#pragma once

#include <QIcon>
#include <QPixmap>

/// One of the program's own icons, by the name of its drawing, for the largest scale of the screens; no icon
/// for a name that is none. It is made of the pixels that the build drew: whatever reads a picture from a
/// file opens every plugin of pictures first, which costs a good part of the start.
QIcon ProgramIcon(const QString& name);

/// The same for one scale, a whole number from 1 to 3.
QPixmap ProgramPicture(const QString& name, int scale);
