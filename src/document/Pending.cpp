#include "model/OrrevaData.h"
int COrrevaData::Save() { return 1; }
