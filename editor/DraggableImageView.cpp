#include "editor/DraggableImageView.h"

#include "editor/PictureTransfer.h"
#include "platform/widgets/MixedColor.h"
#include "platform/widgets/SymbolicIcon.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int frameRoom = 3; // between the edge and the picture, in points, for the widest frame
constexpr qreal cornerRadius = 4;
constexpr int largestDragSide = 512; // in points; a larger one would hide where it shall go

// A dialog that has just closed hands the focus back within this time, which takes any tool tip
// away.
constexpr int refusalAgainWithin = 2000; // in milliseconds

QFont smaller(QFont font)
{
    constexpr double share = 0.85;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * share);
    else
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * share)));
    return font;
}

/// Some centred words in an empty well and the room that they take.
struct EmptyLine {
    QString text;
    QFont font;
    QSizeF size;
};

EmptyLine emptyLine(const QString& text, const QFont& font, qreal width)
{
    constexpr qreal unlimited = 1 << 20;
    const QRectF bounds = QFontMetricsF(font).boundingRect(
        QRectF(0, 0, width, unlimited), Qt::AlignHCenter | Qt::TextWordWrap, text);
    return {text, font, bounds.size()};
}

} // namespace

DraggableImageView::DraggableImageView(QWidget* parent) : ImageView(parent)
{
    setPictureMargin(frameRoom);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(tr("Drop or paste a picture here, or press Return to choose a file."));
    setAccessibleDescription(tr("No picture"));
}

DraggableImageView::~DraggableImageView() = default;

void DraggableImageView::setPicture(const Picture& picture)
{
    m_picture = picture;
    m_decodedFor = {};
    setImage({});
    setAccessibleDescription(m_picture.isValid()
            ? tr("%1 by %2 pixels").arg(m_picture.size().width()).arg(m_picture.size().height())
            : tr("No picture"));
}

void DraggableImageView::setBound(QSize bound)
{
    m_bound = bound;
    updateGeometry();
    update();
}

QSize DraggableImageView::sizeHint() const
{
    if (m_bound.isEmpty())
        return ImageView::sizeHint();
    return m_bound + 2 * QSize(frameRoom, frameRoom);
}

bool DraggableImageView::offer(const Picture& picture)
{
    if (!picture.isValid()) {
        tellRefusal();
        return false;
    }
    setPicture(picture);
    Q_EMIT pictureChanged();
    return true;
}

void DraggableImageView::tellRefusal()
{
    m_refusalTold.setRemainingTime(refusalAgainWithin);
    showRefusal();
}

void DraggableImageView::showRefusal()
{
    if (isVisible())
        QToolTip::showText(
            mapToGlobal(rect().center()), tr("This is not a picture that Tomely can read."), this);
}

bool DraggableImageView::event(QEvent* event)
{
    const bool handled = ImageView::event(event);
    // The tip goes away with these; after a dialog they come as a matter of course.
    const bool tipGoes =
        event->type() == QEvent::WindowActivate || event->type() == QEvent::FocusIn;
    if (tipGoes && !m_refusalTold.hasExpired())
        QTimer::singleShot(0, this, &DraggableImageView::showRefusal);
    return handled;
}

// The clipboard

bool DraggableImageView::copy()
{
    auto copied = clipboardMimeData(m_picture);
    if (!copied)
        return false;
    QGuiApplication::clipboard()->setMimeData(copied.release());
    return true;
}

void DraggableImageView::cut()
{
    if (copy())
        Q_EMIT clearRequested();
}

void DraggableImageView::paste()
{
    const QMimeData* const offered = QGuiApplication::clipboard()->mimeData();
    offer(offered ? pictureFrom(*offered) : Picture());
}

// Keys and menu

void DraggableImageView::keyPressEvent(QKeyEvent* event)
{
    if (!handleEditKey(*event) && !handlePlainKey(*event))
        ImageView::keyPressEvent(event);
}

bool DraggableImageView::handleEditKey(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste))
        paste();
    else if (event.matches(QKeySequence::Copy))
        copy();
    else if (event.matches(QKeySequence::Cut))
        cut();
    else
        return false;
    return true;
}

