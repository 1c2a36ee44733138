// What look-ups in an editor need from the program.

#pragma once

#include "editor/lookup/LookupCover.h"

#include <functional>
#include <memory>

namespace tomely {

class Alerts;
class UrlFetch;
class UserDefaults;

/// Everything must outlive its user.
struct LookupServices {
    UserDefaults& defaults;
    Alerts& alerts;
    /// A fetch for one look-up: the person gives up one and not the next.
    std::function<std::unique_ptr<UrlFetch>()> makeFetch;
    /// Of the picture that stands for no cover; tests have one of their own.
    QStringView placeholderDigest = PlaceholderDigest;
};

} // namespace tomely
