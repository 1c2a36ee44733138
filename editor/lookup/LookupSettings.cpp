#include "editor/lookup/LookupSettings.h"

#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString trimmedPreference(
    const UserDefaults& defaults, QLatin1StringView key, QLatin1StringView otherwise = {})
{
    const QString value = defaults.stringForKey(key).trimmed();
    return value.isEmpty() ? QString(otherwise) : value;
}

} // namespace

LookupSettings LookupSettings::of(const UserDefaults& defaults)
{
    using namespace PreferenceKeys;
    LookupSettings settings;
    settings.viewHost = trimmedPreference(defaults, LookupViewHost, "books.google.com"_L1);
    settings.volumesHost = trimmedPreference(defaults, LookupVolumesHost, "www.googleapis.com"_L1);
    settings.pageHost = trimmedPreference(defaults, LookupPageHost);
    settings.serviceKey = trimmedPreference(defaults, LookupServiceKey);
    settings.enableAlternateSources = defaults.boolForKey(EnableAlternateSources);
    settings.disableAuthorConcatenation = defaults.boolForKey(DisableAuthorConcatenation);
    return settings;
}

} // namespace tomely
