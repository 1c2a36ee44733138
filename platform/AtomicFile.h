// Writes a whole file so that at every moment, also after a crash or on a full disk, its path names
// either the complete old file or the complete new one. Every file the program writes for a person
// goes through here. It must not know what is in the file.

#pragma once

#include <functional>

#include <QByteArrayView>
#include <QString>

#include "platform/FileSystemCalls.h"
#include "platform/Progress.h"

namespace tomely {

/// How writing a file ended.
struct [[nodiscard]] FileResult {
    /// For a person: which step failed and the system's reason. Empty when everything went well.
    QString error;
    /// The errno behind `error`; 0 when everything went well. EEXIST tells that Replace::Never met
    /// a file.
    int errorNumber = 0;
    /// Whether the path names the new file now. True beside an error only when the very last step
    /// failed: see AtomicFile::write.
    bool inPlace = false;

    bool isOk() const { return errorNumber == 0; }
};

class AtomicFile {
public:
    enum class Replace {
        Existing, // a file at the path is replaced; without one the file is made
        Never, // anything at the path, even a file made at the same moment, is an error
    };

    /// Called after every few megabytes and at the end. Each byte counts twice, once when it is
    /// written and once when it is checked: `total` is twice the size of the file.
    using Progress = tomely::Progress;

    /// Makes the file at `path` hold exactly `bytes`. Symbolic links at `path` are followed and
    /// stay links (except with Replace::Never, where a link is an error). The new file takes over
    /// owner, group, permissions, access control lists and other extended attributes of the old
    /// one, as far as the user is allowed to set them; a file without an old one gets what the
    /// umask and the folder give. Other hard links to the old file keep the old bytes.
    ///
    /// Fails, leaving the old file as it was and nothing else behind: when the path cannot be
    /// resolved, is not a plain file, is write-protected for the user, the folder cannot be
    /// written, or any step of writing, checking or renaming fails.
    ///
    /// One failure comes after the point of no return: when the folder cannot be synced, the new
    /// file is in place and complete, but a power cut may still bring the old one back. That is an
    /// error with `inPlace` set, because "saved" is a promise that cannot be given; writing again
    /// is safe.
    static FileResult write(const QString& path, QByteArrayView bytes,
        const Progress& progress = {}, Replace replace = Replace::Existing,
        FileSystemCalls& calls = FileSystemCalls::real());
};

} // namespace tomely
