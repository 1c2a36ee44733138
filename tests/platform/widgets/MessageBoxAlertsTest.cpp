#include "platform/widgets/MessageBoxAlerts.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The alert that is on screen; nullptr when none is.
QMessageBox* shownAlert()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"alert"_s && widget->isVisible())
            return qobject_cast<QMessageBox*>(widget);
    }
    return nullptr;
}

QPushButton* button(int index)
{
    return shownAlert()->findChild<QPushButton*>(u"alertButton"_s + QString::number(index));
}

/// What a person reads on a label, whatever its text is written in.
QString readText(const QLabel& label)
{
    const bool isRich = label.textFormat() == Qt::RichText
        || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    if (!isRich)
        return label.text();
    QTextDocument document;
    document.setHtml(label.text());
    return document.toPlainText();
}

QString readInformativeText()
{
    return readText(*shownAlert()->findChild<QLabel*>(u"qt_msgbox_informativelabel"_s));
}

/// Calls `act` as soon as an alert is on screen, also when that blocks.
template <class Act>
void whenShown(QObject* context, Act act)
{
    auto* const timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act] {
        if (!shownAlert())
            return;
        timer->deleteLater();
        timer->stop();
        act();
    });
    timer->start(1);
}

const Alert threeButtons{u"Save?"_s, {u"Save"_s, u"Don't Save"_s, u"Cancel"_s}, 0, 2};

} // namespace

class MessageBoxAlertsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void init() { m_answers.clear(); }

    void cleanup() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    void saysTheProgramsNameAboveTheText();
    void showsEveryTextAsItIs_data();
    void showsEveryTextAsItIs();
    void returnsAtOnceFromASheet();
    void answersWithTheButton_data();
    void answersWithTheButton();
    void takesEscapeAsItsButton_data();
    void takesEscapeAsItsButton();
    void takesReturnAsTheButtonInFocus_data();
    void takesReturnAsTheButtonInFocus();
    void leavesNothingBehind();
    void answersNobodyWhenTheWindowGoes();
    void belongsToNoWindowWithoutOne();
    void blocksUntilItIsAnswered_data();
    void blocksUntilItIsAnswered();

private:
    std::function<void(int)> collect()
    {
        return [this](int answer) {
            m_answers.append(answer);
        };
    }

    MessageBoxAlerts m_alerts;
    QList<int> m_answers;
};

void MessageBoxAlertsTest::saysTheProgramsNameAboveTheText()
{
    QWidget window;
    window.show();
    m_alerts.beginSheet(&window, messageAlert(u"All is well."_s), collect());
    QVERIFY(shownAlert());
    QCOMPARE(readText(*shownAlert()->findChild<QLabel*>(u"qt_msgbox_label"_s)), u"Tomely"_s);
    QVERIFY(shownAlert()->text().contains(u"<b>"_s));
    QCOMPARE(readInformativeText(), u"All is well."_s);
    QCOMPARE(button(0)->text().remove(u'&'), u"OK"_s);
    QVERIFY(!button(1));
}

void MessageBoxAlertsTest::showsEveryTextAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("two paragraphs") << u"First.\n\nSecond."_s;
    QTest::newRow("ampersand") << u"Are you sure you want to delete 'Tom & Jerry'?"_s;
    QTest::newRow("tags") << u"Are you sure you want to delete '<b>Bold</b>'?"_s;
    QTest::newRow("tags and lines") << u"'<i>Emma</i>'\n& more"_s;
    QTest::newRow("less than") << u"'a < b' & 'c > d'"_s;
    QTest::newRow("an entity") << u"'&lt;&amp;'"_s;
    QTest::newRow("quotes") << u"'\"Surely You're Joking\"'"_s;
    QTest::newRow("spaces") << u"'two  spaces'"_s;
}

void MessageBoxAlertsTest::showsEveryTextAsItIs()
{
    QFETCH(const QString, text);
    QWidget window;
    window.show();
    m_alerts.beginSheet(&window, messageAlert(text), collect());
    QCOMPARE(readInformativeText(), text);
}

void MessageBoxAlertsTest::returnsAtOnceFromASheet()
{
    QWidget window;
    window.show();
    m_alerts.beginSheet(&window, threeButtons, collect());
    QVERIFY(m_answers.isEmpty());
    QCOMPARE(shownAlert()->parentWidget(), &window);
    QCOMPARE(shownAlert()->windowModality(), Qt::WindowModal);
}

void MessageBoxAlertsTest::answersWithTheButton_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("third") << 2;
}

