#pragma once

#include <ctime>

/// The system's local time now, broken down.
std::tm LocalTime();
