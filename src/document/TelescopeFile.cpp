#include "document/TelescopeFile.h"

#include "document/XmlScanner.h"
#include "lib/Assertion.h"
#include "lib/CodePage.h"
#include "lib/FileBytes.h"
#include "lib/FileQueries.h"
#include "lib/Numbers.h"
#include "model/RecordFields.h"

#include <cmath>
#include <cstring>
#include <vector>

namespace {

constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n"
                                   "<!--  Created by Orreva 0.3.1\n"
                                   "-->\n";
constexpr std::size_t kValueSize = 1024;

/// As "%f"; what is not finite has texts of its own, which belong to the format whatever the runtime prints.
std::string NumberText(double value)
{
    if (std::isnan(value)) {
        return "-1.#IND00";
    }
    if (std::isinf(value)) {
        return value > 0 ? "1.#INF00" : "-1.#INF00";
    }
    LibString text;
    text.Format("%f", value);
    return text.GetText();
}

struct ValueText {
    const COrrevaData& data;
    std::string operator()(const TextField& field) const { return (data.*field.place).GetText(); }
    std::string operator()(const RealField& field) const { return NumberText(data.*field.place); }
    std::string operator()(const TypeField& field) const { return std::to_string(data.*field.place); }
    std::string operator()(const UnusedField&) const { return NumberText(0.0); }
};

struct StoreText {
    COrrevaData& data;
    const char* text;
    void operator()(const TextField& field) const { data.*field.place = text; }
    void operator()(const RealField& field) const { data.*field.place = TextToDouble(text); }
    void operator()(const TypeField& field) const { data.*field.place = IntegerValue(text); }
    void operator()(const UnusedField&) const {}
};

/// Opens and closes elements so that the file's nesting follows the keys.
class ElementWriter {
public:
    explicit ElementWriter(std::string& bytes) : out(bytes) { Open("telescope"); }

    void Write(std::string_view key, const std::string& value)
    {
        std::vector<std::string_view> path{"telescope"};
        for (std::size_t slash = key.find('/'); slash != std::string_view::npos; slash = key.find('/')) {
            path.push_back(key.substr(0, slash));
            key.remove_prefix(slash + 1);
        }
        std::size_t common = 0;
        while (common < open.size() && common < path.size() && open[common] == path[common]) {
            ++common;
        }
        CloseTo(common);
        for (std::size_t i = common; i < path.size(); ++i) {
            Open(path[i]);
        }
        Indent();
        Tag("<", key);
        out += value;
        Tag("</", key);
        out += '\n';
    }

    void CloseTo(std::size_t depth)
    {
        while (open.size() > depth) {
            const std::string_view name = open.back();
            open.pop_back();
            Indent();
            Tag("</", name);
            out += '\n';
        }
    }

private:
    void Open(std::string_view name)
    {
        Indent();
        Tag("<", name);
        out += '\n';
        open.push_back(name);
    }
    void Indent() { out.append(2 * open.size(), ' '); }
    void Tag(const char* bracket, std::string_view name)
    {
        out += bracket;
        out += name;
        out += '>';
    }

    std::string& out;
    std::vector<std::string_view> open;
};

/// A wait cursor for as long as it lives.
class Wait {
public:
    explicit Wait(RecordHost* recordHost) : host(recordHost)
    {
        if (host != nullptr) {
            host->BeginWait();
        }
    }
    ~Wait()
    {
        if (host != nullptr) {
            host->EndWait();
        }
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

private:
    RecordHost* host;
};

} // namespace

std::string WriteTelescope(const COrrevaData& data)
{
    std::string bytes(kHead);
    ElementWriter writer(bytes);
    for (const RecordField& field : RecordFields()) {
        writer.Write(field.key, std::visit(ValueText{data}, field.field));
    }
    writer.CloseTo(0);
    return bytes;
}

void ReadTelescope(const XmlScanner& scanner, COrrevaData& data)
{
    for (const RecordField& field : RecordFields()) {
        char value[kValueSize];
        const char* const text =
            scanner.GetValue((std::string("telescope/") + field.key).c_str(), value, sizeof value);
        std::visit(StoreText{data, text != nullptr ? text : ""}, field.field);
    }
}

int COrrevaData::Save()
{
    if (!HasFile()) {
        return SaveAs(nullptr);
    }
    if (!ReplaceFile(file_path, WriteTelescope(*this))) {
        return 1;
    }
    modified = 0;
    return 0;
}

int COrrevaData::SaveAs(const char* pfn)
{
    ORREVA_ASSERT(pfn != NULL, "OrrevaDoc");
    if (pfn == nullptr) {
        return 1;
    }
    ORREVA_ASSERT(strlen(pfn) > 0, "OrrevaDoc");
    if (*pfn == 0) {
        return 1;
    }
    file_path = pfn;
    SetTitleOfDocument();
    return Save();
}

int COrrevaData::Load(const char* path)
{
    const Wait wait(host);
    if (path == nullptr || FileExists(path) == 0) {
        LibString message;
        message.Format("Die Datei %s existiert nicht!", Cp1252FromUtf8(file_path.GetText()).c_str());
        if (host != nullptr) {
            host->ShowMessage(message);
        }
        Clear();
        return 1;
    }
    file_path = path;
    SetTitleOfDocument();
    ReadTelescope(XmlScanner(file_path), *this); // `path` may have been the text that is replaced now
    modified = 0;
    return 0;
}
