// The context menu of the list's header.

#include "listwindow/HeaderMenu.h"

#include "listwindow/BookTableModel.h"
#include "listwindow/ColumnLayout.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/SmallCollection.h"

#include <QHeaderView>
#include <QMenu>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class HeaderMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void namesTheColumnUnderThePointer();
    void showsAnyNameOnOneLine_data();
    void showsAnyNameOnOneLine();
    void hidesTheColumn();
    void hidesAMovedColumn();
    void hidesTheLastColumn();
    void isLeftWithoutAnyEffect();
    void offersOnlyTheChoiceBesideTheColumns();
    void asksForTheChoiceOfColumns();
    void marksNothingAsThePersonsDoing();

private:
    QHeaderView& header() const { return *m_table->horizontalHeader(); }

    QMenu& openMenu(QPoint position) const;
    QMenu& openMenuOn(qint32 key) const;
    QPoint middleOf(qint32 key) const;
    static QAction* action(const QMenu& menu, const QString& name);
    static void click(QMenu& menu, const QString& name);

    std::unique_ptr<BookListDocument> m_document;
    FakeBookListWindow* m_listWindow = nullptr;
    std::vector<BookEntry*> m_books;
    std::unique_ptr<BookTableModel> m_model;
    std::unique_ptr<QTableView> m_table;
    std::unique_ptr<ColumnLayout> m_layout;
    std::unique_ptr<HeaderMenu> m_menu;
};

void HeaderMenuTest::init()
{
    m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_listWindow));
    m_document->makeWindowControllers();
    samples::showColumns(*m_document, {0, 2, 28});
    m_model = std::make_unique<BookTableModel>(m_books, m_document->getListColumns());
    m_table = std::make_unique<QTableView>();
    m_table->setModel(m_model.get());
    m_table->resize(900, 400);
    m_layout = std::make_unique<ColumnLayout>(*m_table, *m_model, *m_document);
    m_layout->setupInitialColumns();
    m_menu = std::make_unique<HeaderMenu>(header(), *m_model, *m_document);
    m_table->show();
    m_listWindow->onCall = [this](const QString& call) {
        if (call == "columnsSelectionChanged"_L1)
            m_layout->columnsSelectionChanged();
    };
    m_listWindow->calls.clear();
}

void HeaderMenuTest::cleanup()
{
    m_menu.reset();
    m_layout.reset();
    m_table.reset();
    m_document.reset();
}

QPoint HeaderMenuTest::middleOf(qint32 key) const
{
    const int column = m_model->columnOfKey(key);
    return {header().sectionViewportPosition(column) + header().sectionSize(column) / 2,
        header().height() / 2};
}

QMenu& HeaderMenuTest::openMenu(QPoint position) const
{
    QWidget* const viewport = header().viewport();
    QTest::mousePress(viewport, Qt::RightButton, {}, position);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, viewport->mapToGlobal(position));
    QCoreApplication::sendEvent(viewport, &event);
    return *header().findChild<QMenu*>("m_idHeaderMenu"_L1);
}

QMenu& HeaderMenuTest::openMenuOn(qint32 key) const
{
    return openMenu(middleOf(key));
}

QAction* HeaderMenuTest::action(const QMenu& menu, const QString& name)
{
    for (QAction* const action : menu.actions()) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

void HeaderMenuTest::click(QMenu& menu, const QString& name)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action(menu, name)).center());
}

void HeaderMenuTest::namesTheColumnUnderThePointer()
{
    for (int time = 0; time < 2; ++time) { // and holds nothing of the time before
        QMenu& menu = openMenuOn(2);
        QVERIFY(menu.isVisible());
        QCOMPARE(menu.actions().size(), 2);
        QCOMPARE(menu.actions().first()->text(), u"&Hide 'Author'"_s);
        QCOMPARE(menu.actions().last()->text(), u"&Columns…"_s);
        menu.close();
    }
    QCOMPARE(openMenuOn(28).actions().first()->text(), u"&Hide 'Pages'"_s);
}

