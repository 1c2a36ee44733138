// The names under which preferences are kept. They are part of the preferences file, so a name that
// was released never changes.

#pragma once

#include <QLatin1StringView>

namespace tomely::PreferenceKeys {

/// Data: reference to the collection to open at start-up, as FileBookmark makes it.
inline constexpr QLatin1StringView BookmarkData{"BookmarkData"};
/// Text: path of the collection to open at start-up.
inline constexpr QLatin1StringView DefaultFile{"DefaultFile"};
/// Integer: which generation of preferences was written last; absent is 0.
inline constexpr QLatin1StringView PreferencesVersion{"PreferencesVersion"};
/// Boolean: whether look-ups may ask more than the main source.
inline constexpr QLatin1StringView EnableAlternateSources{"EnableAlternateSources"};
/// List of texts: paths of the collections opened lately, the latest first.
inline constexpr QLatin1StringView RecentDocuments{"RecentDocuments"};

} // namespace tomely::PreferenceKeys
