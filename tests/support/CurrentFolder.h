#pragma once

#include <filesystem>

/// Makes a folder the current one for the time of one test.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::filesystem::path& path) : m_before(std::filesystem::current_path())
    {
        std::filesystem::current_path(path);
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder()
    {
        std::error_code error;
        std::filesystem::current_path(m_before, error);
    }

private:
    std::filesystem::path m_before;
};
