#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// A folder of its own for one test, which is also the current one while it lives.
class TemporaryFolder {
public:
    TemporaryFolder() : before(std::filesystem::current_path())
    {
        std::string name = (std::filesystem::temp_directory_path() / "orreva-test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path = name;
        std::filesystem::current_path(path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(before, ignored);
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const { return (path / name).string(); }

    const std::filesystem::path& Path() const { return path; }

    /// Writes a file and gives its path.
    std::string Write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(path / name, std::ios::binary) << bytes;
        return *this / name;
    }
    std::string Read(const std::string& name) const
    {
        std::ifstream file(path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// How many entries stand in the folder.
    long Count() const
    {
        return std::distance(std::filesystem::directory_iterator(path),
                             std::filesystem::directory_iterator());
    }

private:
    std::filesystem::path before;
    std::filesystem::path path;
};
