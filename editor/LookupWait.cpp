#include "editor/LookupWait.h"

#include "platform/network/UrlFetch.h"

#include <QWidget>

namespace tomely {

LookupWait::LookupWait(UrlFetch& fetch, QWidget& indicator)
    : m_indicator(&indicator)
    , m_pause([&fetch] { fetch.giveUp(); })
{
    indicator.show();
}

LookupWait::~LookupWait()
{
    if (m_indicator)
        m_indicator->hide();
}

} // namespace tomely
