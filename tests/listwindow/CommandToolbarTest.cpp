#include "listwindow/CommandToolbar.h"

#include "listwindow/CommandActions.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/UserDefaults.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

struct Window {
    explicit Window(ToolbarConfiguration& configuration)
        : table(new QTableWidget)
        , actions(*table)
        , search(new QLineEdit)
        , toolbar(new CommandToolbar(actions, configuration, *search, &window))
    {
        search->setFixedWidth(250);
        window.setCentralWidget(table);
        window.addToolBar(toolbar);
        window.resize(1200, 300);
        actions.update({.hasSelectedBook = true, .hasSelectedGroup = true});
    }

    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    /// Identifies each item from left to right: its text, "|" or "search"; spaces are "".
    QStringList items() const
    {
        QStringList texts;
        for (QAction* const action : toolbar->actions()) {
            const QWidget* const widget = toolbar->widgetForAction(action);
            const auto* const button = qobject_cast<const QToolButton*>(widget);
            if (action->isSeparator())
                texts.append(u"|"_s);
            else if (button)
                texts.append(button->text());
            else
                texts.append(widget->isAncestorOf(search) ? u"search"_s : QString());
        }
        return texts;
    }

    /// Whether what a button stands for is in sight.
    bool shows(CommandId id) const
    {
        return toolbar->widgetForAction(actions.action(id))->isVisible();
    }

    QToolButton& extension() const
    {
        return *toolbar->findChild<QToolButton*>(u"qt_toolbar_ext_button"_s);
    }

    QMainWindow window;
    QTableWidget* table; // children of the window, as is the toolbar
    CommandActions actions; // gone before the toolbar, as in a window's controller
    QPointer<QLineEdit> search;
    CommandToolbar* toolbar;
};

} // namespace

class CommandToolbarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsTheDefaultSet();
    void showsWhatIsConfigured();
    void standsStill();
    void showsIconsAndTexts_data();
    void showsIconsAndTexts();
    void namesTheSearch();
    void showsTheLabelOfTheSearchWhereTextsAre();
    void shortensALabelThatIsTooLong();
    void buttonsGiveCommands();
    void buttonsAreEnabledAsTheCommandsAre();
    void buttonsTellTheirKey();
    void buttonsHaveANameWhateverIsShown();
    void followsTheConfigurationInAllWindows();
    void keepsTheSearchViewWhenItIsTakenOut();
    void takesWidthFromTheSearchView();
    void givesTheSearchSomeRoomAtLeast();
    void growsAFlexibleSpace();
    void leavesASpace();
    void growsIconsWithTheFont();
    void keepsTheSearchInANarrowWindow();
    void keepsTheCaretInTheSearchWhileTheWindowNarrows();
    void offersInTheExtensionWhatDoesNotFit();
    void putsItemsBackWhenThereIsRoomAgain();
    void decidesWhatFits_data();
    void decidesWhatFits();
    void hasAContextMenu();
    void changesTheDisplayByTheContextMenu();

private:
    QMenu& contextMenu(const Window& window) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
        QCoreApplication::sendEvent(window.toolbar, &event);
        return *window.toolbar->findChild<QMenu*>(u"toolbarContextMenu"_s);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<ToolbarConfiguration> m_configuration;
};

void CommandToolbarTest::init()
{
    m_configuration.reset();
    m_defaults.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
    m_configuration = std::make_unique<ToolbarConfiguration>(*m_defaults);
}

void CommandToolbarTest::showsTheDefaultSet()
{
    const Window window(*m_configuration);
    QCOMPARE(window.toolbar->objectName(), u"toolbar"_s);
    QCOMPARE(window.items(),
        QStringList({u"Add Book"_s, u"Edit Book"_s, u"Delete Book"_s, u"Remove"_s, u"|"_s,
            u"Add Group"_s, u"Delete Group"_s, u""_s, u"Columns"_s, u"|"_s, u"search"_s}));
}

void CommandToolbarTest::showsWhatIsConfigured()
{
    m_configuration->setItems(
        {u"separator"_s, u"search"_s, u"space"_s, u"separator"_s, u"customizetoolbar"_s});
    const Window window(*m_configuration);
    QCOMPARE(window.items(), QStringList({u"|"_s, u"search"_s, u""_s, u"|"_s, u"Customise"_s}));
}

void CommandToolbarTest::standsStill()
{
    const Window window(*m_configuration);
    QVERIFY(!window.toolbar->isMovable());
    QVERIFY(!window.toolbar->isFloatable());
}

