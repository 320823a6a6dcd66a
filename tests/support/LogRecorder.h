#pragma once

#include "lib/text/LogSink.h"

#include <string>
#include <vector>

/// Takes the log's lines for the time of one test.
class LogRecorder {
public:
    LogRecorder()
    {
        Lines().clear();
        m_before = SetLogSink([](const char* psz) { Lines().emplace_back(psz); });
    }
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;
    ~LogRecorder() { SetLogSink(m_before); }

    static std::vector<std::string>& Lines()
    {
        static std::vector<std::string> lines;
        return lines;
    }

private:
    LogSink m_before = nullptr;
};
