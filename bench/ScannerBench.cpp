#include "document/XmlScanner.h"
#include "model/record/RecordFields.h"
#include "support/DirectScanner.h"

#include <benchmark/benchmark.h>

#include <string>

// Reading all keys of a design file of 1 MB that holds anything at all: our scanner with its opening, then
// the plain walk, one a key. The goal is under 20 ms for any filling.

namespace {

constexpr std::size_t kSize = 1 << 20;

std::string Fill(const std::string& head, std::string_view piece)
{
    std::string text = head;
    while (text.size() < kSize) {
        text += piece;
    }
    return text;
}

std::string Design()
{
    std::string text = "<telescope>";
    for (const RecordField& field : RecordFields()) {
        const std::string_view key(field.key);
        for (const std::string_view name : {key.substr(0, key.find('/')), key.substr(key.rfind('/') + 1)}) {
            text.append("<").append(name).append(">");
        }
        text.append("1.5\n");
    }
    return text;
}

const std::string kSections = "<telescope><misc><mirror><tube><focuser><secondary><weight><balance><tests>"
                              "<artificial_star><matching_ronchi>";

struct Filling {
    const char* name;
    std::string text;
};

const std::vector<Filling>& Fillings()
{
    static const std::vector<Filling> fillings{
        {"plain text", Fill("", "nothing to be found here ")},
        {"all brackets", Fill("", "<")},
        {"brackets behind the sections", Fill(kSections, "<")},
        {"bracket pairs behind the sections", Fill(kSections, "<<x")},
        {"swallowed names behind the sections", Fill(kSections, "<<diameter>")},
        {"beginnings of a name", Fill(kSections, "<d")},
        {"long beginnings of a name", Fill(kSections, "<diamete")},
        {"runs before a name", Fill(kSections, std::string(4096, '<') + "diameter>")},
        {"beginnings of the first name", Fill("", "<t")},
        {"beginnings of names by t", Fill(kSections, "<t")},
        {"names of the first section", Fill("", "<telescope>")},
        {"swallowed first names", Fill("", "<<telescope>")},
        {"a design over and over", Fill("", Design())},
        {"a design at the end", Fill("", "<x>") + Design()},
    };
    return fillings;
}

std::vector<std::string> Keys()
{
    std::vector<std::string> keys;
    for (const RecordField& field : RecordFields()) {
        keys.push_back(std::string("telescope/") + field.key);
    }
    return keys;
}

void OurScanner(benchmark::State& state, const std::string& text)
{
    const auto keys = Keys();
    for (auto _ : state) {
        const XmlScanner scanner = XmlScanner::FromText(text);
        for (const std::string& key : keys) {
            char value[1024];
            benchmark::DoNotOptimize(scanner.GetValue(key.c_str(), value, sizeof value));
        }
    }
}

void DirectWalks(benchmark::State& state, const std::string& text)
{
    const auto keys = Keys();
    for (auto _ : state) {
        const DirectScanner scanner(text);
        for (const std::string& key : keys) {
            benchmark::DoNotOptimize(scanner.GetValue(key, 1023));
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    for (const Filling& filling : Fillings()) {
        const auto name = [&](const char* way) { return std::string(filling.name) + "/" + way; };
        benchmark::RegisterBenchmark(name("ours").c_str(), OurScanner, filling.text)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(name("direct").c_str(), DirectWalks, filling.text)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
