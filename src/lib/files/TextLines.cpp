#include "lib/files/TextLines.h"

namespace {

int ReadCharacter(std::FILE* file)
{
    const int c = std::getc(file);
    if (c == 0) {
        std::ungetc(c, file); // so that it ends the file again at the next line
        return EOF;
    }
    if (c != '\r') {
        return c;
    }
    const int next = std::getc(file);
    if (next == '\n') {
        return next;
    }
    if (next != EOF) {
        std::ungetc(next, file);
    }
    return c;
}

} // namespace

char* ReadTextLine(char* target, int nSize, std::FILE* file)
{
    int n = 0;
    while (n < nSize - 1 && (n == 0 || target[n - 1] != '\n')) {
        const int c = ReadCharacter(file);
        if (c == EOF) {
            break;
        }
        target[n++] = static_cast<char>(c);
    }
    target[n] = 0;
    return n > 0 ? target : nullptr;
}
