// Files of many books are written and read under a panel that shows how it gets on, and can be
// left.

#include "listwindow/BookExchange.h"
#include "listwindow/engine/CsvChoices.h"
#include "listwindow/engine/XmlExport.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/UserDefaults.h"
#include "tests/support/ExchangeDesk.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeFilePanels.h"

#include <QMainWindow>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class LongExchangeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void keepsTheOldFileWhenItIsLeft_data();
    void keepsTheOldFileWhenItIsLeft();
    void addsNothingWhenItIsLeft();

private:
    void addBooks();
    bool leaves(const std::function<void()>& work);

    QString path(const QString& name) const { return m_folder.filePath(name); }

    FakeAlerts m_alerts;
    FakeFilePanels m_panels;
    QTemporaryDir m_folder;
    UserDefaults m_defaults{path(u"preferences/Tomely.ini"_s)};
    ToolbarConfiguration m_toolbar{m_defaults};
    ExchangeDesk m_desk;
    QMainWindow m_window;
    BookExchange m_exchange{m_desk.document,
        ListWindowServices{m_alerts, m_defaults, m_panels, m_toolbar, {}, {}}, m_window,
        m_desk.engine};
    QString m_panelText; // of the panel that was left
};

void LongExchangeTest::initTestCase()
{
    addBooks();
    m_window.show();
    QVERIFY(QTest::qWaitForWindowActive(&m_window));
}

/// Doubles the collection; the first time, makes it large.
void LongExchangeTest::addBooks()
{
    const qsizetype more = std::max(m_desk.document.getBookListSize(), qsizetype{50'000});
    for (qsizetype number = 0; number < more; ++number) {
        BookEntry& book = samples::addBook(
            m_desk.document, u"Title %1"_s.arg(number), u"Author %1"_s.arg(number % 997));
        book.setNotes(QString(100, u'n'));
    }
    m_desk.document.refresh();
}

/// Clicks Cancel in the panel that comes up while something is done. How long it takes for one to
/// come up is the machine's affair, so the collection grows until one does; false when it is huge.
bool LongExchangeTest::leaves(const std::function<void()>& work)
{
    bool isLeft = false;
    QTimer clock;
    connect(&clock, &QTimer::timeout, this, [&] {
        auto* const panel = m_window.findChild<QProgressDialog*>(u"waitPanel"_s);
        if (!panel || !panel->isVisible())
            return;
        m_panelText = panel->labelText();
        isLeft = true;
        panel->findChild<QPushButton*>()->click();
    });
    clock.start(0);
    while (!isLeft && m_desk.document.getBookListSize() < 2'000'000) {
        work();
        if (!isLeft)
            addBooks();
    }
    return isLeft;
}

void LongExchangeTest::keepsTheOldFileWhenItIsLeft_data()
{
    QTest::addColumn<bool>("isCsv");
    QTest::newRow("XML") << false;
    QTest::newRow("CSV") << true;
}

void LongExchangeTest::keepsTheOldFileWhenItIsLeft()
{
    QFETCH(const bool, isCsv);
    const QString target = path(isCsv ? u"out.csv"_s : u"out.xml"_s);
    QVERIFY(leaves([&] {
        QVERIFY(samples::writeFile(target, "what was there"));
        if (isCsv)
            m_exchange.exportCSV2({});
        else
            m_exchange.exportXML2(0);
        m_panels.savePanels.takeLast().picked(target);
    }));
    QCOMPARE(m_panelText, u"Exporting books…"_s);
    QCOMPARE(samples::readFile(target), QByteArray("what was there"));
    QVERIFY(m_alerts.modals.isEmpty() && m_alerts.sheets.isEmpty());
    QVERIFY(!m_window.findChild<QProgressDialog*>(u"waitPanel"_s));
}

void LongExchangeTest::addsNothingWhenItIsLeft()
{
    const QString source = path(u"in.xml"_s);
    qsizetype countBefore = 0;
    QVERIFY(leaves([&] {
        QVERIFY(exportXml(source, m_desk.engine.getAllBooks()).isOk());
        countBefore = m_desk.document.getBookListSize();
        m_desk.document.clearChangeCount();
        m_desk.list->calls.clear();
        m_exchange.importXML();
        m_panels.openPanels.takeLast().picked({source});
    }));
    QCOMPARE(m_panelText, u"Importing books…"_s);
    QCOMPARE(m_desk.document.getBookListSize(), countBefore);
    QVERIFY(!m_desk.document.isDocumentEdited());
    QCOMPARE(m_desk.list->calls, QStringList());
}

QTEST_MAIN(LongExchangeTest)
#include "LongExchangeTest.moc"
