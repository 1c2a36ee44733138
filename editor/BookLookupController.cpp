#include "editor/BookLookupController.h"

#include "editor/LookupWorkflow.h"
#include "editor/ui_BookLookup.h"
#include "model/NormalizedISBN.h"
#include "model/TextTrimming.h"
#include "platform/widgets/Waiting.h"

#include <QPointer>

namespace tomely {

BookLookupController::BookLookupController(
    QWidget& parentWindow, LookupWorkflow& workflow, const QString& isbn)
    : QDialog(&parentWindow)
    , m_workflow(workflow)
    , m_ui(std::make_unique<Ui::BookLookup>())
{
    m_ui->setupUi(this);
    QSizePolicy policy = m_ui->m_idLookupProgress->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the sheet stays as large as it is
    m_ui->m_idLookupProgress->setSizePolicy(policy);
    m_ui->m_idLookupProgress->hide();
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->m_ISBNField->setText(isbn);
    m_ui->m_ISBNField->selectAll();
    connect(m_ui->m_ISBNField, &QLineEdit::textChanged, this, &BookLookupController::textDidChange);
    connect(m_ui->m_OKButton, &QPushButton::clicked, this, &BookLookupController::ok);
    connect(m_ui->m_cancelButton, &QPushButton::clicked, this, &BookLookupController::cancel);
    textDidChange();
    open();
}

BookLookupController::~BookLookupController() = default;

void BookLookupController::textDidChange()
{
    m_ui->m_OKButton->setEnabled(!trimmedText(normalizedISBN(m_ui->m_ISBNField->text())).isEmpty());
}

void BookLookupController::ok()
{
    if (Waiting::isWaiting())
        return;
    const QPointer self(this);
    const QString isbn = normalizedISBN(m_ui->m_ISBNField->text());
    if (m_workflow.lookUp(isbn, *m_ui->m_idLookupProgress, *this) && self)
        accept();
}

void BookLookupController::cancel()
{
    reject();
}

} // namespace tomely
