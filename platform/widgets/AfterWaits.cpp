#include "platform/widgets/AfterWaits.h"

#include "platform/widgets/Waiting.h"

#include <QTimer>

namespace tomely {

namespace {

constexpr int retryMilliseconds = 50;

} // namespace

void afterWaits(QObject& context, std::function<void()> act)
{
    if (!Waiting::isWaiting())
        return act();
    QTimer::singleShot(retryMilliseconds, &context,
        [&context, act = std::move(act)] { afterWaits(context, act); });
}

} // namespace tomely
