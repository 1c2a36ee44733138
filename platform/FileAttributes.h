// Gives a new file what the file it is about to replace was given by people: owner, group,
// permissions, access control lists and other extended attributes. It must not know how files are
// replaced.

#pragma once

#include "platform/FileSystemCalls.h"

namespace tomely {

/// Carries over the attributes of the file at `path`, whose lstat is `old`, to the open file
/// `file`, as far as the user and the file system allow. Never gives anybody more rights than the
/// old file did: without the old group the new file's group gets no more than everybody. Gives 0,
/// or the errno of a call that failed for any other reason than not being allowed.
[[nodiscard]] int carryOverAttributes(
    FileSystemCalls& calls, const char* path, const struct stat& old, int file);

} // namespace tomely
