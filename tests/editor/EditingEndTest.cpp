#include "editor/EditingEnd.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace tomely {

class EditingEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tabEndsIt();
    void returnEndsIt();
    void isToldFromTheEventLoopAndOnce();
    void goingAndComingBackEndsNothing_data();
    void goingAndComingBackEndsNothing();
    void anotherWindowEndsNothing();
    void whoIsBackAlreadyHasNotFinished();
    void aClickDoesItsWorkFirst();
    void anOpenListIsLeftAlone();

private:
    struct Window : QWidget {
        Window();
        QLineEdit field;
        QLineEdit other;
        QPushButton button;
        QComboBox list;
    };

    /// Lets everything that was posted happen.
    static void settle() { QCoreApplication::processEvents(); }

    std::unique_ptr<Window> m_window;
    std::unique_ptr<QSignalSpy> m_ends;
};

EditingEndTest::Window::Window()
{
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const widget : std::initializer_list<QWidget*>{&field, &other, &button, &list})
        layout->addWidget(widget);
    list.addItems({u"One"_s, u"Two"_s, u"Three"_s});
}

void EditingEndTest::init()
{
    m_ends.reset();
    m_window = std::make_unique<Window>();
    auto* const end = new EditingEnd(m_window->field);
    m_ends = std::make_unique<QSignalSpy>(end, &EditingEnd::editingEnded);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->field.setFocus();
    QTRY_VERIFY(m_window->field.hasFocus());
    settle();
    QCOMPARE(m_ends->size(), 0);
}

void EditingEndTest::tabEndsIt()
{
    QTest::keyClick(&m_window->field, Qt::Key_Tab);
    QTRY_COMPARE(m_ends->size(), 1);
    QVERIFY(m_window->other.hasFocus());
}

void EditingEndTest::returnEndsIt()
{
    QTest::keyClick(&m_window->field, Qt::Key_Return);
    QTRY_COMPARE(m_ends->size(), 1);
    QVERIFY(m_window->field.hasFocus());
    QTest::keyClick(&m_window->field, Qt::Key_Enter);
    QTRY_COMPARE(m_ends->size(), 2);
}

void EditingEndTest::isToldFromTheEventLoopAndOnce()
{
    m_window->other.setFocus(Qt::TabFocusReason);
    m_window->field.setFocus(Qt::TabFocusReason);
    m_window->other.setFocus(Qt::TabFocusReason);
    QCOMPARE(m_ends->size(), 0);
    QTRY_COMPARE(m_ends->size(), 1);
    settle();
    QCOMPARE(m_ends->size(), 1);
}

void EditingEndTest::goingAndComingBackEndsNothing_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("to another window") << Qt::ActiveWindowFocusReason;
    QTest::newRow("into a menu of its own") << Qt::PopupFocusReason;
    QTest::newRow("into the menu bar") << Qt::MenuBarFocusReason;
}

void EditingEndTest::goingAndComingBackEndsNothing()
{
    QFETCH(const Qt::FocusReason, reason);
    m_window->other.setFocus(reason);
    settle();
    QCOMPARE(m_ends->size(), 0);
}

void EditingEndTest::anotherWindowEndsNothing()
{
    QLineEdit another;
    another.show();
    another.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&another));
    QVERIFY(!m_window->field.hasFocus());
    settle();
    QCOMPARE(m_ends->size(), 0);
}

void EditingEndTest::whoIsBackAlreadyHasNotFinished()
{
    m_window->other.setFocus(Qt::TabFocusReason);
    m_window->field.setFocus(Qt::BacktabFocusReason);
    settle();
    QCOMPARE(m_ends->size(), 0);
    m_window->other.setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(m_ends->size(), 1);
}

void EditingEndTest::aClickDoesItsWorkFirst()
{
    QStringList order;
    connect(&m_window->button, &QPushButton::clicked, this, [&order] { order.append(u"click"_s); });
    connect(m_window->field.findChild<EditingEnd*>(), &EditingEnd::editingEnded, this,
        [&order] { order.append(u"end"_s); });
    QWindow* const window = m_window->windowHandle();
    const QPoint place = m_window->button.geometry().center();
    QTest::mousePress(window, Qt::LeftButton, {}, place);
    QTRY_VERIFY(m_window->button.isDown());
    QVERIFY(!m_window->field.hasFocus());
    settle();
    QCOMPARE(order, QStringList());
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    QTRY_COMPARE(order, (QStringList{u"click"_s, u"end"_s}));
}

void EditingEndTest::anOpenListIsLeftAlone()
{
    m_window->list.setFocus(Qt::MouseFocusReason);
    m_window->list.showPopup();
    QVERIFY(QApplication::activePopupWidget());
    settle();
    QCOMPARE(m_ends->size(), 0);
    m_window->list.hidePopup();
    QTRY_COMPARE(m_ends->size(), 1);
}

} // namespace tomely

QTEST_MAIN(tomely::EditingEndTest)
#include "EditingEndTest.moc"
