// What a person can set about look-ups: whom to ask, and what to make of the answers. Read from the
// preferences at the moment a look-up starts.

#pragma once

#include <QString>

namespace tomely {

class UserDefaults;

struct LookupSettings {
    /// Each host is a name, with ":" and a port where it is not the usual one.
    QString viewHost; // of source 1, for a volume's identifier
    QString volumesHost; // of source 1, for its record
    QString pageHost; // of source 2; empty when there is none
    QString serviceKey; // of source 1; empty when there is none
    bool enableAlternateSources = false;
    bool disableAuthorConcatenation = false;

    static LookupSettings of(const UserDefaults& defaults);
};

} // namespace tomely
