#pragma once

#include <string_view>

/// Whether a debugger follows this process. False where the system does not tell.
bool IsDebuggerAttached();

/// The same by what the system tells of a process, the text of /proc/PID/status.
bool IsTraced(std::string_view status);
