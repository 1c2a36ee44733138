#include "listwindow/ExportCSVOptionsController.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/CsvExport.h"
#include "listwindow/ExportChoices.h"
#include "listwindow/ui_ExportCSVOptions.h"
#include "platform/widgets/Waiting.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFontDatabase>
#include <QScreen>
#include <QScrollBar>

namespace tomely {

namespace {

/// The fixed font of the desktop, as large as other texts.
QFont fixedFont(const QFont& size)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (size.pointSizeF() > 0)
        font.setPointSizeF(size.pointSizeF());
    else
        font.setPixelSize(size.pixelSize());
    return font;
}

template <class Selection>
Selection checked(const QButtonGroup& buttons)
{
    return static_cast<Selection>(buttons.checkedId());
}

template <class Selection>
void check(const QButtonGroup& buttons, Selection selection)
{
    buttons.button(static_cast<int>(selection))->setChecked(true);
}

} // namespace

ExportCSVOptionsController::ExportCSVOptionsController(QWidget& parentWindow,
    const BookListDocument& document, const ListEngine& engine, const CsvChoices& choices)
    : QDialog(&parentWindow)
    , m_document(document)
    , m_engine(engine)
    , m_ui(std::make_unique<Ui::ExportCSVOptions>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    makeGroups();
    choose(choices);
    setUpPreview();
    connectControls();
    m_filter->checkedButton()->setFocus();
    fitToScreen();
    open();
}

ExportCSVOptionsController::~ExportCSVOptionsController() = default;

// Choices

void ExportCSVOptionsController::makeGroups()
{
    m_filter = taggedButtons(*m_ui->exportFilterSelection);
    m_columns = taggedButtons(*m_ui->exportColumnSelection);
    m_dates = taggedButtons(*m_ui->exportDateSelection);
    m_groups = taggedButtons(*m_ui->exportGroupSelection);
    m_checkboxes = taggedButtons(*m_ui->exportCheckboxSelection);
    m_isbn = taggedButtons(*m_ui->exportISBNSelection);
    m_carriageReturns = taggedButtons(*m_ui->exportCarriageReturnSelection);
    showBookCounts(*m_filter, m_engine);
}

void ExportCSVOptionsController::choose(const CsvChoices& choices)
{
    const CsvOptions& options = choices.options;
    check(*m_filter, choices.filterSelection);
    check(*m_columns, options.columnSelection);
    check(*m_dates, options.dateSelection);
    check(*m_groups, options.groupSelection);
    m_ui->exportGroupDelimeter->setText(options.groupDelimeter);
    check(*m_checkboxes, options.checkboxSelection);
    check(*m_isbn, options.isbnSelection);
    check(*m_carriageReturns, options.carriageReturnSelection);
    changedGroupSelection();
}

CsvChoices ExportCSVOptionsController::choices() const
{
    CsvChoices choices;
    choices.filterSelection = checked<ExportFilter>(*m_filter);
    choices.options = {
        .columnSelection = checked<CsvOptions::ColumnSelection>(*m_columns),
        .dateSelection = checked<CsvOptions::DateSelection>(*m_dates),
        .groupSelection = checked<CsvOptions::GroupSelection>(*m_groups),
        .groupDelimeter = m_ui->exportGroupDelimeter->text(),
        .checkboxSelection = checked<CsvOptions::CheckboxSelection>(*m_checkboxes),
        .isbnSelection = checked<CsvOptions::ISBNSelection>(*m_isbn),
        .carriageReturnSelection = checked<CsvOptions::CarriageReturnSelection>(*m_carriageReturns),
    };
    return choices;
}

void ExportCSVOptionsController::connectControls()
{
    for (const QButtonGroup* const buttons :
        {m_filter, m_columns, m_dates, m_groups, m_checkboxes, m_isbn, m_carriageReturns}) {
        connect(buttons, &QButtonGroup::idToggled, this, [this, buttons](int tag, bool isChecked) {
            if (!isChecked)
                return;
            // The arrow keys choose what may be out of sight.
            m_ui->m_idScrollArea->ensureWidgetVisible(buttons->button(tag));
            showPreview();
        });
    }
    connect(m_groups, &QButtonGroup::idToggled, this,
        &ExportCSVOptionsController::changedGroupSelection);
    connect(m_ui->exportGroupDelimeter, &QLineEdit::textChanged, this,
        &ExportCSVOptionsController::showPreview);
    connect(m_ui->m_OKButton, &QPushButton::clicked, this, &ExportCSVOptionsController::clickedOK);
    connect(m_ui->m_cancelButton, &QPushButton::clicked, this,
        &ExportCSVOptionsController::clickedCancel);
}

void ExportCSVOptionsController::changedGroupSelection()
{
    m_ui->exportGroupDelimeter->setEnabled(
        checked<CsvOptions::GroupSelection>(*m_groups) == CsvOptions::GroupSelection::Names);
}

void ExportCSVOptionsController::clickedOK()
{
    if (Waiting::isWaiting())
        return;
    accept();
    Q_EMIT confirmed(choices());
}

void ExportCSVOptionsController::clickedCancel()
{
    reject();
}

// The preview

void ExportCSVOptionsController::setUpPreview()
{
    QPlainTextEdit& preview = *m_ui->m_idPreview;
    preview.setFont(fixedFont(font()));
    const int lines = static_cast<int>(previewedBooks) + 1;
    const int margins =
        2 * (preview.frameWidth() + static_cast<int>(preview.document()->documentMargin()));
    preview.setFixedHeight(lines * (preview.fontMetrics().lineSpacing() + 1) + margins
        + preview.horizontalScrollBar()->sizeHint().height());
    showPreview();
}

void ExportCSVOptionsController::showPreview()
{
    const CsvChoices chosen = choices();
    QString text =
        CsvExport(m_document, exportableBooks(m_engine, chosen.filterSelection), chosen.options)
            .preview(previewedBooks);
    if (text.endsWith(u'\n'))
        text.chop(1);
    if (text.size() > mostPreviewedCharacters)
        text = text.first(mostPreviewedCharacters) + u'…';
    QScrollBar& scrollBar = *m_ui->m_idPreview->horizontalScrollBar();
    const int scrolledRight = scrollBar.value();
    m_ui->m_idPreview->setPlainText(text);
    scrollBar.setValue(scrolledRight);
}

bool ExportCSVOptionsController::event(QEvent* event)
{
    // An editor may have added or changed a book meanwhile.
    if (event->type() == QEvent::WindowActivate) {
        showBookCounts(*m_filter, m_engine);
        showPreview();
    }
    return QDialog::event(event);
}

// The size

void ExportCSVOptionsController::fitToScreen()
{
    // The choices were measured before they had their texts.
    for (auto* const part : m_ui->m_idGroups->findChildren<QLayout*>())
        part->invalidate();
    // As large as every choice needs; where the screen is not, the choices scroll.
    const QScrollArea& area = *m_ui->m_idScrollArea;
    const QSize wanted = m_ui->m_idGroups->sizeHint();
    const QMargins margins = layout()->contentsMargins();
    const int width = wanted.width() + area.verticalScrollBar()->sizeHint().width() + margins.left()
        + margins.right();
    const int height = sizeHint().height() - area.sizeHint().height() + wanted.height();
    const QSize frame = parentWidget()->frameGeometry().size() - parentWidget()->size();
    resize(QSize(width, height).boundedTo(screen()->availableSize() - frame));
}

} // namespace tomely
