#include "document/OrrevaDoc.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/LogSink.h"
#include "model/record/RecordFields.h"
#include "support/DirectScanner.h"
#include "support/SilentHost.h"

#include <cstdio>
#include <cstdlib>

// Any bytes as a design file: every value as the plain walk finds it, then through the record and out again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const XmlScanner scanner = XmlScanner::FromText(text);
    const DirectScanner judge(text);
    for (const RecordField& field : RecordFields()) {
        const std::string key = std::string("telescope/") + field.key;
        char value[1024];
        if (judge.GetValue(key, sizeof value - 1) != scanner.GetValue(key.c_str(), value, sizeof value)) {
            std::fprintf(stderr, "The scanner and the plain walk differ at %s\n", key.c_str());
            std::abort();
        }
    }

    SetLogSink(nullptr);
    SilentHost host;
    COrrevaDoc document(host);
    document.active_record->Reset();
    ReadTelescope(scanner, *document.active_record);
    document.Recalculate();
    WriteTelescope(*document.active_record);
    return 0;
}
