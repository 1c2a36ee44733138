#include "listwindow/CustomizeToolbarDialog.h"

#include "listwindow/ToolbarConfiguration.h"
#include "listwindow/ToolbarItems.h"
#include "platform/UserDefaults.h"
#include "tests/support/RealMouse.h"

#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::samples;

// The sheet over a window, for a toolbar of "addbook", "separator", "search".
class CustomizeToolbarDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void belongsToItsWindow();
    void showsAllItemsAndTheToolbar();
    void addsTheChosenItemBehindTheSelectedOne();
    void addsAtTheEndWhenNothingIsSelected();
    void addsSpacersManyTimes_data();
    void addsSpacersManyTimes();
    void offersOtherItemsOnlyOnce();
    void addsByDoubleClick();
    void removesTheSelectedItem();
    void removesByTheDeleteKey();
    void removesEverything();
    void movesTheSelectedItem();
    void restoresTheDefaultSet();
    void choosesHowItemsAreShown();
    void followsOtherWindows();
    void keepsChangesWhenEscapeCloses();
    void closesWithDone();
    void worksByKeyboard();
    void namesItsControls();
    void hasNoTwoEqualMnemonics();
    void dragsFromThePaletteIntoTheRow();
    void dragsWithinTheRow();
    void dragsOutOfTheRow_data();
    void dragsOutOfTheRow();
    void movesWhatIsDraggedInASecondTime();

private:
    template <class Widget>
    Widget& find(const char* name) const
    {
        return *m_dialog->findChild<Widget*>(QString::fromLatin1(name));
    }

    void click(const char* button) const
    {
        QTest::mouseClick(&find<QPushButton>(button), Qt::LeftButton);
    }

    bool isEnabled(const char* button) const { return find<QPushButton>(button).isEnabled(); }

    QListView& palette() const { return find<QListView>("m_idPalette"); }

    QListView& row() const { return find<QListView>("m_idRow"); }

    QModelIndex choice(const QString& identifier) const
    {
        const QAbstractItemModel& model = *palette().model();
        return model.match(model.index(0, 0), Qt::UserRole, identifier).value(0);
    }

    void choose(const QString& identifier) const { palette().setCurrentIndex(choice(identifier)); }

    void selectPlace(int place) const { row().setCurrentIndex(row().model()->index(place, 0)); }

    int selectedPlace() const { return row().currentIndex().row(); }

    /// What the configuration keeps, which is what the row shows.
    QString items() const
    {
        QStringList shown;
        for (int place = 0; place < row().model()->rowCount(); ++place)
            shown.append(row().model()->index(place, 0).data(Qt::UserRole).toString());
        return shown == m_configuration->items() ? shown.join(u' ') : u"row and toolbar differ"_s;
    }

    /// The middle of an item on the screen; the left or right quarter for an offset of -1 or 1.
    static QPoint pointOf(const QListView& view, const QModelIndex& index, int offset = 0)
    {
        const QRect rect = view.visualRect(index);
        return onScreen(*view.viewport(), rect.center() + QPoint(offset * rect.width() / 4, 0));
    }

    QByteArray drag(QPoint from, QPoint to, const QString& expected) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<ToolbarConfiguration> m_configuration;
    std::unique_ptr<QMainWindow> m_window;
    QPointer<CustomizeToolbarDialog> m_dialog;
};

void CustomizeToolbarDialogTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
    m_configuration = std::make_unique<ToolbarConfiguration>(*m_defaults);
    m_configuration->setItems({u"addbook"_s, u"separator"_s, u"search"_s});
    m_window = std::make_unique<QMainWindow>();
    m_window->resize(1100, 700);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_dialog = new CustomizeToolbarDialog(*m_configuration, m_window.get());
    m_dialog->open();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
}

void CustomizeToolbarDialogTest::cleanup()
{
    m_window.reset();
    m_configuration.reset();
    m_defaults.reset();
}

