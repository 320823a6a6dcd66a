#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include <stdlib.h>

/// A folder of its own for one test, gone with all it holds at the end.
class TempFolder {
public:
    TempFolder()
    {
        std::string path = (std::filesystem::temp_directory_path() / "orreva-test-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        m_path = path;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    const std::filesystem::path& Path() const { return m_path; }
    std::string Path(std::string_view name) const { return (m_path / name).string(); }

    /// Writes `bytes` to the file `name` and gives its path.
    std::string Write(std::string_view name, std::string_view bytes) const
    {
        std::string path = Path(name);
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    std::string Read(std::string_view name) const
    {
        std::ifstream file(Path(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    /// How many entries stand in the folder.
    long Count() const
    {
        return std::distance(std::filesystem::directory_iterator(m_path),
                             std::filesystem::directory_iterator());
    }

private:
    std::filesystem::path m_path;
};
