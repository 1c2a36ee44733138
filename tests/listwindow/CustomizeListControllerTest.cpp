// The sheet in which a person ticks the columns of the list.

#include "listwindow/CustomizeListController.h"

#include "listwindow/ColumnLayout.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/SmallCollection.h"

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

class CustomizeListControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isASheetOfItsWindow();
    void listsEveryColumnAndTicksTheShownOnes();
    void listsRenamedColumnsBeforeUnnamedOnes();
    void saysWhatItsControlsAre();
    void isTickedWithTheMouse();
    void isTickedWithTheSpaceBar();
    void findsARowByItsLetters();
    void marksOnlyWhatWasTickedOtherwise();
    void takesATickThatIsTakenBackForNone();
    void canUntickEveryColumn();
    void marksAColumnOnce();
    void tellsTheDocumentEvenOfNoChange();
    void leavesTheRecordsAloneWhenItIsLeft_data();
    void leavesTheRecordsAloneWhenItIsLeft();
    void isConfirmedWithReturn();
    void remembersItsSize();
    void opensAsLargeAsItWas();
    void opensAsDesigned_data();
    void opensAsDesigned();
    void opensNoLargerThanTheScreen();
    void followsNamesWhenItBecomesActive();
    void makesRoomForNames();

private:
    CustomizeListController& open();

    template <class Widget>
    Widget& find(const char* name) const
    {
        return *m_sheet->findChild<Widget*>(QLatin1StringView(name));
    }

    QListWidget& table() const { return find<QListWidget>("m_idTableView"); }

    QListWidgetItem& rowOf(const QString& name) const;
    QStringList tickedNames() const;

    qint32 position(qint32 key) { return samples::column(*m_document, key).getPosition(); }

    QMap<QString, qint32> positions() const;
    QPoint boxOf(const QString& name) const;
    void clickBox(const QString& name) const;

    void clickOK() const { find<QPushButton>("m_OKButton").click(); }

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<BookListDocument> m_document;
    FakeBookListWindow* m_listWindow = nullptr;
    QPointer<CustomizeListController> m_sheet;
};

void CustomizeListControllerTest::init()
{
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_listWindow));
    m_document->makeWindowControllers();
    samples::showColumns(*m_document, {0, 2, 28});
    m_listWindow->calls.clear();
    m_window = std::make_unique<QMainWindow>();
    m_window->resize(900, 600);
    m_window->show();
}

void CustomizeListControllerTest::cleanup()
{
    m_window.reset(); // and the sheet with it
    m_document.reset();
}

CustomizeListController& CustomizeListControllerTest::open()
{
    m_sheet = new CustomizeListController(*m_window, *m_document, m_document->getListColumns());
    return *m_sheet;
}

QListWidgetItem& CustomizeListControllerTest::rowOf(const QString& name) const
{
    return *table().findItems(name, Qt::MatchExactly).first();
}

QStringList CustomizeListControllerTest::tickedNames() const
{
    QStringList names;
    for (int row = 0; row < table().count(); ++row) {
        if (table().item(row)->checkState() == Qt::Checked)
            names.append(table().item(row)->text());
    }
    return names;
}

QMap<QString, qint32> CustomizeListControllerTest::positions() const
{
    QMap<QString, qint32> positions;
    for (const auto& [key, record] : m_document->getListColumns())
        positions.insert(key, record.getPosition());
    return positions;
}

QPoint CustomizeListControllerTest::boxOf(const QString& name) const
{
    table().scrollToItem(&rowOf(name));
    QStyleOptionViewItem option;
    option.initFrom(&table());
    option.rect = table().visualItemRect(&rowOf(name));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    return table()
        .style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &table())
        .center();
}

void CustomizeListControllerTest::clickBox(const QString& name) const
{
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, boxOf(name));
}

void CustomizeListControllerTest::isASheetOfItsWindow()
{
    open();
    QVERIFY(m_sheet->isVisible());
    QCOMPARE(m_sheet->windowModality(), Qt::WindowModal);
    QCOMPARE(m_sheet->parentWidget(), m_window.get());
    QVERIFY(!m_sheet->windowTitle().isEmpty());
    m_sheet->cancel();
    QTRY_VERIFY(!m_sheet);
}

