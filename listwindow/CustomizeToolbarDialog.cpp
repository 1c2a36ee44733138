#include "listwindow/CustomizeToolbarDialog.h"

#include "listwindow/ToolbarConfiguration.h"
#include "listwindow/ToolbarItems.h"
#include "listwindow/ui_CustomizeToolbarDialog.h"

#include <QAbstractListModel>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const QString itemFormat = u"application/x-tomely-toolbar-item"_s;
const QString rowFormat = u"application/x-tomely-toolbar-row"_s; // it comes from the row

constexpr QMargins margins{8, 5, 8, 5}; // around an item
constexpr int paletteLines = 2;
constexpr int firstWidthInCharacters = 135;

bool comesFromRow(const QMimeData* data)
{
    return data->hasFormat(rowFormat);
}

/// Toolbar items as a list from which they can be dragged.
class ToolbarItemModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_identifiers.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const ToolbarItem& item = *toolbarItem(m_identifiers.at(index.row()));
        if (role == Qt::DisplayRole)
            return toolbarItemLabel(item);
        if (role == Qt::DecorationRole)
            return toolbarItemIcon(item);
        if (role == Qt::UserRole)
            return QString(item.identifier);
        return {};
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        // Dropped between items or beside them, never onto one.
        return index.isValid() ? QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled
                               : Qt::ItemIsDropEnabled;
    }

    QStringList mimeTypes() const override { return {itemFormat}; }

    QMimeData* mimeData(const QModelIndexList& indexes) const override
    {
        auto* const data = new QMimeData;
        data->setData(itemFormat, m_identifiers.at(indexes.front().row()).toUtf8());
        return data;
    }

protected:
    QStringList m_identifiers;
};

/// All items there are. What comes back from the row is taken, and with that removed there.
class PaletteModel : public ToolbarItemModel {
public:
    explicit PaletteModel(QObject* parent) : ToolbarItemModel(parent)
    {
        for (const ToolbarItem& item : allowedToolbarItems())
            m_identifiers.append(item.identifier);
    }

    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

    bool canDropMimeData(
        const QMimeData* data, Qt::DropAction, int, int, const QModelIndex&) const override
    {
        return comesFromRow(data);
    }

    bool dropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex&) override
    {
        return comesFromRow(data);
    }
};

/// Items as a toolbar shows them: the label under the icon.
class ItemDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize text = option.fontMetrics.size(0, index.data().toString());
        const QSize icon = option.decorationSize;
        return QSize(std::max(text.width(), icon.width()), text.height() + icon.height())
            .grownBy(margins);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override
    {
        const QStyle& style = *option.widget->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
        const QRect content = option.rect.marginsRemoved(margins);
        QRect icon({}, option.decorationSize);
        icon.moveCenter(content.center());
        icon.moveTop(content.top());
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        index.data(Qt::DecorationRole)
            .value<QIcon>()
            .paint(painter, icon, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
        style.drawItemText(painter, content, Qt::AlignHCenter | Qt::AlignBottom, option.palette,
            true, index.data().toString(), isSelected ? QPalette::HighlightedText : QPalette::Text);
        if (!option.state.testFlag(QStyle::State_HasFocus))
            return;
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
};

void setUpView(QListView& view, QAbstractListModel& model)
{
    const int icon = view.style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, &view);
    view.setIconSize({icon, icon});
    view.setItemDelegate(new ItemDelegate(&view));
    view.setModel(&model);
    view.setFlow(QListView::LeftToRight);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setDragDropMode(QAbstractItemView::DragDrop);
}

} // namespace

