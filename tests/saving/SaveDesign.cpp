// Saves a design by the rules of the window program, without a window: SaveDesign PATH TITLE. Prints what the
// status bar would say; the exit status is 1 if the save failed.

#include "document/DesignFiles.h"
#include "document/RescueCopies.h"
#include "lib/text/Language.h"

#include <cstdio>

int main(int, char** arguments)
{
    RescueCopies copies;
    DesignFiles files;
    files.KeepCopies(&copies);
    COrrevaData record(nullptr, &files);
    record.SetTitle(arguments[2]);
    const int status = record.SaveAs(arguments[1]);
    std::printf("%s\n", files.LastText(kEnglish).c_str());
    return status;
}