bool DraggableImageView::handlePlainKey(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    // The menu key itself is told by the platform.
    if (event.key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier) {
        QContextMenuEvent menuEvent(
            QContextMenuEvent::Keyboard, rect().center(), mapToGlobal(rect().center()));
        QCoreApplication::sendEvent(this, &menuEvent);
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (!m_picture.isValid())
            return false;
        Q_EMIT clearRequested();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event.isAutoRepeat())
            Q_EMIT pickRequested();
        return true;
    default:
        return false;
    }
}

QMenu* DraggableImageView::makeMenu()
{
    auto* const menu = new QMenu(this);
    menu->setObjectName("pictureMenu"_L1);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [menu](QLatin1StringView name, const QString& text, bool enabled) {
        QAction* const action = menu->addAction(text);
        action->setObjectName(name);
        action->setEnabled(enabled);
        return action;
    };
    const QMimeData* const offered = QGuiApplication::clipboard()->mimeData();
    const bool held = m_picture.isValid();
    connect(add("choosePicture"_L1, tr("Choose &Picture…"), true), &QAction::triggered, this,
        &DraggableImageView::pickRequested);
    menu->addSeparator();
    connect(add("copyPicture"_L1, tr("&Copy"), held), &QAction::triggered, this,
        &DraggableImageView::copy);
    connect(add("pastePicture"_L1, tr("Pas&te"), offered && offersPicture(*offered)),
        &QAction::triggered, this, &DraggableImageView::paste);
    menu->addSeparator();
    connect(add("clearPicture"_L1, tr("C&lear"), held), &QAction::triggered, this,
        &DraggableImageView::clearRequested);
    return menu;
}

void DraggableImageView::contextMenuEvent(QContextMenuEvent* event)
{
    // A press of the other button meanwhile must not become a drag under the menu.
    setDownEvent(nullptr);
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    makeMenu()->popup(byMouse ? event->globalPos() : mapToGlobal(rect().center()));
}

// Dragging out

void DraggableImageView::setDownEvent(std::unique_ptr<QMouseEvent> event)
{
    m_downEvent = std::move(event);
}

void DraggableImageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setDownEvent(std::unique_ptr<QMouseEvent>(event->clone()));
}

void DraggableImageView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_downEvent || !(event->buttons() & Qt::LeftButton))
        return;
    const QPointF way = event->position() - m_downEvent->position();
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    // Taken before the drag: one press starts one drag, and the well may be gone after it.
    const std::unique_ptr<QMouseEvent> down = std::move(m_downEvent);
    if (m_picture.isValid())
        startDrag(*down);
}

void DraggableImageView::mouseReleaseEvent(QMouseEvent*)
{
    setDownEvent(nullptr);
}

void DraggableImageView::startDrag(const QMouseEvent& down)
{
    const QPixmap picture = dragPicture();
    if (picture.isNull())
        return;
    auto* const drag = new QDrag(this); // deleted by the toolkit when it ends
    drag->setMimeData(dragData().release());
    drag->setPixmap(picture);
    drag->setHotSpot(dragHotSpot(down.position()));
    drag->exec(dragActions());
}

std::unique_ptr<QMimeData> DraggableImageView::dragData() const
{
    return tiffMimeData(m_picture);
}

QSize DraggableImageView::dragSize() const
{
    const QSize size = m_picture.size();
    const QSize largest(largestDragSide, largestDragSide);
    if (size.boundedTo(largest) == size)
        return size;
    return size.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QPixmap DraggableImageView::dragPicture() const
{
    const QSizeF points = dragSize();
    const QSize pixels = (points * devicePixelRatioF()).toSize();
    const QImage image = m_picture.imageFor(pixels);
    if (image.isNull())
        return {};
    QPixmap faded(pixels);
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setOpacity(0.5);
    painter.drawImage(QRectF(QPointF(), QSizeF(pixels)), image);
    painter.end();
    faded.setDevicePixelRatio(devicePixelRatioF());
    return faded;
}

QPoint DraggableImageView::dragHotSpot(QPointF position) const
{
    const QRectF shown = pictureRect();
    const QSizeF size = dragSize();
    if (shown.isEmpty() || size.isEmpty())
        return {};
    const QPointF within = position - shown.topLeft();
    const qreal across = std::clamp(within.x() / shown.width(), 0.0, 1.0);
    const qreal down = std::clamp(within.y() / shown.height(), 0.0, 1.0);
    return QPointF(across * size.width(), down * size.height()).toPoint();
}

// Dropping

void DraggableImageView::setLit(bool lit)
{
    m_lit = lit;
    update();
}

void DraggableImageView::dragEnterEvent(QDragEnterEvent* event)
{
    // Put back where it came from, a picture is not a change.
    setLit(event->source() != this && event->possibleActions().testFlag(Qt::CopyAction)
        && offersPicture(*event->mimeData()));
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(m_lit);
}

void DraggableImageView::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(m_lit);
}

