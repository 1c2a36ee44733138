#include "editor/PopUpButton.h"

#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A turn of the wheel as it comes from the window system.
void turnWheel(QWidget& widget)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&widget, &event);
}

struct Form {
    Form()
    {
        for (const qint32 tag : {3, 0, 7})
            button.addTaggedItem(u"item %1"_s.arg(tag), tag);
        button.setGeometry(0, 0, 200, 30);
        other.setGeometry(0, 40, 200, 30);
        window.resize(200, 80);
        window.show();
        window.activateWindow();
        other.setFocus();
    }

    QWidget window;
    PopUpButton button{&window};
    QLineEdit other{&window};
};

} // namespace

class PopUpButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesTheTagOfTheSelectedItem();
    void selectsTheItemWithATag();
    void keepsANumberThatNoItemHas();
    void addsAnUnknownNumberOnce();
    void hasNoTagWithoutItems();
    void choosesByKeyboard();
    void turnsWithTheWheelOnlyWithTheFocus();
};

void PopUpButtonTest::givesTheTagOfTheSelectedItem()
{
    const Form form;
    QCOMPARE(form.button.selectedTag(), 3);
    QVERIFY(!form.button.isEditable());
}

void PopUpButtonTest::selectsTheItemWithATag()
{
    Form form;
    form.button.selectTag(7);
    QCOMPARE(form.button.currentText(), u"item 7"_s);
    QCOMPARE(form.button.selectedTag(), 7);
    form.button.selectTag(0);
    QCOMPARE(form.button.currentText(), u"item 0"_s);
    QCOMPARE(form.button.count(), 3);
}

void PopUpButtonTest::keepsANumberThatNoItemHas()
{
    for (const qint32 tag : {9, -1, std::numeric_limits<qint32>::min()}) {
        Form form;
        form.button.selectTag(tag);
        QCOMPARE(form.button.selectedTag(), tag);
        QCOMPARE(form.button.currentText(), QString::number(tag));
        QCOMPARE(form.button.currentIndex(), 3);
    }
}

void PopUpButtonTest::addsAnUnknownNumberOnce()
{
    Form form;
    form.button.selectTag(9);
    form.button.selectTag(3);
    form.button.selectTag(9);
    QCOMPARE(form.button.count(), 4);
    QCOMPARE(form.button.selectedTag(), 9);
}

void PopUpButtonTest::hasNoTagWithoutItems()
{
    PopUpButton button;
    QCOMPARE(button.selectedTag(), 0);
    button.selectTag(2);
    QCOMPARE(button.selectedTag(), 2);
}

void PopUpButtonTest::choosesByKeyboard()
{
    Form form;
    form.button.setFocus();
    QTest::keyClick(&form.button, Qt::Key_Down);
    QCOMPARE(form.button.selectedTag(), 0);
}

void PopUpButtonTest::turnsWithTheWheelOnlyWithTheFocus()
{
    Form form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    form.other.setFocus();
    turnWheel(form.button);
    QCOMPARE(form.button.selectedTag(), 3);
    QVERIFY(!form.button.hasFocus());
    form.button.setFocus();
    turnWheel(form.button);
    QCOMPARE(form.button.selectedTag(), 0);
}

QTEST_MAIN(PopUpButtonTest)
#include "PopUpButtonTest.moc"