void MessageBoxAlertsTest::answersWithTheButton()
{
    QFETCH(const int, index);
    QWidget window;
    window.show();
    m_alerts.beginSheet(&window, threeButtons, collect());
    QTest::mouseClick(button(index), Qt::LeftButton);
    QCOMPARE(m_answers, QList<int>{index});
    QVERIFY(!shownAlert());
}

void MessageBoxAlertsTest::takesEscapeAsItsButton_data()
{
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("escapeButton");
    QTest::newRow("Cancel") << threeButtons.buttons << 2;
    QTest::newRow("No") << confirmationAlert({}).buttons << 1;
    QTest::newRow("OK") << messageAlert({}).buttons << 0;
}

void MessageBoxAlertsTest::takesEscapeAsItsButton()
{
    QFETCH(const QStringList, buttons);
    QFETCH(const int, escapeButton);
    QWidget window;
    window.show();
    const Alert alert{u"Text"_s, buttons, 0, escapeButton};
    m_alerts.beginSheet(&window, alert, collect());
    QVERIFY(QTest::qWaitForWindowActive(shownAlert()));
    QTest::keyClick(shownAlert(), Qt::Key_Escape);
    QCOMPARE(m_answers, QList<int>{escapeButton});
    m_alerts.beginSheet(&window, alert, collect());
    shownAlert()->close();
    QCOMPARE(m_answers, QList<int>({escapeButton, escapeButton}));
}

void MessageBoxAlertsTest::takesReturnAsTheButtonInFocus_data()
{
    QTest::addColumn<bool>("isConfirmation");
    QTest::addColumn<int>("answer");
    QTest::newRow("a destructive question") << true << 1;
    QTest::newRow("closing") << false << 0;
}

void MessageBoxAlertsTest::takesReturnAsTheButtonInFocus()
{
    QFETCH(const bool, isConfirmation);
    QFETCH(const int, answer);
    QWidget window;
    window.show();
    m_alerts.beginSheet(
        &window, isConfirmation ? confirmationAlert(u"Sure?"_s) : threeButtons, collect());
    QVERIFY(QTest::qWaitForWindowActive(shownAlert()));
    QTRY_COMPARE(shownAlert()->focusWidget(), button(answer));
    QTest::keyClick(shownAlert()->focusWidget(), Qt::Key_Return);
    QCOMPARE(m_answers, QList<int>{answer});
}

void MessageBoxAlertsTest::leavesNothingBehind()
{
    QWidget window;
    window.show();
    m_alerts.beginSheet(&window, threeButtons, {});
    const QPointer<QMessageBox> box = shownAlert();
    QTest::mouseClick(button(0), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!box);
}

void MessageBoxAlertsTest::answersNobodyWhenTheWindowGoes()
{
    auto window = std::make_unique<QWidget>();
    window->show();
    m_alerts.beginSheet(window.get(), threeButtons, collect());
    const QPointer<QMessageBox> box = shownAlert();
    window.reset();
    QVERIFY(!box);
    QVERIFY(m_answers.isEmpty());
}

void MessageBoxAlertsTest::belongsToNoWindowWithoutOne()
{
    QObject noWidget;
    m_alerts.beginSheet(&noWidget, threeButtons, collect());
    QVERIFY(!shownAlert()->parentWidget());
    QTest::mouseClick(button(1), Qt::LeftButton);
    m_alerts.beginSheet(nullptr, threeButtons, collect());
    QVERIFY(!shownAlert()->parentWidget());
    QTest::mouseClick(button(2), Qt::LeftButton);
    QCOMPARE(m_answers, QList<int>({1, 2}));
}

void MessageBoxAlertsTest::blocksUntilItIsAnswered_data()
{
    QTest::addColumn<int>("index"); // -1: Escape
    QTest::addColumn<int>("answer");
    QTest::newRow("Save") << 0 << 0;
    QTest::newRow("Don't Save") << 1 << 1;
    QTest::newRow("Cancel") << 2 << 2;
    QTest::newRow("Escape") << -1 << 2;
}

void MessageBoxAlertsTest::blocksUntilItIsAnswered()
{
    QFETCH(const int, index);
    QFETCH(const int, answer);
    QObject context;
    Qt::WindowModality modality = Qt::NonModal;
    whenShown(&context, [&] {
        modality = shownAlert()->windowModality();
        if (index < 0)
            QTest::keyClick(shownAlert(), Qt::Key_Escape);
        else
            QTest::mouseClick(button(index), Qt::LeftButton);
    });
    QCOMPARE(m_alerts.runModal(threeButtons), answer);
    QCOMPARE(modality, Qt::ApplicationModal);
    QVERIFY(!shownAlert());
}

QTEST_MAIN(MessageBoxAlertsTest)
#include "MessageBoxAlertsTest.moc"
