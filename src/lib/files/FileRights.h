#pragma once

#include <string>

struct stat;

/// Gives a new file, open at `fd`, what the file at `path` (`old` its status) has beside its bytes: owner,
/// group, rights, access list, extended attributes. Only root can give a file away: for everyone else the
/// owner is the one who writes, and a group that cannot be kept loses its rights. A file system that knows no
/// rights is no failure. False if an access list or an attribute could not be kept.
bool TakeRights(int fd, const std::string& path, const struct stat& old);
