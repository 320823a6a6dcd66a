#include "pages/sheet/Help.h"

namespace {

HelpHandler g_handler = nullptr;

} // namespace

void WinHelp(long data, unsigned command)
{
    if (g_handler != nullptr) {
        g_handler(data, command);
    }
}

void SetHelpHandler(HelpHandler handler) { g_handler = handler; }