void CustomizeListControllerTest::listsEveryColumnAndTicksTheShownOnes()
{
    open();
    QCOMPARE(table().count(), 42);
    QCOMPARE(table().item(0)->text(), u"Author"_s);
    QCOMPARE(table().item(23)->text(), u"Type"_s);
    QCOMPARE(table().item(24)->text(), u"Custom: Custom Date 1"_s);
    QCOMPARE(table().item(41)->text(), u"Custom: Custom Switch 8"_s);
    QCOMPARE(tickedNames(), QStringList({u"Author"_s, u"Pages"_s, u"Title"_s}));
}

void CustomizeListControllerTest::listsRenamedColumnsBeforeUnnamedOnes()
{
    m_document->setCustomFieldLabel(u"Shelf"_s, 46);
    open();
    QCOMPARE(table().item(23)->text(), u"Type"_s);
    QCOMPARE(table().item(24)->text(), u"Custom: Shelf"_s);
    QCOMPARE(table().item(25)->text(), u"Custom: Custom Date 1"_s);
}

void CustomizeListControllerTest::saysWhatItsControlsAre()
{
    open();
    QVERIFY(!table().accessibleName().isEmpty());
    QCOMPARE(find<QLabel>("m_idTableLabel").buddy(), &table());
    QVERIFY(find<QPushButton>("m_OKButton").isDefault());
    QVERIFY(QTest::qWaitForWindowActive(m_sheet));
    QVERIFY(table().hasFocus());
    QCOMPARE(table().currentRow(), 0);
}

void CustomizeListControllerTest::isTickedWithTheMouse()
{
    open();
    clickBox(u"Rating"_s);
    QCOMPARE(rowOf(u"Rating"_s).checkState(), Qt::Checked);
    QCOMPARE(table().currentItem(), &rowOf(u"Rating"_s));
    QTest::keyClick(&table(), Qt::Key_Space); // is about the same row
    QCOMPARE(rowOf(u"Rating"_s).checkState(), Qt::Unchecked);
    clickBox(u"Rating"_s);
    clickBox(u"Author"_s);
    QCOMPARE(rowOf(u"Author"_s).checkState(), Qt::Unchecked);
    const QPoint nameOfTitle = table().visualItemRect(&rowOf(u"Title"_s)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, nameOfTitle);
    QCOMPARE(table().currentItem(), &rowOf(u"Title"_s));
    QCOMPARE(tickedNames(), QStringList({u"Pages"_s, u"Rating"_s, u"Title"_s}));
    clickOK();
    QCOMPARE(position(6), ColumnLayout::positionToAdd);
    QCOMPARE(position(2), ColumnLayout::positionToRemove);
}

void CustomizeListControllerTest::isTickedWithTheSpaceBar()
{
    open();
    QTest::keyClick(&table(), Qt::Key_Space); // Author
    QTest::keyClick(&table(), Qt::Key_Down);
    QTest::keyClick(&table(), Qt::Key_Space); // Copyright Date
    QCOMPARE(tickedNames(), QStringList({u"Copyright Date"_s, u"Pages"_s, u"Title"_s}));
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(tickedNames(), QStringList({u"Pages"_s, u"Title"_s}));
    clickOK();
    QCOMPARE(position(2), ColumnLayout::positionToRemove);
    QCOMPARE(position(16), ColumnEntry::hidden);
}

void CustomizeListControllerTest::findsARowByItsLetters()
{
    open();
    QTest::keyClicks(&table(), u"la"_s);
    QCOMPARE(table().currentItem()->text(), u"Last Read Date"_s);
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(rowOf(u"Last Read Date"_s).checkState(), Qt::Checked);
}

