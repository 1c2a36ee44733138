#include "platform/Progress.h"

namespace tomely {

Progress halfOf(const Progress& progress, int half)
{
    if (!progress)
        return {};
    return [progress, half](qint64 done, qint64 total) {
        progress(half * total + done, 2 * total);
    };
}

} // namespace tomely
