#include "lib/files/FileReason.h"

#include "lib/text/CodePage.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace {

struct Reason {
    int error;
    Bilingual text;
};

constexpr Reason kReasons[] = {
    {EACCES, {"no right to do so", "kein Recht dazu"}},
    {EPERM, {"no right to do so", "kein Recht dazu"}},
    {EROFS, {"the disk can only be read", "der Datenträger kann nur gelesen werden"_cp1252}},
    {ENOSPC, {"the disk is full", "der Datenträger ist voll"_cp1252}},
    {EDQUOT, {"your share of the disk is used up", "Ihr Anteil am Datenträger ist verbraucht"_cp1252}},
    {EFBIG, {"the file is too large", "die Datei ist zu groß"_cp1252}},
    {EIO, {"the disk reports an error", "der Datenträger meldet einen Fehler"_cp1252}},
    {ENOENT, {"no such file or folder", "Datei oder Ordner gibt es nicht"}},
    {ENOTDIR, {"no such file or folder", "Datei oder Ordner gibt es nicht"}},
    {EISDIR, {"it is a folder", "es ist ein Ordner"}},
    {ENAMETOOLONG, {"the name is too long", "der Name ist zu lang"}},
    {ELOOP, {"its link leads nowhere", "die Verknüpfung führt ins Leere"_cp1252}},
    {EBADF, {"it is not open", "es ist nicht offen"}},
    {ENXIO, {"nobody reads it", "niemand liest mit"}},
    {EPIPE, {"nobody reads it any more", "niemand liest mehr mit"}},
    {EMFILE, {"too many files are open", "zu viele Dateien sind offen"}},
    {ENFILE, {"too many files are open", "zu viele Dateien sind offen"}},
    {ENOMEM, {"not enough memory", "zu wenig Speicher"}},
    {EBUSY, {"it is in use", "es wird gerade benutzt"}},
    {ETXTBSY, {"it is in use", "es wird gerade benutzt"}},
    {EINVAL, {"it cannot be written there", "es lässt sich dort nicht schreiben"_cp1252}},
};

constexpr Bilingual kUnknown{"the system reports an error", "das System meldet einen Fehler"};

} // namespace

Bilingual FileReason(int error)
{
    const auto found = std::ranges::find(kReasons, error, &Reason::error);
    return found == std::end(kReasons) ? kUnknown : found->text;
}