void DraggableImageView::dragLeaveEvent(QDragLeaveEvent*)
{
    setLit(false);
}

void DraggableImageView::dropEvent(QDropEvent* event)
{
    setLit(false);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(event->source() != this && offer(pictureFrom(*event->mimeData())));
}

// Painting

void DraggableImageView::focusInEvent(QFocusEvent* event)
{
    ImageView::focusInEvent(event);
    update();
}

void DraggableImageView::focusOutEvent(QFocusEvent* event)
{
    ImageView::focusOutEvent(event);
    update();
}

void DraggableImageView::decodeForScreen()
{
    // Sharp on a double screen at once, so that a window moved there need not decode again.
    const QSize wanted = (QSizeF(size()) * std::max(2.0, devicePixelRatioF())).toSize();
    if (!m_picture.isValid() || wanted.boundedTo(m_decodedFor) == wanted)
        return;
    if (m_decodedFor.isValid() && image().isNull())
        return; // it is damaged, at any size
    m_decodedFor = wanted;
    setImage(m_picture.imageFor(wanted));
}

void DraggableImageView::paintEvent(QPaintEvent*)
{
    decodeForScreen();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(painter);
    if (image().isNull())
        paintEmpty(painter);
    else
        paintPicture(painter);
}

void DraggableImageView::paintFrame(QPainter& painter) const
{
    const QColor ground = palette().color(QPalette::Base);
    // A window that a drag comes to is mostly not the active one, yet must answer in full colour.
    const QColor strong = palette().color(QPalette::Active, QPalette::Highlight);
    QPen pen(between(ground, palette().color(QPalette::Text), 0.35F), 1);
    if (hasFocus())
        pen = QPen(strong, 2);
    if (m_lit)
        pen = QPen(strong, frameRoom);
    painter.setPen(pen);
    painter.setBrush(m_lit ? between(ground, strong, 0.15F) : ground);
    const qreal half = pen.widthF() / 2;
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(half, half, -half, -half), cornerRadius, cornerRadius);
}

void DraggableImageView::paintEmpty(QPainter& painter) const
{
    constexpr qreal edge = 6;
    constexpr qreal gap = 6;
    const QRectF place = QRectF(rect()).adjusted(edge, edge, -edge, -edge);
    const qreal side =
        std::floor(std::clamp(std::min(place.width(), place.height()) / 3, 16.0, 48.0));
    const QString hint =
        m_picture.isValid() ? tr("This picture is damaged") : tr("Drop a picture here");
    QList<EmptyLine> lines;
    qreal height = side;
    const auto addIfItFits = [&](const EmptyLine& line) {
        if (line.size.width() > place.width() || height + gap + line.size.height() > place.height())
            return;
        height += gap + line.size.height();
        lines.append(line);
    };
    addIfItFits(emptyLine(hint, font(), place.width()));
    if (!m_bound.isEmpty()) {
        const QString size = tr("%1\u00A0×\u00A0%2", "width and height of a picture in pixels")
                                 .arg(m_bound.width())
                                 .arg(m_bound.height());
        addIfItFits(emptyLine(size, smaller(font()), place.width()));
    }
    qreal y = std::floor(place.center().y() - height / 2);
    const QRect icon(static_cast<int>(std::round(place.center().x() - side / 2)),
        static_cast<int>(y), static_cast<int>(side), static_cast<int>(side));
    painter.setOpacity(0.5); // as faint as the text that stands for something missing
    symbolicIcon(u"picture"_s).paint(&painter, icon);
    painter.setOpacity(1);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    y += side;
    for (const EmptyLine& line : lines) {
        y += gap;
        painter.setFont(line.font);
        painter.drawText(QRectF(place.left(), y, place.width(), line.size.height()),
            Qt::AlignHCenter | Qt::TextWordWrap, line.text);
        y += line.size.height();
    }
}

} // namespace tomely
