#include "lib/platform/LibSupWin32.h"

int FindCode(const TextCode* table, const char* psz)
{
    for (const TextCode* row = table; row != nullptr && psz != nullptr && row->text != nullptr; ++row) {
        if (std::strcmp(row->text, psz) == 0) {
            return row->code;
        }
    }
    return 0;
}

const char* FindName(const TextCode* table, int code)
{
    for (const TextCode* row = table; row != nullptr && row->text != nullptr; ++row) {
        if (row->code == code) {
            return row->text;
        }
    }
    return nullptr;
}
