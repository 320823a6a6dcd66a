#pragma once

#include <QString>

#include <string>
#include <string_view>

class QTextDocument;

/// The one place where the core's text, bytes of code page 1252, crosses to and from the toolkit's.
QString ToQString(std::string_view cp1252);
std::string FromQString(const QString& text);
/// What stands in the document of a field of several lines, character by character, lines parted by LF.
std::string FromTextDocument(const QTextDocument& document);
