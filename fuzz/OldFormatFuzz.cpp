#include "document/FtaExport.h"
#include "document/OldArchive.h"
#include "document/OrrevaDoc.h"
#include "document/OsloExport.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/LogSink.h"
#include "support/SilentHost.h"

// Any bytes as an old file; what came in must go out by every way that writes a telescope. The exports, which
// take most of the time, are for those whose last byte says so: it stands behind all fields or is part of
// them.

namespace {

bool IsExported(const std::uint8_t* data, std::size_t size) { return size > 0 && data[size - 1] % 16 == 0; }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    SetLogSink(nullptr);
    SilentHost host;
    COrrevaDoc document(host);
    OldArchive archive({reinterpret_cast<const char*>(data), size});
    document.Serialize(archive);

    COrrevaData again;
    ReadTelescope(XmlScanner::FromText(WriteTelescope(*document.active_record)), again);
    if (!IsExported(data, size)) {
        return 0;
    }
    document.Recalculate();
    FtaExport(*document.active_record);
    OsloExport(*document.active_record);
    return 0;
}
