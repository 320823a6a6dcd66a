#pragma once

#include "model/analysis/DesignCheck.h"

#include <QIcon>

#include <optional>

/// The mark of a severity, by colour and by shape: a red circle with a cross, an amber triangle with a
/// stroke, a blue square with a stroke. Nothing is a green circle with a tick. Each brings its own ground, so
/// that it can be told on a light and on a dark window.
QIcon SeverityMark(std::optional<Severity> severity);
