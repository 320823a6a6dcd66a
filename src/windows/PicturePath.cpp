#include "windows/PicturePath.h"

#include "painting/PictureFile.h"

#include <QFile>
#include <QFileDialog>

std::optional<QString> AskPicturePath(QWidget* parent, const QString& title, const QString& proposal)
{
    QString form;
    const QString path =
        QFileDialog::getSaveFileName(parent, title, proposal, "PNG (*.png);;SVG (*.svg);;PDF (*.pdf)", &form);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    if (IsPictureFile(QFile::encodeName(path).toStdString())) {
        return path;
    }
    return path + (form.startsWith("SVG") ? ".svg" : form.startsWith("PDF") ? ".pdf" : ".png");
}

std::optional<QString> AskTablePath(QWidget* parent, const QString& title, const QString& proposal)
{
    const QString path = QFileDialog::getSaveFileName(parent, title, proposal, "CSV (*.csv)");
    if (path.isEmpty()) {
        return std::nullopt;
    }
    return path.endsWith(".csv", Qt::CaseInsensitive) ? path : path + ".csv";
}