void CustomizeListControllerTest::marksOnlyWhatWasTickedOtherwise()
{
    samples::column(*m_document, 84).setPosition(ColumnEntry::notShown);
    auto expected = positions();
    open();
    clickBox(u"Title"_s);
    clickBox(u"Type"_s);
    clickBox(u"Custom: Custom Switch 8"_s);
    QCOMPARE(positions(), expected); // not before it is confirmed
    QVERIFY(m_listWindow->calls.isEmpty());
    clickOK();
    expected[u"0"_s] = ColumnLayout::positionToRemove;
    expected[u"84"_s] = ColumnLayout::positionToAdd;
    expected[u"76"_s] = ColumnLayout::positionToAdd;
    QCOMPARE(positions(), expected);
    QCOMPARE(m_listWindow->calls, QStringList{u"columnsSelectionChanged"_s});
    QVERIFY(m_document->isDocumentEdited());
    QTRY_VERIFY(!m_sheet);
}

void CustomizeListControllerTest::takesATickThatIsTakenBackForNone()
{
    const auto before = positions();
    open();
    for (int time = 0; time < 2; ++time) {
        clickBox(u"Title"_s);
        clickBox(u"Type"_s);
    }
    clickOK();
    QCOMPARE(positions(), before);
}

void CustomizeListControllerTest::canUntickEveryColumn()
{
    open();
    for (const QString& name : tickedNames())
        clickBox(name);
    clickOK();
    for (const qint32 key : {0, 2, 28})
        QCOMPARE(position(key), ColumnLayout::positionToRemove);
}

void CustomizeListControllerTest::marksAColumnOnce()
{
    // A mark that was never applied is a position like any other: 9999 is a shown column.
    samples::column(*m_document, 84).setPosition(ColumnLayout::positionToAdd);
    open();
    QCOMPARE(rowOf(u"Type"_s).checkState(), Qt::Checked);
    clickOK();
    QCOMPARE(position(84), ColumnLayout::positionToAdd);
    open();
    clickBox(u"Type"_s);
    clickOK();
    QCOMPARE(position(84), ColumnLayout::positionToRemove);
}

void CustomizeListControllerTest::tellsTheDocumentEvenOfNoChange()
{
    const auto before = positions();
    open();
    clickOK();
    QCOMPARE(positions(), before);
    QCOMPARE(m_listWindow->calls, QStringList{u"columnsSelectionChanged"_s});
}

void CustomizeListControllerTest::leavesTheRecordsAloneWhenItIsLeft_data()
{
    using Leave = std::function<void(CustomizeListController&)>;
    QTest::addColumn<Leave>("leave");
    QTest::newRow("by its button") << Leave([](CustomizeListController& sheet) {
        QTest::mouseClick(sheet.findChild<QPushButton*>("m_cancelButton"_L1), Qt::LeftButton);
    });
    QTest::newRow("by Escape") << Leave([](CustomizeListController& sheet) {
        QTest::keyClick(sheet.findChild<QListWidget*>("m_idTableView"_L1), Qt::Key_Escape);
    });
    QTest::newRow("by its frame") << Leave([](CustomizeListController& sheet) { sheet.close(); });
}

void CustomizeListControllerTest::leavesTheRecordsAloneWhenItIsLeft()
{
    QFETCH(const std::function<void(CustomizeListController&)>, leave);
    const auto before = positions();
    open().resize(500, 480);
    const QSizeF size = m_sheet->frameGeometry().size();
    clickBox(u"Title"_s);
    clickBox(u"Type"_s);
    leave(*m_sheet);
    QTRY_VERIFY(!m_sheet);
    QCOMPARE(positions(), before);
    QVERIFY(m_listWindow->calls.isEmpty());
    QVERIFY(!m_document->isDocumentEdited());
    QCOMPARE(m_document->getCustomizeListControllerWindowPosition().size(), size);
}

void CustomizeListControllerTest::isConfirmedWithReturn()
{
    open();
    QTest::keyClick(&table(), Qt::Key_Space);
    QTest::keyClick(&table(), Qt::Key_Return);
    QTRY_VERIFY(!m_sheet);
    QCOMPARE(position(2), ColumnLayout::positionToRemove);
}

