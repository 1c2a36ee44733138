#include "listwindow/ExportOptionsController.h"

#include "listwindow/ExportChoices.h"
#include "listwindow/ui_ExportOptions.h"
#include "platform/widgets/Waiting.h"

#include <QButtonGroup>
#include <QEvent>

namespace tomely {

ExportOptionsController::ExportOptionsController(QWidget& parentWindow, const ListEngine& engine)
    : QDialog(&parentWindow)
    , m_engine(engine)
    , m_ui(std::make_unique<Ui::ExportOptions>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_filter = taggedButtons(*m_ui->exportFilterSelection);
    showBookCounts(*m_filter, m_engine);
    m_filter->checkedButton()->setFocus();
    connect(m_ui->m_OKButton, &QPushButton::clicked, this, &ExportOptionsController::clickedOK);
    connect(
        m_ui->m_cancelButton, &QPushButton::clicked, this, &ExportOptionsController::clickedCancel);
    open();
}

ExportOptionsController::~ExportOptionsController() = default;

void ExportOptionsController::clickedOK()
{
    if (Waiting::isWaiting())
        return;
    accept();
    Q_EMIT confirmed(m_filter->checkedId());
}

void ExportOptionsController::clickedCancel()
{
    reject();
}

bool ExportOptionsController::event(QEvent* event)
{
    // An editor may have added a book meanwhile.
    if (event->type() == QEvent::WindowActivate)
        showBookCounts(*m_filter, m_engine);
    return QDialog::event(event);
}

} // namespace tomely
