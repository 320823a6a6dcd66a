#pragma once

#include <QString>

#include <optional>

class QWidget;

/// Asks where a picture goes; nothing for Cancel. A name that ends in no form of a picture gets the ending of
/// the form that was chosen.
std::optional<QString> AskPicturePath(QWidget* parent, const QString& title, const QString& proposal);

/// The same for a table as CSV.
std::optional<QString> AskTablePath(QWidget* parent, const QString& title, const QString& proposal);
