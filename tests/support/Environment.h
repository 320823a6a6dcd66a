#pragma once

#include <optional>
#include <string>

#include <stdlib.h>
#include <time.h>

/// Sets a variable of the environment (null: removes it) for the time of one test.
class Environment {
public:
    Environment(const char* name, const char* value) : m_name(name)
    {
        if (const char* const before = getenv(name)) {
            m_before = before;
        }
        Set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { Set(m_before ? m_before->c_str() : nullptr); }

private:
    void Set(const char* value)
    {
        if (value != nullptr) {
            setenv(m_name.c_str(), value, 1);
        } else {
            unsetenv(m_name.c_str());
        }
        tzset(); // the variable may be the zone of the time, which is read once otherwise
    }

    std::string m_name;
    std::optional<std::string> m_before;
};
