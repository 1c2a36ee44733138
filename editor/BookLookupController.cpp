#include "editor/BookLookupController.h"

#include "editor/lookup/BookLookup.h"
#include "editor/lookup/LookupSettings.h"
#include "editor/LookupWait.h"
#include "editor/LookupWorkflow.h"
#include "editor/ui_BookLookup.h"
#include "model/NormalizedISBN.h"
#include "model/TextTrimming.h"
#include "platform/Alerts.h"
#include "platform/network/UrlFetch.h"

#include <QPointer>

#include <optional>

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
    const QPointer self(this);
    const QPointer workflow(&m_workflow);
    const LookupServices services = m_workflow.services();
    const std::unique_ptr<UrlFetch> fetch = services.makeFetch();
    std::optional<LookupWait> wait(std::in_place, *fetch, *m_ui->m_idLookupProgress);
    const BookLookup lookup = BookLookup::initWithISBN(
        normalizedISBN(m_ui->m_ISBNField->text()), LookupSettings::of(services.defaults), *fetch);
    if (!self || !workflow || fetch->isGivenUp())
        return;
    if (!lookup.hasLoadError())
        workflow->setLookupInfo(lookup, *fetch);
    wait.reset();
    if (!self)
        return;
    if (lookup.hasLoadError())
        services.alerts.beginSheet(
            this, messageAlert(tr("Book lookup did not find the requested book.")), {});
    else
        accept();
}

void BookLookupController::cancel()
{
    reject();
}

} // namespace tomely
