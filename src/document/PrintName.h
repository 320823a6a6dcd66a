#pragma once

#include <string>
#include <string_view>

class COrrevaData;

/// What a design is called on paper: its title, else the name of its file without the ending. Bytes of code
/// page 1252.
std::string DesignName(const COrrevaData& record);

/// The name of a page of a design, "Newton 200/1200 - cross-section".
std::string PrintName(const COrrevaData& record, std::string_view page);

/// A file's name for it with an ending like ".pdf": without folders, and without what one of the usual file
/// systems takes for something else.
std::string ProposedFile(std::string_view name, std::string_view ending);
