// A wait without a panel: as long as it lives, the program's windows repaint and move their
// indicators, but what the person types and clicks is dropped, in every window. Only Escape and the
// close button of a window mean something: that the person does not want to wait any longer. What
// does not come as input (a menu that the desktop shows, a screen reader's press of a button) has
// to ask Waiting itself.

#pragma once

#include "platform/widgets/Waiting.h"

#include <QObject>

#include <functional>

namespace tomely {

class EscapeAftermath;

class InputPause : public QObject {
    Q_OBJECT

public:
    /// `escaped` is called at each press of Escape or of a close button. Escape means nothing to
    /// windows for a moment afterwards, when it is held or pressed twice.
    explicit InputPause(std::function<void()> escaped);
    ~InputPause() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isAnswering() const;

    std::function<void()> m_escaped;
    EscapeAftermath* m_aftermath; // the application's
    Waiting m_waiting;
};

} // namespace tomely
