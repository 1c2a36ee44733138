// A wait without a panel: as long as it lives, the program's windows repaint and move their
// indicators, but what the person types and clicks is dropped, in every window. Only Escape means
// something: that the person does not want to wait any longer.

#pragma once

#include "platform/widgets/Waiting.h"

#include <QObject>

#include <functional>

namespace tomely {

class InputPause : public QObject {
    Q_OBJECT

public:
    /// `escaped` is called at each press of Escape.
    explicit InputPause(std::function<void()> escaped);
    ~InputPause() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_escaped;
    Waiting m_waiting;
};

} // namespace tomely
