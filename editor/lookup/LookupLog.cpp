#include "editor/lookup/LookupLog.h"

#include <QLoggingCategory>

namespace tomely {

namespace {

// From warnings on, and there are none: off by default.
Q_LOGGING_CATEGORY(lookupLog, "tomely.lookup", QtWarningMsg)

} // namespace

void logLookup(const QString& message)
{
    qCDebug(lookupLog).noquote() << message;
}

} // namespace tomely
