#include "platform/widgets/InputPause.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

class Window : public QMainWindow {
public:
    Window()
    {
        auto* const content = new QWidget;
        auto* const layout = new QVBoxLayout(content);
        layout->addWidget(&field);
        layout->addWidget(&box);
        setCentralWidget(content);
        auto* const action = new QAction(this);
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_B));
        connect(action, &QAction::triggered, this, [this] { ++commands; });
        auto* const escape = new QAction(this);
        escape->setShortcut(QKeySequence(Qt::Key_Escape));
        connect(escape, &QAction::triggered, this, [this] { ++commands; });
        addActions({action, escape});
        field.setFocus();
    }

    QLineEdit field;
    QCheckBox box{u"A box"_s};
    int commands = 0;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        QMainWindow::paintEvent(event);
    }
};

} // namespace

class InputPauseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keysAreDropped();
    void clicksAreDropped();
    void commandsAreDropped();
    void theCloseButtonDoesNothing();
    void dropsAreRefused();
    void escapeIsTold();
    void aCloseButtonIsTold();
    void escapeMeansNothingForAMoment();
    void aQuestionThatBlocksCanBeAnswered();
    void windowsRepaint();
    void everythingWorksAgainAfterwards();
    void countsAsAWait();

private:
    std::unique_ptr<Window> m_window;
};

void InputPauseTest::init()
{
    m_window = std::make_unique<Window>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

// Events come through the window, as from the desktop, so that shortcuts get their turn.

void InputPauseTest::keysAreDropped()
{
    const InputPause pause([] {});
    QTest::keyClick(m_window->windowHandle(), Qt::Key_A);
    QTest::keyClick(&m_window->field, Qt::Key_A);
    QCOMPARE(m_window->field.text(), QString());
}

void InputPauseTest::clicksAreDropped()
{
    const InputPause pause([] {});
    const QPoint place =
        m_window->box.mapTo(m_window.get(), QPoint(10, m_window->box.height() / 2));
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::mouseClick(&m_window->box, Qt::LeftButton, {}, QPoint(10, m_window->box.height() / 2));
    QVERIFY(!m_window->box.isChecked());
}

void InputPauseTest::commandsAreDropped()
{
    const InputPause pause([] {});
    QTest::keyClick(m_window->windowHandle(), Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(m_window->commands, 0);
}

void InputPauseTest::theCloseButtonDoesNothing()
{
    const InputPause pause([] {});
    m_window->windowHandle()->close(); // as the desktop asks for it
    QVERIFY(m_window->isVisible());
}

void InputPauseTest::dropsAreRefused()
{
    const InputPause pause([] {});
    m_window->field.setAcceptDrops(true);
    QMimeData data;
    data.setText(u"Emma"_s);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&m_window->field, &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&m_window->field, &drop);
    QVERIFY(!drop.isAccepted());
    QCOMPARE(m_window->field.text(), QString());
}

void InputPauseTest::escapeIsTold()
{
    int escapes = 0;
    const InputPause pause([&escapes] { ++escapes; });
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QVERIFY(escapes > 0); // an event of the window also passes its parts
    QCOMPARE(m_window->commands, 0); // not even a shortcut of that key
}

void InputPauseTest::aCloseButtonIsTold()
{
    int escapes = 0;
    const InputPause pause([&escapes] { ++escapes; });
    m_window->windowHandle()->close();
    QVERIFY(escapes > 0);
    QVERIFY(m_window->isVisible());
}

void InputPauseTest::escapeMeansNothingForAMoment()
{
    {
        const InputPause pause([] {});
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    }
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(m_window->commands, 0);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_B, Qt::ControlModifier); // other keys do
    QCOMPARE(m_window->commands, 1);
    // Once nobody has pressed it for a while.
    QTRY_VERIFY(qApp->findChildren<QObject*>(u"escapeAftermath"_s).isEmpty());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(m_window->commands, 2);
}

void InputPauseTest::aQuestionThatBlocksCanBeAnswered()
{
    const InputPause pause([] {});
    QMessageBox question(QMessageBox::Question, QString(), u"Well?"_s, QMessageBox::Ok);
    QTimer::singleShot(0, &question,
        [&question] { QTest::mouseClick(question.button(QMessageBox::Ok), Qt::LeftButton); });
    QCOMPARE(question.exec(), static_cast<int>(QMessageBox::Ok));
}

void InputPauseTest::windowsRepaint()
{
    const InputPause pause([] {});
    const int before = m_window->paints;
    m_window->update();
    QTRY_VERIFY(m_window->paints > before);
}

void InputPauseTest::everythingWorksAgainAfterwards()
{
    {
        const InputPause pause([] {});
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
    }
    QVERIFY(!QGuiApplication::overrideCursor());
    QTest::keyClick(m_window->windowHandle(), Qt::Key_A);
    QCOMPARE(m_window->field.text(), u"a"_s);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(m_window->commands, 1);
    const QPoint place =
        m_window->box.mapTo(m_window.get(), QPoint(10, m_window->box.height() / 2));
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, place);
    QVERIFY(m_window->box.isChecked());
}

void InputPauseTest::countsAsAWait()
{
    QVERIFY(!Waiting::isWaiting());
    {
        const InputPause pause([] {});
        QVERIFY(Waiting::isWaiting());
    }
    QVERIFY(!Waiting::isWaiting());
}

} // namespace tomely

QTEST_MAIN(tomely::InputPauseTest)
#include "InputPauseTest.moc"
