#include "document/TelescopeFile.h"

#include "document/XmlScanner.h"
#include "lib/text/Numbers.h"
#include "model/record/RecordFields.h"

#include "Version.h"

#include <cmath>
#include <vector>

namespace {

std::string Head()
{
    return std::string("<?xml version=\"1.0\" encoding=\"ISO-8859-1\" ?>\n<!--  Created by Orreva ") +
           kFileVersion + "\n-->\n";
}

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
    explicit ElementWriter(std::string& bytes) : m_out(bytes) { Open("telescope"); }

    void Write(std::string_view key, const std::string& value)
    {
        std::vector<std::string_view> path{"telescope"};
        for (std::size_t slash = key.find('/'); slash != std::string_view::npos; slash = key.find('/')) {
            path.push_back(key.substr(0, slash));
            key.remove_prefix(slash + 1);
        }
        std::size_t common = 0;
        while (common < m_open.size() && common < path.size() && m_open[common] == path[common]) {
            ++common;
        }
        CloseTo(common);
        for (std::size_t i = common; i < path.size(); ++i) {
            Open(path[i]);
        }
        Indent();
        Tag("<", key);
        m_out += value;
        Tag("</", key);
        m_out += '\n';
    }

    void CloseTo(std::size_t depth)
    {
        while (m_open.size() > depth) {
            const std::string_view name = m_open.back();
            m_open.pop_back();
            Indent();
            Tag("</", name);
            m_out += '\n';
        }
    }

private:
    void Open(std::string_view name)
    {
        Indent();
        Tag("<", name);
        m_out += '\n';
        m_open.push_back(name);
    }
    void Indent() { m_out.append(2 * m_open.size(), ' '); }
    void Tag(const char* bracket, std::string_view name)
    {
        m_out += bracket;
        m_out += name;
        m_out += '>';
    }

    std::string& m_out;
    std::vector<std::string_view> m_open;
};

} // namespace

bool IsDesignText(std::string_view text) { return text.find("<telescope") != std::string_view::npos; }

std::string WriteTelescope(const COrrevaData& data)
{
    std::string bytes = Head();
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
