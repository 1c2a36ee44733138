// What a person sees of a look-up that goes on: an indicator that turns and a line that says how to
// leave it, in windows that repaint but take no input. Escape gives the look-up up.

#pragma once

#include "platform/widgets/InputPause.h"

#include <QPointer>

class QWidget;

namespace tomely {

class UrlFetch;

class LookupWait {
public:
    /// Shows `indicator` as long as this lives. `fetch` is what the look-up asks with and must
    /// outlive this; the indicator need not.
    LookupWait(UrlFetch& fetch, QWidget& indicator);
    ~LookupWait();
    Q_DISABLE_COPY_MOVE(LookupWait)

private:
    QPointer<QWidget> m_indicator;
    InputPause m_pause;
};

} // namespace tomely
