#include "listwindow/PrintPreview.h"

#include "listwindow/ui_PrintPreview.h"
#include "platform/widgets/Accessibility.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr double pointsPerInch = 72;
constexpr double shareOfScreen = 0.8; // of its height
constexpr int borderAroundPage = 8;

// The items of the zoom, in their order.
enum Zoom { WholePage, PageWidth, ActualSize, DoubleSize };

} // namespace

PrintPreview::PrintPreview(
    QPrinter& printer, std::function<PrintPages()> makePages, QWidget* parent)
    : QDialog(parent)
    , m_printer(printer)
    , m_makePages(std::move(makePages))
    , m_ui(std::make_unique<Ui::PrintPreview>())
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setAccessibleRole(*m_ui->m_idScroll, QAccessible::Graphic);
    m_ui->m_idPrint->setDefault(true);
    m_ui->m_idPage->installEventFilter(this);
    m_ui->m_idPageNumber->installEventFilter(this);
    m_ui->m_idScroll->viewport()->installEventFilter(this);
    m_ui->m_idOrientation->setCurrentIndex(
        m_printer.pageLayout().orientation() == QPageLayout::Landscape ? 1 : 0);
    const int height = qRound(screen()->availableSize().height() * shareOfScreen);
    resize(std::max(sizeHint().width(), height), height);
    connectControls();
    refresh();
    m_ui->m_idPageNumber->setFocus();
}

PrintPreview::~PrintPreview() = default;

void PrintPreview::connectControls()
{
    connect(m_ui->m_idPageNumber, &QSpinBox::valueChanged, this, [this] {
        m_ui->m_idScroll->verticalScrollBar()->setValue(0);
        showPage();
    });
    connect(m_ui->m_idPrevious, &QPushButton::clicked, m_ui->m_idPageNumber, &QSpinBox::stepDown);
    connect(m_ui->m_idNext, &QPushButton::clicked, m_ui->m_idPageNumber, &QSpinBox::stepUp);
    connect(m_ui->m_idZoom, &QComboBox::currentIndexChanged, this, &PrintPreview::fitPage);
    connect(m_ui->m_idOrientation, &QComboBox::currentIndexChanged, this, [this](int index) {
        Q_EMIT orientationChosen(index == 1 ? QPageLayout::Landscape : QPageLayout::Portrait);
    });
    connect(m_ui->m_idPrint, &QPushButton::clicked, this, &PrintPreview::printRequested);
    connect(m_ui->m_idClose, &QPushButton::clicked, this, &QDialog::reject);
    for (const auto& [key, button] : {std::pair(Qt::Key_PageUp, m_ui->m_idPrevious),
             std::pair(Qt::Key_PageDown, m_ui->m_idNext)})
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QPushButton::click);
}

void PrintPreview::refresh()
{
    m_pages.emplace(m_makePages());
    const int count = static_cast<int>(m_pages->pageCount());
    m_ui->m_idPageNumber->setMaximum(count);
    m_ui->m_idPageCount->setText(tr("of %L1").arg(count));
    showPage();
    fitPage();
}

void PrintPreview::showPage()
{
    const int page = m_ui->m_idPageNumber->value();
    m_ui->m_idPrevious->setEnabled(page > 1);
    m_ui->m_idNext->setEnabled(page < m_ui->m_idPageNumber->maximum());
    m_ui->m_idPage->update();
}

/// Makes the page as large as the zoom says.
void PrintPreview::fitPage()
{
    const QSizeF paper = m_printer.pageLayout().fullRect(QPageLayout::Point).size();
    const QSize border(2 * borderAroundPage, 2 * borderAroundPage);
    const QSizeF room = m_ui->m_idScroll->maximumViewportSize() - border;
    const int bar = m_ui->m_idScroll->verticalScrollBar()->sizeHint().width();
    const double actual = logicalDpiX() / pointsPerInch;
    double scale = actual;
    switch (m_ui->m_idZoom->currentIndex()) {
    case WholePage:
        scale = std::min(room.width() / paper.width(), room.height() / paper.height());
        break;
    case PageWidth:
        scale = (room.width() - bar) / paper.width();
        break;
    case DoubleSize:
        scale = 2 * actual;
        break;
    default:
        break;
    }
    m_ui->m_idPage->setFixedSize((paper * scale).toSize().expandedTo({1, 1}));
}

double PrintPreview::dotsPerPixel() const
{
    const QRect paper = m_printer.pageLayout().fullRectPixels(m_printer.resolution());
    return static_cast<double>(paper.width()) / m_ui->m_idPage->width();
}

void PrintPreview::paintPage() const
{
    QPainter painter(m_ui->m_idPage);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(m_ui->m_idPage->rect(), Qt::white);
    painter.scale(1 / dotsPerPixel(), 1 / dotsPerPixel());
    painter.translate(m_printer.pageLayout().paintRectPixels(m_printer.resolution()).topLeft());
    m_pages->paint(painter, m_ui->m_idPageNumber->value() - 1);
}

bool PrintPreview::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->m_idPage && event->type() == QEvent::Paint) {
        paintPage();
        return true;
    }
    // The field would go back by ten pages at Page Down, and keep the shortcut from it.
    if (watched == m_ui->m_idPageNumber && event->type() == QEvent::ShortcutOverride) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
            event->ignore();
            return true;
        }
    }
    if (watched == m_ui->m_idScroll->viewport() && event->type() == QEvent::Resize)
        fitPage();
    return QDialog::eventFilter(watched, event);
}

} // namespace tomely
