#pragma once

#include "document/DocumentHost.h"

class COrrevaDoc;
class QWidget;

/// Builds and runs the sheet or dialog of a command on the document; false if it ended with Cancel. Built at
/// this moment, so that it comes in the language of this moment.
bool RunModalDialog(Modal modal, COrrevaDoc& document, QWidget* parent);
