#include "platform/widgets/WaitPanel.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>

namespace tomely {

namespace {

// Work that takes less needs no panel; half a second is where a wait begins to need an explanation.
constexpr qint64 showAfterMilliseconds = 300;
constexpr qint64 repaintEveryMilliseconds = 30;
constexpr int barSteps = 1000;

/// A panel without a Cancel button stays until the work is done: neither Escape nor closing it may
/// give the program's windows back to the person before.
class Panel : public QProgressDialog {
public:
    Panel(QWidget* parent, WaitPanel::Cancel cancel) : QProgressDialog(parent), m_cancel(cancel) { }

    void reject() override
    {
        if (m_cancel == WaitPanel::Cancel::Possible)
            QProgressDialog::reject();
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        if (m_cancel == WaitPanel::Cancel::Possible)
            QProgressDialog::closeEvent(event);
        else
            event->ignore();
    }

private:
    WaitPanel::Cancel m_cancel;
};

} // namespace

WaitPanel::WaitPanel(QWidget* parent, const QString& text, Cancel cancel)
    : m_parent(parent)
    , m_text(text)
    , m_cancel(cancel)
{
    m_sinceStart.start();
    m_sinceReport.start();
}

WaitPanel::~WaitPanel()
{
    delete m_dialog;
}

Progress WaitPanel::progress()
{
    return [this](qint64 done, qint64 total) {
        report(done, total);
    };
}

void WaitPanel::show()
{
    m_dialog = new Panel(m_parent, m_cancel);
    m_dialog->setObjectName(QLatin1StringView("waitPanel"));
    m_dialog->setLabelText(m_text);
    m_dialog->setRange(0, barSteps);
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(0);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
    if (m_cancel == Cancel::Impossible) {
        m_dialog->setCancelButton(nullptr);
        m_dialog->setWindowFlag(Qt::WindowCloseButtonHint, false);
    }
    m_dialog->show();
}

void WaitPanel::report(qint64 done, qint64 total)
{
    if (!m_dialog && m_sinceStart.elapsed() < showAfterMilliseconds)
        return;
    if (m_dialog && m_sinceReport.elapsed() < repaintEveryMilliseconds)
        return;
    m_sinceReport.start();
    if (!m_dialog)
        show();
    if (total > 0)
        m_dialog->setValue(static_cast<int>(done * barSteps / total));
    // The panel is modal to the whole program, so input reaches nothing but its Cancel button.
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    if (m_cancel == Cancel::Possible && m_dialog && m_dialog->wasCanceled())
        throw OperationCancelled();
}

} // namespace tomely
