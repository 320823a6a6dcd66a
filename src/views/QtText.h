#pragma once

#include <QString>

#include <string>
#include <string_view>

class QPlainTextEdit;

/// The one place where the core's text, bytes of code page 1252, crosses to and from the toolkit's.
QString ToQString(std::string_view cp1252);
std::string FromQString(const QString& text);
/// What stands in a field of several lines, character by character, lines parted by LF.
std::string FromTextEdit(const QPlainTextEdit& edit);
