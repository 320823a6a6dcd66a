#include "cli/Input.h"

#include "cli/Output.h"
#include "lib/files/FileBytes.h"

std::optional<std::string> ReadInputWord(const std::string& word)
{
    constexpr std::size_t kMostBytes = std::size_t{64} << 20;
    int error = 0;
    auto bytes = ReadInput(word, kMostBytes, error);
    if (!bytes) {
        Fail("cannot read " + (word == "-" ? std::string("standard input") : word));
    }
    return bytes;
}
