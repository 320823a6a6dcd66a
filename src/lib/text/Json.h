#pragma once

#include <string>
#include <string_view>

/// One JSON document, in UTF-8 with two blanks of indent, appended to a text piece by piece. Values follow
/// one another in the order of the calls; commas and line breaks come by themselves. Within an object each
/// value stands behind its Key.
class JsonWriter {
public:
    /// The document's bytes go to the end of `out`, which must outlive the writer.
    explicit JsonWriter(std::string& out) : m_out(out) {}

    void BeginObject() { Begin('{'); }
    void EndObject() { End('}'); }
    void BeginArray() { Begin('['); }
    void EndArray() { End(']'); }
    void Key(std::string_view utf8);
    void Text(std::string_view utf8);
    /// A number that is not finite is null.
    void Number(double value);

private:
    void Begin(char bracket);
    void End(char bracket);
    /// What stands between the value before and the next one.
    void Separate();
    void NewLine();

    std::string& m_out;
    std::size_t m_depth = 0;
    bool m_first = true; ///< nothing stands in the innermost brackets yet
    bool m_behindKey = false;
};

/// Appends a text as a JSON string. A byte that is no UTF-8 becomes "?".
void AppendJsonText(std::string& out, std::string_view utf8);

/// Appends the number with the fewest digits that read back as the same double; null if it is not finite.
void AppendJsonNumber(std::string& out, double value);
