#include "document/FoucaultReadings.h"

#include "lib/files/FileBytes.h"
#include "lib/files/FileQueries.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <filesystem>

namespace {

constexpr std::size_t kMostBookBytes = std::size_t{64} << 20;

constexpr Bilingual kMissing{"There are no Foucault readings beside this design.",
                             "Neben diesem Entwurf stehen keine Foucault-Messwerte."};
constexpr Bilingual kDamagedReadings{
    "The file of Foucault readings %s is damaged and was not read.",
    "Die Datei der Foucault-Messwerte %s ist beschädigt und wurde nicht gelesen."_cp1252};
constexpr Bilingual kNotSaved{"The Foucault readings could not be written to %s.",
                              "Die Foucault-Messwerte konnten nicht nach %s geschrieben werden."};

std::string AboutFile(const Bilingual& text, const std::string& path, int language)
{
    return FormatText(text.In(language), Cp1252FromUtf8(path).c_str());
}

} // namespace

bool FoucaultReadings::Change(ReadingBook book)
{
    if (book == m_book) {
        return false;
    }
    m_book = std::move(book);
    m_modified = true;
    return true;
}

void FoucaultReadings::Clear()
{
    m_book = {};
    m_modified = false;
    m_damaged.clear();
    m_own.clear();
}

std::string FoucaultReadings::Open(const std::string& designPath, int language)
{
    Clear();
    const std::string path = ReadingsPath(designPath);
    if (FileExists(path.c_str()) == 0) {
        return kMissing.In(language);
    }
    const auto text = ReadFileBytes(path.c_str(), kMostBookBytes + 1);
    const auto book = text && text->size() <= kMostBookBytes ? ParseBook(*text) : std::nullopt;
    if (!book) {
        m_damaged = path;
        return AboutFile(kDamagedReadings, path, language);
    }
    m_book = *book;
    m_own = path;
    return {};
}

std::string FoucaultReadings::Save(const std::string& designPath, int language)
{
    const std::string path = ReadingsPath(designPath);
    const bool stands = FileExists(path.c_str()) != 0;
    if (m_book.series.empty() && (!stands || !m_modified)) {
        m_modified = false;
        return {};
    }
    if (path == m_damaged) {
        std::error_code error;
        std::filesystem::rename(path, path + "~", error);
        if (error) {
            return AboutFile(kNotSaved, path, language);
        }
        m_damaged.clear();
    } else if (stands && path != m_own && CopyFileBeside(path, path + "~") != 0) {
        return AboutFile(kNotSaved, path, language);
    }
    if (!ReplaceFile(path.c_str(), BookText(m_book))) {
        return AboutFile(kNotSaved, path, language);
    }
    m_own = path;
    m_modified = false;
    return {};
}
