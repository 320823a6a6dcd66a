#pragma once

class COrrevaDoc;

/// Lays the design out as a report on the paper of the user's country, asks for a file and writes it.
void SaveReport(COrrevaDoc& document);