void CommandToolbarTest::showsIconsAndTexts_data()
{
    QTest::addColumn<ToolbarDisplay>("display");
    QTest::addColumn<Qt::ToolButtonStyle>("style");
    QTest::newRow("both") << ToolbarDisplay::IconAndText << Qt::ToolButtonTextUnderIcon;
    QTest::newRow("icons") << ToolbarDisplay::IconOnly << Qt::ToolButtonIconOnly;
    QTest::newRow("texts") << ToolbarDisplay::TextOnly << Qt::ToolButtonTextOnly;
}

void CommandToolbarTest::showsIconsAndTexts()
{
    QFETCH(const ToolbarDisplay, display);
    QFETCH(const Qt::ToolButtonStyle, style);
    m_configuration->setDisplay(display);
    const Window window(*m_configuration);
    QCOMPARE(window.toolbar->toolButtonStyle(), style);
    const auto* const button = qobject_cast<QToolButton*>(
        window.toolbar->widgetForAction(window.actions.action(CommandId::AddBook)));
    QCOMPARE(button->toolButtonStyle(), style);
    QVERIFY(!button->icon().isNull());
}

void CommandToolbarTest::namesTheSearch()
{
    const Window window(*m_configuration);
    const auto* const label = window.window.findChild<QLabel*>(u"m_idSearchLabel"_s);
    QCOMPARE(label->text(), u"Author & Title"_s);
    window.toolbar->setSearchLabel(u"Publisher"_s);
    QCOMPARE(label->text(), u"Publisher"_s);
}

void CommandToolbarTest::showsTheLabelOfTheSearchWhereTextsAre()
{
    Window window(*m_configuration);
    window.show();
    const auto* const label = window.window.findChild<QLabel*>(u"m_idSearchLabel"_s);
    QVERIFY(label->isVisible());
    QTRY_VERIFY(label->mapTo(&window.window, QPoint()).y()
        >= window.search->mapTo(&window.window, QPoint()).y() + window.search->height());
    m_configuration->setDisplay(ToolbarDisplay::IconOnly);
    QVERIFY(!label->isVisible());
    QVERIFY(window.search->isVisible());
    m_configuration->setDisplay(ToolbarDisplay::TextOnly);
    QVERIFY(label->isVisible());
    m_configuration->setDisplay(ToolbarDisplay::IconAndText);
    QVERIFY(label->isVisible());
}

void CommandToolbarTest::shortensALabelThatIsTooLong()
{
    Window window(*m_configuration);
    window.show();
    const int width = window.search->width();
    window.toolbar->setSearchLabel(QString(300, u'w'));
    QCoreApplication::processEvents();
    const auto* const label = window.window.findChild<QLabel*>(u"m_idSearchLabel"_s);
    QVERIFY(label->width() <= width + 20);
    QCOMPARE(window.search->width(), width);
}

void CommandToolbarTest::buttonsGiveCommands()
{
    Window window(*m_configuration);
    window.show();
    QList<CommandId> given;
    connect(&window.actions, &CommandActions::triggered, this,
        [&given](CommandId id) { given.append(id); });
    const QList<CommandId> all{CommandId::AddBook, CommandId::EditBook, CommandId::DeleteBook,
        CommandId::RemoveFromGroup, CommandId::AddGroup, CommandId::DeleteGroup,
        CommandId::CustomizeList};
    for (const CommandId id : all)
        QTest::mouseClick(
            window.toolbar->widgetForAction(window.actions.action(id)), Qt::LeftButton);
    QCOMPARE(given, all);
}

void CommandToolbarTest::buttonsAreEnabledAsTheCommandsAre()
{
    Window window(*m_configuration);
    window.actions.update({.hasSelectedBook = true, .hasSelectedGroup = false});
    const auto isEnabled = [&window](CommandId id) {
        return window.toolbar->widgetForAction(window.actions.action(id))->isEnabled();
    };
    QVERIFY(isEnabled(CommandId::EditBook));
    QVERIFY(!isEnabled(CommandId::RemoveFromGroup));
    QVERIFY(!isEnabled(CommandId::DeleteGroup));
}

void CommandToolbarTest::buttonsTellTheirKey()
{
    const Window window(*m_configuration);
    const auto toolTip = [&window](CommandId id) {
        return window.toolbar->widgetForAction(window.actions.action(id))->toolTip();
    };
    QCOMPARE(toolTip(CommandId::AddGroup), u"New Group (Ctrl+G)"_s);
    QCOMPARE(toolTip(CommandId::RemoveFromGroup), u"Remove from Group"_s);
}

void CommandToolbarTest::buttonsHaveANameWhateverIsShown()
{
    m_configuration->setDisplay(ToolbarDisplay::IconOnly);
    const Window window(*m_configuration);
    QWidget* const button =
        window.toolbar->widgetForAction(window.actions.action(CommandId::DeleteGroup));
    QCOMPARE(
        QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), u"Delete Group"_s);
}

