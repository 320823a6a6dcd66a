#pragma once

#include <functional>
#include <optional>
#include <string>

class QPrinter;

/// What is printed on a printer whose pages go into a file, made where nothing stands yet, so that the file
/// is replaced whole or not at all. Nothing if not all of it arrived there.
std::optional<std::string> PrintedBytes(QPrinter& printer, const std::function<void()>& print);