/// The toolbar as it is configured.
class ToolbarRowModel : public ToolbarItemModel {
public:
    ToolbarRowModel(ToolbarConfiguration& configuration, QObject* parent)
        : ToolbarItemModel(parent)
        , m_configuration(configuration)
    {
        m_identifiers = configuration.items();
        connect(&configuration, &ToolbarConfiguration::changed, this, [this] { follow(); });
    }

    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }

    Qt::DropActions supportedDropActions() const override
    {
        return Qt::CopyAction | Qt::MoveAction;
    }

    QMimeData* mimeData(const QModelIndexList& indexes) const override
    {
        QMimeData* const data = ToolbarItemModel::mimeData(indexes);
        data->setData(rowFormat, {});
        return data;
    }

    bool dropMimeData(
        const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex&) override
    {
        const QString identifier = QString::fromUtf8(data->data(itemFormat));
        if (!toolbarItem(identifier))
            return false;
        insert(identifier, row < 0 ? rowCount() : row);
        return true;
    }

    bool moveRows(const QModelIndex& sourceParent, int source, int count,
        const QModelIndex& targetParent, int target) override
    {
        if (count != 1 || !beginMoveRows(sourceParent, source, source, targetParent, target))
            return false;
        m_identifiers.move(source, target > source ? target - 1 : target);
        endMoveRows();
        m_configuration.setItems(m_identifiers);
        return true;
    }

    bool removeRows(int row, int count, const QModelIndex& parent) override
    {
        beginRemoveRows(parent, row, row + count - 1);
        m_identifiers.remove(row, count);
        endRemoveRows();
        m_configuration.setItems(m_identifiers);
        return true;
    }

    /// Puts an item in front of the one at a place; one that there can be only once moves there.
    void insert(const QString& identifier, int place)
    {
        const auto old = static_cast<int>(m_identifiers.indexOf(identifier));
        if (old >= 0 && !toolbarItem(identifier)->isSpacer()) {
            moveRow({}, old, {}, place);
            return;
        }
        beginInsertRows({}, place, place);
        m_identifiers.insert(place, identifier);
        endInsertRows();
        m_configuration.setItems(m_identifiers);
    }

private:
    void follow()
    {
        const QStringList identifiers = m_configuration.items();
        if (identifiers == m_identifiers)
            return; // the change was made here
        beginResetModel();
        m_identifiers = identifiers;
        endResetModel();
    }

    ToolbarConfiguration& m_configuration;
};

CustomizeToolbarDialog::CustomizeToolbarDialog(ToolbarConfiguration& configuration, QWidget* parent)
    : QDialog(parent)
    , m_configuration(configuration)
    , m_ui(std::make_unique<Ui::CustomizeToolbarDialog>())
    , m_rowModel(new ToolbarRowModel(configuration, this))
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setUpViews();
    connectControls();
    showDisplay();
    updateButtons();
}

CustomizeToolbarDialog::~CustomizeToolbarDialog() = default;

void CustomizeToolbarDialog::setUpViews()
{
    QListView& palette = *m_ui->m_idPalette;
    setUpView(palette, *new PaletteModel(this));
    palette.setWrapping(true);
    palette.setResizeMode(QListView::Adjust);
    palette.setDropIndicatorShown(false);
    palette.setCurrentIndex(palette.model()->index(0, 0));
    palette.setFocus();
    QListView& row = *m_ui->m_idRow;
    setUpView(row, *m_rowModel);
    row.setDefaultDropAction(Qt::MoveAction);
    const int line = palette.sizeHintForRow(0);
    const int frame = 2 * palette.frameWidth();
    palette.setMinimumHeight(paletteLines * line + frame);
    const QScrollBar* const scrollBar = row.horizontalScrollBar();
    const auto fitHeight = [&row, scrollBar, height = line + frame] {
        row.setFixedHeight(
            height + (scrollBar->maximum() > 0 ? scrollBar->sizeHint().height() : 0));
    };
    connect(scrollBar, &QScrollBar::rangeChanged, this, fitHeight);
    fitHeight();
    const int width = firstWidthInCharacters * fontMetrics().averageCharWidth();
    resize(std::min(width, screen()->availableSize().width()), minimumSizeHint().height());
}

