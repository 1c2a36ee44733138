// How many waits the program is in. What would open, close or change a document has to ask first.

#pragma once

#include <QtGlobal>

namespace tomely {

/// The program waits for something as long as one of these lives.
class Waiting {
public:
    Waiting() { ++s_count; }

    ~Waiting() { --s_count; }

    Q_DISABLE_COPY_MOVE(Waiting)

    /// True while any wait goes on.
    static bool isWaiting() { return s_count > 0; }

private:
    static inline int s_count = 0;
};

} // namespace tomely
