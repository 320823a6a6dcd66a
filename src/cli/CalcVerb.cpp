#include "cli/CalcVerb.h"

#include "cli/Output.h"
#include "lib/text/CodePage.h"
#include "model/tools/Calculator.h"

#include <cstdio>
#include <optional>

namespace {

/// One answer a line; remembers whether all of them were numbers.
class Answers {
public:
    explicit Answers(const std::string& path) : m_output(path) {}

    bool Give(const std::string& expression)
    {
        const CalculatorAnswer answer = Calculate(Cp1252FromUtf8(expression));
        m_numbers = m_numbers && answer.bNumber;
        return m_output.Write(Utf8FromCp1252(answer.text) + '\n') && m_output.Flush();
    }

    int Finish()
    {
        const int status = m_output.Finish();
        return m_numbers || m_output.IsReaderGone() ? status : kFailed;
    }

private:
    Output m_output;
    bool m_numbers = true;
};

/// The next line of standard input without its end; nothing behind the last. Of a line that is longer than
/// the calculator takes no more is kept than shows that it is.
std::optional<std::string> ReadLine()
{
    constexpr std::size_t kKept = 4 * (kLongestExpression + 1); // a character is at most four bytes
    std::string line;
    int c = std::getchar();
    if (c == EOF) {
        return std::nullopt;
    }
    for (; c != EOF && c != '\n'; c = std::getchar()) {
        if (line.size() < kKept) {
            line += static_cast<char>(c);
        }
    }
    return line;
}

} // namespace

int CalcVerb(const std::vector<std::string>& expressions, const std::string& outputPath)
{
    Answers answers(outputPath);
    bool more = true;
    for (std::size_t i = 0; more && i < expressions.size(); ++i) {
        more = answers.Give(expressions[i]);
    }
    if (expressions.empty()) {
        for (auto line = ReadLine(); more && line; line = ReadLine()) {
            more = answers.Give(*line);
        }
    }
    return answers.Finish();
}