void CustomizeToolbarDialog::connectControls()
{
    connect(&m_configuration, &ToolbarConfiguration::changed, this, [this] {
        showDisplay();
        updateButtons();
    });
    const auto selectionChanged = &QItemSelectionModel::selectionChanged;
    connect(m_ui->m_idPalette->selectionModel(), selectionChanged, this,
        &CustomizeToolbarDialog::updateButtons);
    connect(m_ui->m_idRow->selectionModel(), selectionChanged, this,
        &CustomizeToolbarDialog::updateButtons);
    connect(m_ui->m_idPalette, &QListView::doubleClicked, this, &CustomizeToolbarDialog::addItem);
    connect(m_ui->m_idAdd, &QPushButton::clicked, this, &CustomizeToolbarDialog::addItem);
    connect(m_ui->m_idRemove, &QPushButton::clicked, this, &CustomizeToolbarDialog::removeItem);
    connect(
        new QShortcut(QKeySequence::Delete, m_ui->m_idRow, nullptr, nullptr, Qt::WidgetShortcut),
        &QShortcut::activated, this, &CustomizeToolbarDialog::removeItem);
    connect(m_ui->m_idMoveLeft, &QPushButton::clicked, this, [this] { moveItem(-1); });
    connect(m_ui->m_idMoveRight, &QPushButton::clicked, this, [this] { moveItem(1); });
    connect(m_ui->m_idRestoreDefaultSet, &QPushButton::clicked, &m_configuration,
        &ToolbarConfiguration::restoreDefaultItems);
    connect(m_ui->m_idShow, &QComboBox::activated, &m_configuration,
        [this](int index) { m_configuration.setDisplay(static_cast<ToolbarDisplay>(index)); });
}

void CustomizeToolbarDialog::showDisplay()
{
    m_ui->m_idShow->setCurrentIndex(static_cast<int>(m_configuration.display()));
}

void CustomizeToolbarDialog::updateButtons()
{
    const QString chosen = chosenIdentifier();
    const ToolbarItem* const item = toolbarItem(chosen);
    m_ui->m_idAdd->setEnabled(
        item && (item->isSpacer() || !m_configuration.items().contains(chosen)));
    const int place = selectedPlace();
    m_ui->m_idRemove->setEnabled(place >= 0);
    m_ui->m_idMoveLeft->setEnabled(place > 0);
    m_ui->m_idMoveRight->setEnabled(place >= 0 && place < m_rowModel->rowCount() - 1);
}

QString CustomizeToolbarDialog::chosenIdentifier() const
{
    const QModelIndexList chosen = m_ui->m_idPalette->selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? QString() : chosen.front().data(Qt::UserRole).toString();
}

int CustomizeToolbarDialog::selectedPlace() const
{
    const QModelIndexList selected = m_ui->m_idRow->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.front().row();
}

// By keyboard

void CustomizeToolbarDialog::addItem()
{
    if (!m_ui->m_idAdd->isEnabled())
        return;
    const int selected = selectedPlace();
    const int place = selected < 0 ? m_rowModel->rowCount() : selected + 1;
    m_rowModel->insert(chosenIdentifier(), place);
    m_ui->m_idRow->setCurrentIndex(m_rowModel->index(place));
}

void CustomizeToolbarDialog::removeItem()
{
    const int place = selectedPlace();
    if (place < 0)
        return;
    m_rowModel->removeRow(place);
    m_ui->m_idRow->setCurrentIndex(m_rowModel->index(std::min(place, m_rowModel->rowCount() - 1)));
}

void CustomizeToolbarDialog::moveItem(int by)
{
    const int place = selectedPlace();
    // The toolkit counts the place to move to while the item is still where it was.
    m_rowModel->moveRow({}, place, {}, by > 0 ? place + 2 : place - 1);
    m_ui->m_idRow->scrollTo(m_rowModel->index(place + by));
    updateButtons();
}

// Dragging out of the row

void CustomizeToolbarDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (comesFromRow(event->mimeData()))
        event->acceptProposedAction();
}

void CustomizeToolbarDialog::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction(); // the row removes what was moved away
}

} // namespace tomely
