// What a person sees of a long wait: a small panel with a moving bar and, where the work can be
// left, a Cancel button. While it is up the program's windows repaint but take no input; before it
// comes up, for work that is done at once, nothing happens at all.

#pragma once

#include "platform/Progress.h"
#include "platform/widgets/Waiting.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

class QProgressDialog;
class QWidget;

namespace tomely {

class WaitPanel {
public:
    enum class Cancel { Possible, Impossible };

    /// `text` says what is going on. The panel belongs to `parent`, or to no window.
    WaitPanel(QWidget* parent, const QString& text, Cancel cancel);
    ~WaitPanel();
    Q_DISABLE_COPY_MOVE(WaitPanel)

    /// Moves the bar and lets windows repaint. Throws OperationCancelled after a click on Cancel.
    void report(qint64 done, qint64 total);

    /// The same as a function to hand on; it must not outlive the panel.
    Progress progress();

private:
    void show();

    Waiting m_waiting;
    QPointer<QWidget> m_parent;
    QString m_text;
    Cancel m_cancel;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceReport;
    QPointer<QProgressDialog> m_dialog; // owned; also destroyed with its parent
};

} // namespace tomely
