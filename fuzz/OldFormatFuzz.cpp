#include "document/FtaExport.h"
#include "document/OldArchive.h"
#include "document/OrrevaDoc.h"
#include "document/OsloExport.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/LogSink.h"
#include "support/SilentHost.h"

// Any bytes as an old file; what came in must go out by every way that writes a telescope.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    SetLogSink(nullptr);
    SilentHost host;
    COrrevaDoc document(host);
    OldArchive archive({reinterpret_cast<const char*>(data), size});
    document.Serialize(archive);

    COrrevaData again;
    ReadTelescope(XmlScanner::FromText(WriteTelescope(*document.active_record)), again);
    document.Recalculate();
    FtaExport(*document.active_record);
    OsloExport(*document.active_record);
    return 0;
}