void HeaderMenuTest::showsAnyNameOnOneLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("an ampersand") << u"Q&A"_s << u"&Hide 'Q&&A'"_s;
    QTest::newRow("a place marker") << u"%1 %2"_s << u"&Hide '%1 %2'"_s;
    QTest::newRow("tabs and lines") << u" On\tloan\nto "_s << u"&Hide 'On loan to'"_s;
    QTest::newRow("no name") << u" "_s << u"&Hide This Column"_s;
}

void HeaderMenuTest::showsAnyNameOnOneLine()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    samples::column(*m_document, 2).setColumnName(name);
    QCOMPARE(openMenuOn(2).actions().first()->text(), text);
    samples::column(*m_document, 2).setColumnName(QString(5000, u'W'));
    QVERIFY(openMenuOn(2).width() < 1000);
}

void HeaderMenuTest::hidesTheColumn()
{
    QMenu& menu = openMenuOn(2);
    QList<qint32> marks;
    m_listWindow->onCall = [&](const QString&) {
        marks.append(samples::column(*m_document, 2).getPosition());
    };
    click(menu, u"hideColumn"_s);
    QCOMPARE(marks, QList<qint32>{ColumnLayout::positionToRemove});
    QCOMPARE(m_listWindow->calls, QStringList{u"columnsSelectionChanged"_s});
    QVERIFY(m_document->isDocumentEdited());
    QVERIFY(!menu.isVisible());
}

void HeaderMenuTest::hidesAMovedColumn()
{
    header().moveSection(2, 0); // Pages, Title, Author
    QMenu& menu = openMenuOn(28);
    QTest::keyClick(&menu, Qt::Key_H); // by its mnemonic
    QVERIFY(header().isSectionHidden(m_model->columnOfKey(28)));
    QVERIFY(!header().isSectionHidden(m_model->columnOfKey(0)));
    QVERIFY(!header().isSectionHidden(m_model->columnOfKey(2)));
}

void HeaderMenuTest::hidesTheLastColumn()
{
    for (const qint32 key : {0, 2, 28})
        click(openMenuOn(key), u"hideColumn"_s);
    QCOMPARE(m_layout->firstColumnKey(), -1);
    // The header is still there to lead back.
    QCoreApplication::processEvents();
    QMenu& menu = openMenu(header().viewport()->rect().center());
    QVERIFY(header().viewport()->height() > 0);
    QSignalSpy requested(m_menu.get(), &HeaderMenu::customizeListRequested);
    click(menu, u"customizeList"_s);
    QCOMPARE(requested.size(), 1);
}

void HeaderMenuTest::isLeftWithoutAnyEffect()
{
    QSignalSpy requested(m_menu.get(), &HeaderMenu::customizeListRequested);
    QMenu& menu = openMenuOn(2);
    QTest::keyClick(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
    QVERIFY(m_listWindow->calls.isEmpty());
    QVERIFY(requested.isEmpty());
    QCOMPARE(samples::column(*m_document, 2).getPosition(), 1);
}

void HeaderMenuTest::offersOnlyTheChoiceBesideTheColumns()
{
    QMenu& menu = openMenu({800, header().height() / 2});
    QCOMPARE(menu.actions().size(), 1);
    QCOMPARE(menu.actions().first()->text(), u"&Columns…"_s);
}

void HeaderMenuTest::asksForTheChoiceOfColumns()
{
    QSignalSpy requested(m_menu.get(), &HeaderMenu::customizeListRequested);
    QMenu& menu = openMenuOn(2);
    QTest::keyClick(&menu, Qt::Key_C);
    QCOMPARE(requested.size(), 1);
    QVERIFY(m_listWindow->calls.isEmpty());
}

void HeaderMenuTest::marksNothingAsThePersonsDoing()
{
    // Hiding marks the document edited by itself; the header must not take it for a drag.
    QSignalSpy changed(m_layout.get(), &ColumnLayout::changedByUser);
    click(openMenuOn(2), u"hideColumn"_s);
    QTest::mouseRelease(header().viewport(), Qt::RightButton, {}, middleOf(0));
    QVERIFY(changed.isEmpty());
}

QTEST_MAIN(HeaderMenuTest)
#include "HeaderMenuTest.moc"