void CustomizeToolbarDialogTest::belongsToItsWindow()
{
    QCOMPARE(m_dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(m_dialog->parentWidget(), m_window.get());
}

void CustomizeToolbarDialogTest::showsAllItemsAndTheToolbar()
{
    const QAbstractItemModel& all = *palette().model();
    QCOMPARE(all.rowCount(), static_cast<int>(allowedToolbarItems().size()));
    int number = 0;
    for (const ToolbarItem& item : allowedToolbarItems()) {
        const QModelIndex index = all.index(number++, 0);
        QCOMPARE(index.data().toString(), toolbarItemLabel(item));
        QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
    }
    QCOMPARE(items(), u"addbook separator search"_s);
    QCOMPARE(row().model()->index(2, 0).data().toString(), u"Author & Title"_s);
}

void CustomizeToolbarDialogTest::addsTheChosenItemBehindTheSelectedOne()
{
    selectPlace(0);
    choose(u"addgroup"_s);
    click("m_idAdd");
    QCOMPARE(items(), u"addbook addgroup separator search"_s);
    QCOMPARE(selectedPlace(), 1);
    choose(u"editbook"_s);
    click("m_idAdd");
    QCOMPARE(items(), u"addbook addgroup editbook separator search"_s);
}

void CustomizeToolbarDialogTest::addsAtTheEndWhenNothingIsSelected()
{
    choose(u"addgroup"_s);
    click("m_idAdd");
    QCOMPARE(items(), u"addbook separator search addgroup"_s);
}

void CustomizeToolbarDialogTest::addsSpacersManyTimes_data()
{
    QTest::addColumn<QString>("identifier");
    for (const char* const name : {"separator", "space", "flexiblespace"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void CustomizeToolbarDialogTest::addsSpacersManyTimes()
{
    QFETCH(const QString, identifier);
    choose(identifier);
    click("m_idAdd");
    click("m_idAdd");
    QCOMPARE(items(), u"addbook separator search %1 %1"_s.arg(identifier));
}

void CustomizeToolbarDialogTest::offersOtherItemsOnlyOnce()
{
    choose(u"addbook"_s);
    QVERIFY(!isEnabled("m_idAdd"));
    choose(u"search"_s);
    QVERIFY(!isEnabled("m_idAdd"));
    selectPlace(2);
    click("m_idRemove");
    QVERIFY(isEnabled("m_idAdd"));
    click("m_idAdd");
    QVERIFY(!isEnabled("m_idAdd"));
    QCOMPARE(items(), u"addbook separator search"_s);
}

void CustomizeToolbarDialogTest::addsByDoubleClick()
{
    const auto doubleClick = [this](const QString& identifier) {
        const QPoint place = palette().visualRect(choice(identifier)).center();
        QTest::mouseClick(palette().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(palette().viewport(), Qt::LeftButton, {}, place);
    };
    doubleClick(u"deletegroup"_s);
    QCOMPARE(items(), u"addbook separator search deletegroup"_s);
    doubleClick(u"deletegroup"_s); // it is there already
    QCOMPARE(items(), u"addbook separator search deletegroup"_s);
}

void CustomizeToolbarDialogTest::removesTheSelectedItem()
{
    QVERIFY(!isEnabled("m_idRemove"));
    selectPlace(1);
    click("m_idRemove");
    QCOMPARE(items(), u"addbook search"_s);
    QCOMPARE(selectedPlace(), 1);
    click("m_idRemove");
    QCOMPARE(items(), u"addbook"_s);
    QCOMPARE(selectedPlace(), 0);
}

void CustomizeToolbarDialogTest::removesByTheDeleteKey()
{
    row().setFocus();
    QTRY_VERIFY(row().hasFocus());
    selectPlace(0);
    QTest::keyClick(&row(), Qt::Key_Delete);
    QCOMPARE(items(), u"separator search"_s);
    palette().setFocus();
    QTest::keyClick(&palette(), Qt::Key_Delete);
    QCOMPARE(items(), u"separator search"_s);
}

void CustomizeToolbarDialogTest::removesEverything()
{
    selectPlace(0);
    for (int i = 0; i < 3; ++i)
        click("m_idRemove");
    QCOMPARE(items(), QString());
    QVERIFY(!isEnabled("m_idRemove"));
    choose(u"search"_s);
    click("m_idAdd");
    QCOMPARE(items(), u"search"_s);
}

void CustomizeToolbarDialogTest::movesTheSelectedItem()
{
    QVERIFY(!isEnabled("m_idMoveLeft"));
    QVERIFY(!isEnabled("m_idMoveRight"));
    selectPlace(0);
    QVERIFY(!isEnabled("m_idMoveLeft"));
    click("m_idMoveRight");
    QCOMPARE(items(), u"separator addbook search"_s);
    click("m_idMoveRight");
    QCOMPARE(items(), u"separator search addbook"_s);
    QCOMPARE(selectedPlace(), 2);
    QVERIFY(!isEnabled("m_idMoveRight"));
    click("m_idMoveLeft");
    QCOMPARE(items(), u"separator addbook search"_s);
    QCOMPARE(selectedPlace(), 1);
}

void CustomizeToolbarDialogTest::restoresTheDefaultSet()
{
    click("m_idRestoreDefaultSet");
    QCOMPARE(items(), defaultToolbarItems().join(u' '));
}

void CustomizeToolbarDialogTest::choosesHowItemsAreShown()
{
    auto& show = find<QComboBox>("m_idShow");
    QStringList texts;
    for (int index = 0; index < show.count(); ++index)
        texts.append(show.itemText(index));
    QCOMPARE(texts, QStringList({u"Icon and Text"_s, u"Icon Only"_s, u"Text Only"_s}));
    QCOMPARE(show.currentIndex(), 0);
    show.setFocus();
    QTest::keyClick(&show, Qt::Key_Down);
    QCOMPARE(m_configuration->display(), ToolbarDisplay::IconOnly);
    QTest::keyClick(&show, Qt::Key_Down);
    QCOMPARE(m_configuration->display(), ToolbarDisplay::TextOnly);
}

void CustomizeToolbarDialogTest::followsOtherWindows()
{
    m_configuration->setItems({u"addgroup"_s, u"space"_s});
    m_configuration->setDisplay(ToolbarDisplay::TextOnly);
    QCOMPARE(items(), u"addgroup space"_s);
    QCOMPARE(find<QComboBox>("m_idShow").currentText(), u"Text Only"_s);
}

void CustomizeToolbarDialogTest::keepsChangesWhenEscapeCloses()
{
    selectPlace(0);
    click("m_idRemove");
    QTest::keyClick(m_dialog, Qt::Key_Escape);
    QTRY_VERIFY(!m_dialog);
    QCOMPARE(m_configuration->items(), QStringList({u"separator"_s, u"search"_s}));
}

void CustomizeToolbarDialogTest::closesWithDone()
{
    palette().setFocus();
    QTest::keyClick(&palette(), Qt::Key_Return);
    QTRY_VERIFY(!m_dialog);
    QCOMPARE(m_configuration->items().join(u' '), u"addbook separator search"_s);
}

void CustomizeToolbarDialogTest::worksByKeyboard()
{
    QTRY_VERIFY(palette().hasFocus());
    QTest::keyClick(&palette(), Qt::Key_Right); // from the first item to the second
    QTest::keyClick(&palette(), Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(items(), u"addbook separator search editbook"_s);
    QTest::keyClick(m_dialog, Qt::Key_L, Qt::AltModifier);
    QTRY_COMPARE(items(), u"addbook separator editbook search"_s);
    QTest::keyClick(m_dialog, Qt::Key_T, Qt::AltModifier);
    QVERIFY(row().hasFocus());
    QTest::keyClick(&row(), Qt::Key_Left);
    QTest::keyClick(m_dialog, Qt::Key_R, Qt::AltModifier);
    QTRY_COMPARE(items(), u"addbook editbook search"_s);
}

void CustomizeToolbarDialogTest::namesItsControls()
{
    for (const char* const name : {"m_idPalette", "m_idRow", "m_idShow"})
        QVERIFY2(!find<QWidget>(name).accessibleName().isEmpty(), name);
}

void CustomizeToolbarDialogTest::hasNoTwoEqualMnemonics()
{
    QStringList texts;
    for (const auto* const button : m_dialog->findChildren<QAbstractButton*>())
        texts.append(button->text());
    for (const auto* const label : m_dialog->findChildren<QLabel*>())
        texts.append(label->text());
    QSet<QString> taken;
    for (const QString& text : texts) {
        const QString mnemonic = QKeySequence::mnemonic(text).toString();
        QVERIFY2(!mnemonic.isEmpty() && !taken.contains(mnemonic), qPrintable(text));
        taken.insert(mnemonic);
    }
}

QByteArray CustomizeToolbarDialogTest::drag(QPoint from, QPoint to, const QString& expected) const
{
    const int distance = QApplication::startDragDistance() + 4;
    const auto always = [] {
        return true;
    };
    int step = 0;
    InputStory story;
    story.once(
        "go to the item", [from] { moveMouse(from); }, [from] { return QCursor::pos() == from; });
    story.once(
        "press", [] { pressMouse(); },
        [] { return QApplication::mouseButtons() == Qt::LeftButton; });
    story.once(
        "start", [from, distance] { moveMouse(from + QPoint(0, distance)); }, always);
    story.repeat(
        "go to the place", [&step, to] { moveMouse(to + QPoint(step++ % 2, 0)); },
        [&step] { return step > 12; });
    story.once(
        "drop", [] { releaseMouse(); }, [this, expected] { return items() == expected; });
    return story.run();
}

void CustomizeToolbarDialogTest::dragsFromThePaletteIntoTheRow()
{
    const QModelIndex target = row().model()->index(1, 0);
    QCOMPARE(drag(pointOf(palette(), choice(u"addgroup"_s)), pointOf(row(), target, -1),
                 u"addbook addgroup separator search"_s),
        QByteArray());
}

void CustomizeToolbarDialogTest::dragsWithinTheRow()
{
    const QAbstractItemModel& model = *row().model();
    QCOMPARE(drag(pointOf(row(), model.index(0, 0)), pointOf(row(), model.index(2, 0), 1),
                 u"separator search addbook"_s),
        QByteArray());
}

void CustomizeToolbarDialogTest::dragsOutOfTheRow_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("into the palette") << u"m_idPalette"_s;
    QTest::newRow("beside it") << u"m_idRowLabel"_s;
}

void CustomizeToolbarDialogTest::dragsOutOfTheRow()
{
    QFETCH(const QString, target);
    const auto& widget = *m_dialog->findChild<QWidget*>(target);
    QCOMPARE(drag(pointOf(row(), row().model()->index(1, 0)),
                 onScreen(widget, widget.rect().center()), u"addbook search"_s),
        QByteArray());
}

void CustomizeToolbarDialogTest::movesWhatIsDraggedInASecondTime()
{
    const QModelIndex target = row().model()->index(1, 0);
    QCOMPARE(drag(pointOf(palette(), choice(u"search"_s)), pointOf(row(), target, -1),
                 u"addbook search separator"_s),
        QByteArray());
}

QTEST_MAIN(CustomizeToolbarDialogTest)
#include "CustomizeToolbarDialogTest.moc"
