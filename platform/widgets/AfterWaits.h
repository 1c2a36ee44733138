// What a panel, a screen reader or the desktop asks for while the program waits for something comes
// after that wait: nothing may begin inside another wait, and nothing that was asked for is
// dropped.

#pragma once

#include <functional>

class QObject;

namespace tomely {

/// Does it now, or as soon as no wait is under way. It is dropped when `context` is gone by then.
void afterWaits(QObject& context, std::function<void()> act);

} // namespace tomely
