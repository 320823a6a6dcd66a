#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The one place where the core's text, bytes of code page 1252, crosses to and from the toolkit's.
QString ToQString(std::string_view cp1252);
std::string FromQString(const QString& text);
