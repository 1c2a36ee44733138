// A look-up service with both of its sources on this machine.

#pragma once

#include "editor/lookup/BookLookup.h"
#include "editor/lookup/LookupSettings.h"
#include "platform/network/UrlFetch.h"
#include "tests/support/LookupScenes.h"
#include "tests/support/LookupServer.h"
#include "tests/support/TestAuthority.h"

namespace tomely {

struct SourcesDesk {
    explicit SourcesDesk(const TestAuthority& authority)
        : server(authority.identityFor(QStringLiteral("localhost")))
        , fetch(authority.policy())
    {
        settings.viewHost = server.host();
        settings.volumesHost = server.host();
        settings.pageHost = server.host();
    }

    BookLookup lookUp(const QString& isbn)
    {
        return BookLookup::initWithISBN(isbn, settings, fetch);
    }

    LookupServer server;
    UrlFetch fetch;
    LookupSettings settings;
};

} // namespace tomely
