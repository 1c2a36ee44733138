#include "listwindow/CommandToolbar.h"

#include "listwindow/CommandActions.h"
#include "listwindow/ToolbarConfiguration.h"
#include "listwindow/ToolbarItems.h"
#include "platform/widgets/SymbolicIcon.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int fewestSearchCharacters = 24; // below that the search is no longer of use
constexpr int iconPerTextHeight = 5; // quarters
constexpr int labelMargin = 4; // to stand in line with the texts of buttons

/// A line of text that gives way where there is too little room for it.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(
            &painter, rect(), Qt::AlignCenter, palette(), isEnabled(), shown, foregroundRole());
    }
};

Qt::ToolButtonStyle buttonStyle(ToolbarDisplay display)
{
    switch (display) {
    case ToolbarDisplay::IconOnly:
        return Qt::ToolButtonIconOnly;
    case ToolbarDisplay::TextOnly:
        return Qt::ToolButtonTextOnly;
    case ToolbarDisplay::IconAndText:
        break;
    }
    return Qt::ToolButtonTextUnderIcon;
}

/// The view in the middle of the item's height and the label at the height of the buttons' texts.
QWidget* searchItem(QWidget& searchView, QLabel& label)
{
    auto* const item = new QWidget;
    auto* const layout = new QVBoxLayout(item);
    layout->setContentsMargins(labelMargin, 0, labelMargin, labelMargin);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetMinAndMaxSize);
    layout->addStrut(fewestSearchCharacters * item->fontMetrics().averageCharWidth());
    layout->addStretch();
    layout->addWidget(&searchView);
    layout->addStretch();
    layout->addWidget(&label);
    return item;
}

QWidget* space(const QToolBar& toolbar, QSizePolicy::Policy horizontally)
{
    auto* const widget = new QWidget;
    widget->setSizePolicy(horizontally, QSizePolicy::Preferred);
    if (horizontally == QSizePolicy::Fixed)
        widget->setFixedWidth(toolbar.iconSize().width());
    return widget;
}

} // namespace

std::size_t itemsThatFitBeforeSearch(const ToolbarRoom& room)
{
    const auto added = [&room](int sum, int width) {
        return sum + width + room.spacing;
    };
    const int behind = std::accumulate(
        room.itemsAfterSearch.begin(), room.itemsAfterSearch.end(), room.search, added);
    const int all = std::accumulate(
        room.itemsBeforeSearch.begin(), room.itemsBeforeSearch.end(), behind, added);
    if (all <= room.available)
        return room.itemsBeforeSearch.size();
    int used = room.search + room.spacing + room.extensionButton;
    std::size_t count = 0;
    for (const int width : room.itemsBeforeSearch) {
        used = added(used, width);
        if (used > room.available)
            break;
        ++count;
    }
    return count;
}

CommandToolbar::CommandToolbar(const CommandActions& actions, ToolbarConfiguration& configuration,
    QWidget& searchView, QWidget* parent)
    : QToolBar(tr("Toolbar"), parent)
    , m_actions(actions)
    , m_configuration(configuration)
{
    setObjectName("toolbar"_L1);
    setMovable(false);
    setFloatable(false);
    if (auto* const extension = findChild<QToolButton*>("qt_toolbar_ext_button"_L1)) {
        extension->setIcon(symbolicIcon(u"more"_s)); // the style's own is black in any palette
        extension->setAccessibleName(tr("More commands"));
        extension->setToolTip(tr("More commands"));
    }
    m_searchLabel = new ElidedLabel;
    m_searchLabel->setObjectName("m_idSearchLabel"_L1);
    m_searchToolbarItem.setDefaultWidget(searchItem(searchView, *m_searchLabel));
    for (const ToolbarItem& item : allowedToolbarItems()) {
        if (item.kind == ToolbarItemKind::Command)
            m_actions.action(item.command)->setIconText(toolbarItemLabel(item));
        else if (item.kind == ToolbarItemKind::Search)
            setSearchLabel(toolbarItemLabel(item));
    }
    // A window may give up its commands before its widgets.
    connect(&m_actions, &QObject::destroyed, this, [this] { m_itemsBeforeSearch.clear(); });
    connect(qApp, &QApplication::focusChanged, this, &CommandToolbar::noteLostFocus);
    connect(&m_configuration, &ToolbarConfiguration::changed, this,
        &CommandToolbar::configurationChanged);
    updateIconSize();
    configurationChanged();
}

void CommandToolbar::setSearchLabel(const QString& label)
{
    m_searchLabel->setText(label);
}

void CommandToolbar::changeEvent(QEvent* event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateIconSize();
}

void CommandToolbar::updateIconSize()
{
    // In proportion to a large font, and as high as the search view beside the icons is then.
    const int styleSize = style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, this);
    const int fontSize = fontMetrics().height() * iconPerTextHeight / 4;
    const int size = std::max(styleSize, fontSize);
    setIconSize({size, size});
}

// What is shown

void CommandToolbar::configurationChanged()
{
    const ToolbarDisplay display = m_configuration.display();
    setToolButtonStyle(buttonStyle(display));
    m_searchLabel->setVisible(display != ToolbarDisplay::IconOnly);
    const QStringList identifiers = m_configuration.items();
    if (identifiers != m_identifiers)
        showItems(identifiers);
}