void CustomizeListControllerTest::remembersItsSize()
{
    open().resize(480, 520);
    const QRectF before = m_sheet->frameGeometry();
    clickOK();
    const QRectF saved = m_document->getCustomizeListControllerWindowPosition();
    QCOMPARE(saved.size(), before.size());
    QCOMPARE(saved.left(), before.left());
    // It grows by nothing when it is opened and closed again and again.
    for (int time = 0; time < 3; ++time) {
        open();
        QTRY_COMPARE(m_sheet->frameGeometry().size(), saved.size().toSize());
        m_sheet->cancel();
        QCOMPARE(m_document->getCustomizeListControllerWindowPosition().size(), saved.size());
    }
}

void CustomizeListControllerTest::opensAsLargeAsItWas()
{
    m_document->setCustomizeListControllerWindowPosition({-5000, 7000, 470, 333});
    open();
    QTRY_COMPARE(m_sheet->frameGeometry().size(), QSize(470, 333));
    // In the middle of its window, whatever origin was saved.
    const QPoint off = m_sheet->frameGeometry().center() - m_window->frameGeometry().center();
    QVERIFY(off.manhattanLength() <= 2);
}

void CustomizeListControllerTest::opensAsDesigned_data()
{
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<QRectF>("saved");
    QTest::newRow("a width of 0") << QRectF(10, 10, 0, 800);
    QTest::newRow("narrower than it may be") << QRectF(10, 10, 50, 800);
    QTest::newRow("a negative width") << QRectF(10, 10, -500, 800);
    QTest::newRow("no number") << QRectF(10, 10, notANumber, 800);
}

void CustomizeListControllerTest::opensAsDesigned()
{
    QFETCH(const QRectF, saved);
    const QSize designed = open().size();
    QVERIFY(designed.width() >= m_sheet->minimumWidth());
    m_sheet->close();
    m_document->setCustomizeListControllerWindowPosition(saved);
    QCOMPARE(open().size(), designed);
}

void CustomizeListControllerTest::opensNoLargerThanTheScreen()
{
    m_document->setCustomizeListControllerWindowPosition({0, 0, 1e30, 1e30});
    open();
    const QSize screen = m_sheet->screen()->availableVirtualSize();
    QVERIFY(m_sheet->width() <= screen.width());
    QVERIFY(m_sheet->height() <= screen.height());
    m_sheet->close();
    m_document->setCustomizeListControllerWindowPosition({0, 0, 500, 1});
    open();
    QTRY_COMPARE(m_sheet->frameGeometry().width(), 500);
    QCOMPARE(m_sheet->height(), m_sheet->minimumHeight());
}

void CustomizeListControllerTest::followsNamesWhenItBecomesActive()
{
    open();
    clickBox(u"Custom: Custom Field 7"_s);
    QCOMPARE(table().currentItem()->text(), u"Custom: Custom Field 7"_s);
    m_document->setCustomFieldLabel(u"Shelf"_s, 54);
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(m_sheet, &activated);
    QCOMPARE(table().item(24)->text(), u"Custom: Shelf"_s);
    QCOMPARE(table().currentRow(), 24);
    QCOMPARE(tickedNames(), QStringList({u"Author"_s, u"Pages"_s, u"Title"_s, u"Custom: Shelf"_s}));
    QCOMPARE(table().count(), 42);
    clickOK();
    QCOMPARE(position(54), ColumnLayout::positionToAdd);
}

void CustomizeListControllerTest::makesRoomForNames()
{
    open();
    QVERIFY(!table().horizontalScrollBar()->isVisible());
    m_sheet->resize(m_sheet->minimumSize());
    QCoreApplication::processEvents();
    QVERIFY(!table().horizontalScrollBar()->isVisible());
    m_sheet->close();
    m_document->setCustomFieldLabel(QString(4000, u'W'), 42); // not for that one
    open();
    QVERIFY(m_sheet->width() < m_sheet->screen()->availableSize().width());
}

QTEST_MAIN(CustomizeListControllerTest)
#include "CustomizeListControllerTest.moc"