void CommandToolbarTest::followsTheConfigurationInAllWindows()
{
    const Window one(*m_configuration);
    const Window other(*m_configuration);
    m_configuration->setItems({u"addgroup"_s, u"separator"_s});
    m_configuration->setDisplay(ToolbarDisplay::TextOnly);
    for (const Window* const window : {&one, &other}) {
        QCOMPARE(window->items(), QStringList({u"Add Group"_s, u"|"_s}));
        QCOMPARE(window->toolbar->toolButtonStyle(), Qt::ToolButtonTextOnly);
    }
    m_configuration->restoreDefaultItems();
    QCOMPARE(one.items().size(), 11);
    QCOMPARE(other.items(), one.items());
}

void CommandToolbarTest::keepsTheSearchViewWhenItIsTakenOut()
{
    Window window(*m_configuration);
    window.show();
    window.search->setText(u"Emma"_s);
    m_configuration->setItems({u"addbook"_s});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(window.search);
    QVERIFY(!window.search->isVisible());
    m_configuration->setItems({u"addbook"_s, u"search"_s});
    QTRY_VERIFY(window.search->isVisible());
    QCOMPARE(window.search->text(), u"Emma"_s);
    QCOMPARE(window.search->window(), &window.window);
    delete window.toolbar;
    QVERIFY(!window.search);
}

void CommandToolbarTest::takesWidthFromTheSearchView()
{
    m_configuration->setItems({u"search"_s});
    Window window(*m_configuration);
    window.search->setMinimumWidth(300);
    window.search->setMaximumWidth(400);
    window.show();
    const QWidget& item = *window.search->parentWidget();
    QTRY_VERIFY(item.width() <= 420);
    QVERIFY(window.search->width() >= 300);
    window.window.resize(310, 300);
    QTRY_VERIFY(window.window.width() <= 330);
    QVERIFY(window.search->width() >= 300);
}

void CommandToolbarTest::givesTheSearchSomeRoomAtLeast()
{
    m_configuration->setItems({u"search"_s, u"flexiblespace"_s});
    Window window(*m_configuration);
    window.search->setMinimumWidth(1);
    window.search->setMaximumWidth(QWIDGETSIZE_MAX);
    window.show();
    window.window.resize(320, 300);
    QTRY_VERIFY(window.toolbar->width() <= 320);
    QVERIFY(window.search->isVisible());
    QVERIFY(window.search->width() >= 20 * window.search->fontMetrics().averageCharWidth());
}

void CommandToolbarTest::growsAFlexibleSpace()
{
    m_configuration->setItems({u"addbook"_s, u"flexiblespace"_s, u"addgroup"_s});
    Window window(*m_configuration);
    window.show();
    const QWidget& last =
        *window.toolbar->widgetForAction(window.actions.action(CommandId::AddGroup));
    QTRY_VERIFY(last.geometry().right() > window.toolbar->width() - 20);
}

void CommandToolbarTest::leavesASpace()
{
    m_configuration->setItems({u"addbook"_s, u"space"_s, u"addgroup"_s});
    Window window(*m_configuration);
    window.show();
    const QRect first =
        window.toolbar->widgetForAction(window.actions.action(CommandId::AddBook))->geometry();
    const auto gap = [&] {
        return window.toolbar->widgetForAction(window.actions.action(CommandId::AddGroup))->x()
            - first.right();
    };
    QTRY_VERIFY(gap() >= window.toolbar->iconSize().width());
    QVERIFY(gap() < 3 * window.toolbar->iconSize().width());
}

void CommandToolbarTest::growsIconsWithTheFont()
{
    const Window window(*m_configuration);
    const int before = window.toolbar->iconSize().width();
    QFont font = window.toolbar->font();
    font.setPointSize(40);
    window.toolbar->setFont(font);
    QVERIFY(window.toolbar->iconSize().width() > before);
    font.setPointSize(6);
    window.toolbar->setFont(font);
    QCOMPARE(window.toolbar->iconSize().width(),
        window.toolbar->style()->pixelMetric(QStyle::PM_ToolBarIconSize));
}

void CommandToolbarTest::keepsTheSearchInANarrowWindow()
{
    Window window(*m_configuration);
    window.show();
    QVERIFY(!window.extension().isVisible());
    window.window.resize(500, 300);
    QTRY_VERIFY(window.extension().isVisible());
    QTRY_VERIFY(window.search->isVisible());
    QVERIFY(!window.shows(CommandId::CustomizeList));
    QVERIFY(window.shows(CommandId::AddBook));
    QVERIFY(window.search->mapTo(window.toolbar, QPoint(250, 0)).x() <= window.toolbar->width());
}

