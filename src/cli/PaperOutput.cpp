#include "cli/PaperOutput.h"

#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/Toolkit.h"
#include "painting/PaperFile.h"

bool IsPaperFile(const std::string& path) { return path.ends_with(".pdf"); }

const PaperSize& PaperOf(const CommandLine& words)
{
    const auto name = words.Value("--paper");
    if (!name) {
        return kPapers[0];
    }
    const PaperSize* const paper = FindPaper(*name);
    if (paper == nullptr) {
        UsageError("--paper does not take", *name);
    }
    return *paper;
}

int WritePaper(const std::string& path, const PaperDocument& document)
{
    const auto toolkit = OpenToolkit();
    const QByteArray file = PdfBytes(document);
    return WriteOutput(path, {file.constData(), static_cast<std::size_t>(file.size())});
}
