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
/// Boolean: whether an editor opens on its tab of custom fields.
inline constexpr QLatin1StringView OpenCustomTab{"OpenCustomTab"};
/// Boolean: whether the editor of a new book starts in the ISBN field.
inline constexpr QLatin1StringView SetFocusToISBNField{"SetFocusToISBNField"};
/// Boolean: whether a new book was read for the first time this month.
inline constexpr QLatin1StringView SetFirstReadToCurrentDate{"SetFirstReadToCurrentDate"};
/// Boolean: whether a new book was read last this month.
inline constexpr QLatin1StringView SetLastReadToCurrentDate{"SetLastReadToCurrentDate"};
/// Boolean: whether a new book was bought this month.
inline constexpr QLatin1StringView SetPurchasedToCurrentDate{"SetPurchasedToCurrentDate"};
/// Boolean: whether a new book has been read.
inline constexpr QLatin1StringView SetReadFlag{"SetReadFlag"};
/// List of texts: paths of the collections opened lately, the latest first.
inline constexpr QLatin1StringView RecentDocuments{"RecentDocuments"};
/// Boolean: whether new pictures of books are scaled down to their place.
inline constexpr QLatin1StringView ScaleImages{"ScaleImages"};
/// Integer: quality of stored pictures in tenths, 1 to 10; absent and 0 are 7.
inline constexpr QLatin1StringView ImageQuality{"ImageQuality"};
/// Boolean: whether leaving the ISBN of an editor starts no look-up.
inline constexpr QLatin1StringView DisableAutoLookup{"DisableAutoLookup"};
/// Boolean: whether a look-up takes the first of several authors only.
inline constexpr QLatin1StringView DisableAuthorConcatenation{"DisableAuthorConcatenation"};
/// Boolean: whether a look-up brings no cover.
inline constexpr QLatin1StringView DisableImageDownload{"DisableImageDownload"};

// The section [Lookup] of the preferences file: whom look-ups ask. A host is a name, with ":" and a
// port where it is not the usual one of https.

/// Text: host that knows the identifier of a volume; absent or empty is books.google.com.
inline constexpr QLatin1StringView LookupViewHost{"Lookup/ViewHost"};
/// Text: host that has the records of volumes; absent or empty is www.googleapis.com.
inline constexpr QLatin1StringView LookupVolumesHost{"Lookup/VolumesHost"};
/// Text: host with a page for each book; absent or empty, there is no second source.
inline constexpr QLatin1StringView LookupPageHost{"Lookup/PageHost"};
/// Text: key for the records of volumes, when they are refused without one; may be absent.
inline constexpr QLatin1StringView LookupServiceKey{"Lookup/ServiceKey"};

// The section [Toolbar]: the toolbar of the main windows.

/// List of texts: identifiers of its items from left to right; absent is the default set, and an
/// empty text is a toolbar without items.
inline constexpr QLatin1StringView ToolbarItems{"Toolbar/Items"};
/// Text: "iconAndText", "iconOnly" or "textOnly"; anything else is the first.
inline constexpr QLatin1StringView ToolbarDisplay{"Toolbar/Display"};

} // namespace tomely::PreferenceKeys