void CommandToolbarTest::keepsTheCaretInTheSearchWhileTheWindowNarrows()
{
    Window window(*m_configuration);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window.window));
    window.search->setText(u"Emma"_s);
    window.search->setFocus();
    window.search->setCursorPosition(2);
    window.window.resize(500, 300);
    QTRY_VERIFY(window.extension().isVisible());
    QTRY_VERIFY(window.search->hasFocus());
    QCOMPARE(window.search->cursorPosition(), 2);
    QVERIFY(!window.search->hasSelectedText());
    // What the person takes out does not take the focus when it is put back.
    m_configuration->setItems({u"addbook"_s});
    window.table->setFocus();
    m_configuration->setItems({u"search"_s});
    QTRY_VERIFY(window.search->isVisible());
    QVERIFY(window.table->hasFocus());
}

void CommandToolbarTest::offersInTheExtensionWhatDoesNotFit()
{
    Window window(*m_configuration);
    window.show();
    window.window.resize(500, 300);
    QTRY_VERIFY(!window.shows(CommandId::CustomizeList) && window.search->isVisible());
    QTest::mouseClick(&window.extension(), Qt::LeftButton);
    QTRY_VERIFY(window.shows(CommandId::CustomizeList));
    QVERIFY(window.shows(CommandId::DeleteGroup));
    QVERIFY(window.search->isVisible());
}

void CommandToolbarTest::putsItemsBackWhenThereIsRoomAgain()
{
    Window window(*m_configuration);
    window.show();
    const QStringList configured = window.items();
    window.window.resize(500, 300);
    QTRY_VERIFY(window.items() != configured);
    QStringList narrow = window.items();
    std::ranges::sort(narrow);
    QStringList sorted = configured;
    std::ranges::sort(sorted);
    QCOMPARE(narrow, sorted);
    window.window.resize(1200, 300);
    QTRY_COMPARE(window.items(), configured);
    QTRY_VERIFY(window.shows(CommandId::CustomizeList));
}

void CommandToolbarTest::decidesWhatFits_data()
{
    QTest::addColumn<int>("available");
    QTest::addColumn<int>("itemsAfter");
    QTest::addColumn<int>("staying");
    // Three items of 100 and a search of 200, 10 apart; the button for the rest takes 30.
    QTest::newRow("all") << 530 << 0 << 3;
    QTest::newRow("not quite all") << 529 << 0 << 2;
    QTest::newRow("two and the button") << 460 << 0 << 2;
    QTest::newRow("not quite two") << 459 << 0 << 1;
    QTest::newRow("one") << 350 << 0 << 1;
    QTest::newRow("the search alone") << 240 << 0 << 0;
    QTest::newRow("not even that") << 10 << 0 << 0;
    QTest::newRow("all, with one behind") << 640 << 1 << 3;
    QTest::newRow("what is behind goes first") << 639 << 1 << 3;
    QTest::newRow("then what is in front") << 569 << 1 << 2;
}

void CommandToolbarTest::decidesWhatFits()
{
    QFETCH(const int, available);
    QFETCH(const int, itemsAfter);
    QFETCH(const int, staying);
    const ToolbarRoom room{.itemsBeforeSearch = {100, 100, 100},
        .search = 200,
        .itemsAfterSearch = std::vector<int>(static_cast<std::size_t>(itemsAfter), 100),
        .spacing = 10,
        .extensionButton = 30,
        .available = available};
    QCOMPARE(itemsThatFitBeforeSearch(room), static_cast<std::size_t>(staying));
}

void CommandToolbarTest::hasAContextMenu()
{
    m_configuration->setDisplay(ToolbarDisplay::IconOnly);
    Window window(*m_configuration);
    window.show();
    const QList<QAction*> items = contextMenu(window).actions();
    QStringList texts;
    for (const QAction* const item : items)
        texts.append(item->text().remove(u'&') + (item->isChecked() ? u"*"_s : QString()));
    QCOMPARE(texts,
        QStringList({u"Icon and Text"_s, u"Icon Only*"_s, u"Text Only"_s, QString(),
            u"Customise Toolbar…"_s}));
    QCOMPARE(items.last(), window.actions.action(CommandId::CustomizeToolbar));
}

void CommandToolbarTest::changesTheDisplayByTheContextMenu()
{
    Window window(*m_configuration);
    window.show();
    contextMenu(window).actions().at(2)->trigger();
    QCOMPARE(m_configuration->display(), ToolbarDisplay::TextOnly);
    QCOMPARE(window.toolbar->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

QTEST_MAIN(CommandToolbarTest)
#include "CommandToolbarTest.moc"
