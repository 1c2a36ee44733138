// The steps of a look-up, for whoever wonders why a book was not found. They are written only when
// a person asks for them, since they name the books that somebody owns:
// QT_LOGGING_RULES="tomely.lookup=true".

#pragma once

#include <QString>

namespace tomely {

/// Takes note of a step. The service key is secret and must not be in the message.
void logLookup(const QString& message);

} // namespace tomely
