#pragma once

#include <optional>
#include <string>

class COrrevaData;

/// The number of zones for a Foucault test of a mirror of diameter D and focal length f, both mm: grows with
/// the aberration of the paraboloid. 0 where the rule gives a negative number or none at all.
int FtaZoneCount(double D, double f);

/// The mirror file of a telescope for Foucault Test Analysis 2.0B, with CR LF, its zones of equal areas.
/// Nothing for a nonsense mirror of more than 100000 zones. Nothing is recalculated.
std::optional<std::string> FtaExport(COrrevaData& data);
