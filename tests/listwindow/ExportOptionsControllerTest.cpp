// The sheet in which a person chooses which books an XML file gets.

#include "listwindow/ExportOptionsController.h"

#include "platform/widgets/Waiting.h"
#include "tests/support/ExchangeDesk.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;

class ExportOptionsControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isASheetOfItsWindow();
    void countsTheBooks();
    void countsAgainWhenItBecomesActive();
    void saysWhatWasChosen_data();
    void saysWhatWasChosen();
    void isConfirmedWithReturn();
    void isLeft_data();
    void isLeft();
    void takesNoAnswerDuringAWait();
    void hasNoKeyTwice();

private:
    QRadioButton& button(int tag) const
    {
        return *m_sheet->findChild<QRadioButton*>(u"m_idFilter%1"_s.arg(tag));
    }

    QPushButton& ok() const { return *m_sheet->findChild<QPushButton*>(u"m_OKButton"_s); }

    std::optional<ExchangeDesk> m_desk;
    std::unique_ptr<QMainWindow> m_window;
    QPointer<ExportOptionsController> m_sheet;
    std::unique_ptr<QSignalSpy> m_confirmed;
};

void ExportOptionsControllerTest::init()
{
    m_desk.emplace();
    m_desk->selectFiction();
    m_window = std::make_unique<QMainWindow>();
    m_window->show();
    m_sheet = new ExportOptionsController(*m_window, m_desk->engine);
    m_confirmed = std::make_unique<QSignalSpy>(m_sheet.data(), &ExportOptionsController::confirmed);
}

void ExportOptionsControllerTest::cleanup()
{
    m_confirmed.reset();
    m_window.reset(); // and the sheet with it
    m_desk.reset();
}

void ExportOptionsControllerTest::isASheetOfItsWindow()
{
    QVERIFY(m_sheet->isVisible());
    QCOMPARE(m_sheet->windowModality(), Qt::WindowModal);
    QCOMPARE(m_sheet->parentWidget(), m_window.get());
    QCOMPARE(m_sheet->windowTitle(), u"Export XML"_s);
    QVERIFY(ok().isDefault());
    QVERIFY(m_sheet->findChild<QWidget*>(u"exportFilterSelection"_s));
}

void ExportOptionsControllerTest::countsTheBooks()
{
    QCOMPARE(button(0).text(), u"&All books (4)"_s);
    QCOMPARE(button(1).text(), u"&Displayed books (2)"_s);
}

void ExportOptionsControllerTest::countsAgainWhenItBecomesActive()
{
    samples::addBook(m_desk->document, u"Persuasion"_s, u"Jane Austen"_s);
    m_desk->document.refresh();
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(m_sheet, &activate);
    QCOMPARE(button(0).text(), u"&All books (5)"_s);
}

void ExportOptionsControllerTest::saysWhatWasChosen_data()
{
    QTest::addColumn<int>("tag");
    QTest::newRow("all books") << 0;
    QTest::newRow("displayed books") << 1;
}

void ExportOptionsControllerTest::saysWhatWasChosen()
{
    QFETCH(const int, tag);
    QVERIFY(button(0).isChecked()); // at first
    button(tag).click();
    ok().click();
    QCOMPARE(m_confirmed->size(), 1);
    QCOMPARE(m_confirmed->first().first().toInt(), tag);
    QTRY_VERIFY(!m_sheet);
}

void ExportOptionsControllerTest::isConfirmedWithReturn()
{
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.data());
    QVERIFY(button(0).hasFocus());
    QTest::keyClick(&button(0), Qt::Key_Down);
    QTest::keyClick(m_sheet, Qt::Key_Return);
    QCOMPARE(m_confirmed->size(), 1);
    QCOMPARE(m_confirmed->first().first().toInt(), 1);
}

void ExportOptionsControllerTest::isLeft_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void ExportOptionsControllerTest::isLeft()
{
    QFETCH(const bool, byKey);
    if (byKey)
        QTest::keyClick(m_sheet, Qt::Key_Escape);
    else
        m_sheet->findChild<QPushButton*>(u"m_cancelButton"_s)->click();
    QTRY_VERIFY(!m_sheet);
    QVERIFY(m_confirmed->isEmpty());
}

void ExportOptionsControllerTest::takesNoAnswerDuringAWait()
{
    const Waiting waiting;
    ok().click();
    QVERIFY(m_confirmed->isEmpty());
    QVERIFY(m_sheet->isVisible());
}

void ExportOptionsControllerTest::hasNoKeyTwice()
{
    QStringList keys;
    for (const auto* const control : m_sheet->findChildren<QAbstractButton*>()) {
        const QString key = QKeySequence::mnemonic(control->text()).toString();
        QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(control->text()));
        keys.append(key);
    }
}

QTEST_MAIN(ExportOptionsControllerTest)
#include "ExportOptionsControllerTest.moc"
