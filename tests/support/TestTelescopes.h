#pragma once

#include "document/OldArchive.h"
#include "document/OldFormat.h"
#include "document/OrrevaDoc.h"
#include "lib/text/CodePage.h"
#include "support/GoldenFile.h"

/// The telescopes of the golden files of exports. Each is made anew in a document, unmodified.
struct TestTelescope {
    const char* name;
    void (*Make)(COrrevaDoc& document);
};

namespace test_telescopes {

inline void Start(COrrevaDoc& document, const char* title, double diameter, double focal_length)
{
    document.main_record.SetModified(0);
    document.main_record.Reset();
    document.main_record.SetTitle(title);
    document.main_record.SetMirrorDiameter(diameter);
    document.main_record.SetFocalLength(focal_length);
}

inline void New(COrrevaDoc& document) { Start(document, "Untitleld Telescope", 250.0, 1500.0); }

inline void SixInch(COrrevaDoc& document) { Start(document, "Sechszöller \"f/8\""_cp1252, 150.0, 1200.0); }

/// A truss with nearly every number of its own, from the old format.
inline void Truss(COrrevaDoc& document)
{
    document.main_record.SetModified(0);
    const std::string bytes = GoldenFile("exchange/truss.orreva");
    OldArchive archive(bytes);
    EXPECT_TRUE(ImportOld(archive, document.main_record, document.Host()));
}

} // namespace test_telescopes

inline constexpr TestTelescope kTestTelescopes[] = {
    {"new", test_telescopes::New},
    {"six-inch", test_telescopes::SixInch},
    {"truss", test_telescopes::Truss},
};
