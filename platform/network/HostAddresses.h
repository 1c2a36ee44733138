// At which addresses the server of a name is.

#pragma once

#include <QHostAddress>
#include <QList>

class QString;

namespace tomely {

struct FetchPolicy;
class FetchWait;

/// The addresses that may be asked, in the order in which they should be tried. The host is a name,
/// or an address in any spelling. Empty when there is none or the wait is over.
QList<QHostAddress> findAddresses(
    const QString& hostName, const FetchPolicy& policy, FetchWait& wait);

} // namespace tomely