void CommandToolbar::showItems(const QStringList& identifiers)
{
    clear();
    m_spacers.clear();
    m_lostFocus = nullptr;
    m_identifiers = identifiers;
    for (const QString& identifier : identifiers)
        addAction(actionFor(*toolbarItem(identifier)));
    const QList<QAction*> shown = actions();
    const auto search = std::ranges::find(shown, &m_searchToolbarItem);
    m_itemsBeforeSearch.clear();
    if (search != shown.end())
        m_itemsBeforeSearch.assign(shown.begin(), search);
    m_staying = m_itemsBeforeSearch.size();
}

QAction* CommandToolbar::actionFor(const ToolbarItem& item)
{
    if (item.kind == ToolbarItemKind::Command)
        return m_actions.action(item.command);
    if (item.kind == ToolbarItemKind::Search)
        return &m_searchToolbarItem;
    if (item.kind == ToolbarItemKind::Separator) {
        m_spacers.push_back(std::make_unique<QAction>());
        m_spacers.back()->setSeparator(true);
    } else {
        auto spacer = std::make_unique<QWidgetAction>(nullptr);
        const bool isFlexible = item.kind == ToolbarItemKind::FlexibleSpace;
        spacer->setDefaultWidget(
            space(*this, isFlexible ? QSizePolicy::Expanding : QSizePolicy::Fixed));
        m_spacers.push_back(std::move(spacer));
    }
    return m_spacers.back().get();
}

// Too little room

bool CommandToolbar::event(QEvent* event)
{
    const bool isDone = QToolBar::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        keepSearchInSight();
    return isDone;
}

CommandToolbar::~CommandToolbar()
{
    // Its parts lose the focus while they go, and nobody is there any more to take note of it.
    disconnect(qApp, nullptr, this, nullptr);
}

void CommandToolbar::noteLostFocus(QWidget* old)
{
    // The toolkit hides the search for a moment before it can be put where it stays.
    const QWidget* const search = m_searchToolbarItem.defaultWidget();
    if (old && search->isAncestorOf(old) && !search->isVisible())
        m_lostFocus = old;
}

void CommandToolbar::keepSearchInSight()
{
    // The toolkit drops what stands last. So what must go to let the search stay stands behind it.
    if (m_itemsBeforeSearch.empty() || isExtensionOpen())
        return;
    const std::size_t staying = itemsThatFitBeforeSearch(room());
    for (; m_staying > staying; --m_staying) {
        const qsizetype search = actions().indexOf(&m_searchToolbarItem);
        insertAction(actions().value(search + 1), m_itemsBeforeSearch.at(m_staying - 1));
    }
    for (; m_staying < staying; ++m_staying)
        insertAction(&m_searchToolbarItem, m_itemsBeforeSearch.at(m_staying));
    if (m_lostFocus && m_lostFocus->isVisible()) {
        m_lostFocus->setFocus(Qt::OtherFocusReason);
        m_lostFocus = nullptr;
    }
}

ToolbarRoom CommandToolbar::room()
{
    ToolbarRoom room;
    for (QAction* const action : m_itemsBeforeSearch)
        room.itemsBeforeSearch.push_back(itemWidth(*action));
    room.search = itemWidth(m_searchToolbarItem);
    const QList<QAction*> shown = actions();
    const qsizetype configured = m_identifiers.indexOf("search"_L1);
    for (qsizetype index = configured + 1; index < shown.size(); ++index)
        room.itemsAfterSearch.push_back(itemWidth(*shown.at(index)));
    room.spacing = layout()->spacing();
    room.extensionButton = style()->pixelMetric(QStyle::PM_ToolBarExtensionExtent, nullptr, this);
    const QMargins margins = layout()->contentsMargins();
    room.available = width() - margins.left() - margins.right();
    return room;
}

int CommandToolbar::itemWidth(QAction& action) const
{
    QWidget* const widget = widgetForAction(&action);
    return layout()->itemAt(layout()->indexOf(widget))->minimumSize().width();
}

bool CommandToolbar::isExtensionOpen() const
{
    // The button has a name of the toolkit's own, by which style sheets find it too.
    const auto* const button = findChild<QToolButton*>("qt_toolbar_ext_button"_L1);
    return button && button->isChecked();
}

// How it is shown

void CommandToolbar::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = new QMenu(this);
    menu->setObjectName("toolbarContextMenu"_L1);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* const displays = new QActionGroup(menu);
    const auto addDisplay = [&](const QString& text, ToolbarDisplay display) {
        QAction* const action = displays->addAction(menu->addAction(text));
        action->setCheckable(true);
        action->setChecked(display == m_configuration.display());
        connect(action, &QAction::triggered, &m_configuration,
            [this, display] { m_configuration.setDisplay(display); });
    };
    addDisplay(tr("&Icon and Text"), ToolbarDisplay::IconAndText);
    addDisplay(tr("Icon &Only"), ToolbarDisplay::IconOnly);
    addDisplay(tr("Te&xt Only"), ToolbarDisplay::TextOnly);
    menu->addSeparator();
    menu->addAction(m_actions.action(CommandId::CustomizeToolbar));
    menu->popup(event->globalPos());
    event->accept();
}

} // namespace tomely
