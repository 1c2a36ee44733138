#include "editor/EditableLabel.h"

#include <QAction>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A window that would close on Escape and save on Return, if these keys came through.
class Window : public QWidget {
public:
    Window()
    {
        label.setText(u"Shelf"_s);
        label.setGeometry(0, 0, 200, 30);
        field.setGeometry(0, 40, 200, 30);
        resize(200, 80);
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            auto* const action = new QAction(this);
            action->setShortcut(key);
            connect(action, &QAction::triggered, this, [this] { ++shortcuts; });
            addAction(action);
        }
        show();
        activateWindow();
        field.setFocus();
    }

    EditableLabel label{this};
    QLineEdit field{this};
    int keys = 0;
    int shortcuts = 0;
    int presses = 0;

protected:
    void keyPressEvent(QKeyEvent*) override { ++keys; }

    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

void doubleClick(QWidget& widget, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(&widget, button);
    QTest::mouseDClick(&widget, button);
}

} // namespace

class EditableLabelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isALabelAtFirst();
    void editsOnADoubleClick();
    void doesNotEditOnOtherClicks();
    void tellsTheNewTextOnReturn();
    void tellsTheNewTextWhenItIsLeft();
    void tellsTheNewTextWhenItsOwnerEndsEditing();
    void tellsNothingWhenNothingChanged();
    void restoresTheTextOnEscape();
    void keepsItsKeysFromTheWindow();
    void givesTheFocusBack();
    void goesOnInAnotherWindow();
    void keepsWhatIsTypedWhenTheTextIsSet();
    void takesATextThatIsSetBeforeTyping();
    void doesNotUndoAnEarlierRenaming();
    void canBeRenamedFromWhereItIsToldOf();
    void isAsWideAsItsText();
    void doesNotShrinkWhileEditing();
    void paintsLikeALabel();
    void tellsItsTextInFull();
    void keepsALongText();
};

void EditableLabelTest::isALabelAtFirst()
{
    Window window;
    QVERIFY(!window.label.isEditing());
    QVERIFY(window.label.isReadOnly());
    QCOMPARE(window.label.focusPolicy(), Qt::NoFocus);
    QCOMPARE(window.label.contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(window.label.text(), u"Shelf"_s);
}

void EditableLabelTest::editsOnADoubleClick()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    doubleClick(window.label);
    QVERIFY(window.label.isEditing());
    QVERIFY(window.label.hasFocus());
    QCOMPARE(window.label.selectedText(), u"Shelf"_s);
    QTest::keyClicks(&window.label, u"Room"_s);
    QCOMPARE(window.label.text(), u"Room"_s);
}

void EditableLabelTest::doesNotEditOnOtherClicks()
{
    Window window;
    QTest::mouseClick(&window.label, Qt::LeftButton);
    QVERIFY(!window.label.isEditing());
    QCOMPARE(window.presses, 1); // the click is the window's, as on any label
    doubleClick(window.label, Qt::RightButton);
    QVERIFY(!window.label.isEditing());
    QTest::keyClicks(&window.label, u"x"_s);
    QCOMPARE(window.label.text(), u"Shelf"_s);
}

void EditableLabelTest::tellsTheNewTextOnReturn()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Window window;
        QSignalSpy edited(&window.label, &EditableLabel::edited);
        window.label.startEditing();
        QTest::keyClicks(&window.label, u" Room "_s);
        QCOMPARE(edited.count(), 0);
        QTest::keyClick(&window.label, key);
        QVERIFY(!window.label.isEditing());
        QVERIFY(window.label.isReadOnly());
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited[0][0].toString(), u" Room "_s);
        QCOMPARE(window.label.text(), u" Room "_s);
    }
}

void EditableLabelTest::tellsTheNewTextWhenItIsLeft()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Tab);
    QVERIFY(window.field.hasFocus());
    QVERIFY(!window.label.isEditing());
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited[0][0].toString(), u"Room"_s);
}

void EditableLabelTest::tellsTheNewTextWhenItsOwnerEndsEditing()
{
    Window window;
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.endEditing();
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    window.label.endEditing();
    window.label.endEditing();
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited[0][0].toString(), u"Room"_s);
    window.label.startEditing();
    QTest::keyClick(&window.label, Qt::Key_Delete);
    window.label.endEditing();
    QCOMPARE(edited.count(), 2);
    QCOMPARE(edited[1][0].toString(), u""_s);
}

void EditableLabelTest::tellsNothingWhenNothingChanged()
{
    Window window;
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.startEditing();
    QTest::keyClick(&window.label, Qt::Key_Return);
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Shelf"_s);
    QTest::keyClick(&window.label, Qt::Key_Return);
    QVERIFY(!window.label.isEditing());
    QCOMPARE(edited.count(), 0);
}

void EditableLabelTest::restoresTheTextOnEscape()
{
    Window window;
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Escape);
    QVERIFY(!window.label.isEditing());
    QCOMPARE(window.label.text(), u"Shelf"_s);
    QCOMPARE(edited.count(), 0);
}

void EditableLabelTest::keepsItsKeysFromTheWindow()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        window.label.startEditing();
        QTest::keyClick(&window.label, key);
        QCOMPARE(window.keys, 0);
        QCOMPARE(window.shortcuts, 0);
    }
    // Otherwise the above could not fail.
    QTest::keyClick(&window.field, Qt::Key_Escape);
    QCOMPARE(window.shortcuts, 1);
}

void EditableLabelTest::givesTheFocusBack()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        window.label.startEditing();
        QVERIFY(window.label.hasFocus());
        QTest::keyClick(&window.label, key);
        QVERIFY(window.field.hasFocus());
        QCOMPARE(window.label.focusPolicy(), Qt::NoFocus);
    }
    window.field.clearFocus();
    window.label.startEditing();
    QTest::keyClick(&window.label, Qt::Key_Return);
    QVERIFY(!window.label.hasFocus());
}

void EditableLabelTest::goesOnInAnotherWindow()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(window.label.isEditing());
    QCOMPARE(window.label.text(), u"Room"_s);
}

void EditableLabelTest::keepsWhatIsTypedWhenTheTextIsSet()
{
    Window window;
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    window.label.setText(u"Rack"_s);
    QCOMPARE(window.label.text(), u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Escape);
    QCOMPARE(window.label.text(), u"Rack"_s);
    QCOMPARE(edited.count(), 0);
}

void EditableLabelTest::takesATextThatIsSetBeforeTyping()
{
    Window window;
    QSignalSpy edited(&window.label, &EditableLabel::edited);
    window.label.startEditing();
    window.label.setText(u"Rack"_s);
    QCOMPARE(window.label.text(), u"Rack"_s);
    QCOMPARE(window.label.selectedText(), u"Rack"_s);
    QTest::keyClick(&window.label, Qt::Key_Return);
    QCOMPARE(edited.count(), 0);
}

void EditableLabelTest::doesNotUndoAnEarlierRenaming()
{
    Window window;
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Return);
    window.label.startEditing();
    QTest::keyClick(&window.label, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(window.label.text(), u"Room"_s);
}

void EditableLabelTest::canBeRenamedFromWhereItIsToldOf()
{
    Window window;
    connect(&window.label, &EditableLabel::edited, &window.label,
        [&window](const QString& text) { window.label.setText(text + u':'); });
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Return);
    QCOMPARE(window.label.text(), u"Room:"_s);
    QVERIFY(!window.label.isEditing());
}

void EditableLabelTest::isAsWideAsItsText()
{
    EditableLabel label;
    const auto widthOf = [&label](const QString& text) {
        label.setText(text);
        return label.sizeHint().width();
    };
    const int shortest = widthOf({});
    QCOMPARE(widthOf(u"Shelf"_s), shortest);
    const int middle = widthOf(u"Where it is kept"_s);
    QVERIFY(middle > shortest);
    QVERIFY(middle >= label.fontMetrics().horizontalAdvance(u"Where it is kept"_s));
    const int longest = widthOf(QString(1'000'000, u'm'));
    QVERIFY(longest > middle);
    QVERIFY(longest < 30 * label.fontMetrics().averageCharWidth());
    QCOMPARE(label.minimumSizeHint().width(), shortest);
    QCOMPARE(label.sizeHint().height(), QLineEdit().sizeHint().height());
}

void EditableLabelTest::doesNotShrinkWhileEditing()
{
    Window window;
    window.label.setText(u"Where it is kept"_s);
    const int width = window.label.sizeHint().width();
    window.label.startEditing();
    QTest::keyClicks(&window.label, u"x"_s);
    QCOMPARE(window.label.sizeHint().width(), width);
    QTest::keyClick(&window.label, Qt::Key_Return);
    QVERIFY(window.label.sizeHint().width() < width);
}

void EditableLabelTest::paintsLikeALabel()
{
    Window window;
    window.label.setText({});
    const auto colors = [&window] {
        const QImage image = window.label.grab().toImage();
        QSet<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found.insert(image.pixel(x, y));
        }
        return found;
    };
    const QRgb background = window.palette().color(QPalette::Window).rgb();
    QCOMPARE(colors(), QSet<QRgb>{background});
    window.label.setText(u"Shelf"_s);
    QVERIFY(colors().contains(background));
    QVERIFY(colors().size() > 1);
    window.label.setText({});
    window.label.startEditing();
    QVERIFY(colors().contains(window.palette().color(QPalette::Base).rgb()));
}

void EditableLabelTest::tellsItsTextInFull()
{
    Window window;
    const QString name = u"Everything <b>there</b> is to say about the place where it is kept"_s;
    window.label.setText(name);
    QCOMPARE(window.label.accessibleName(), name);
    QVERIFY(window.label.toolTip().contains(name.toHtmlEscaped()));
    QVERIFY(window.label.toolTip().contains(u"Double-click to rename"_s));
    window.label.startEditing();
    QVERIFY(window.label.toolTip().isEmpty());
    QTest::keyClicks(&window.label, u"Room"_s);
    QTest::keyClick(&window.label, Qt::Key_Return);
    QCOMPARE(window.label.accessibleName(), u"Room"_s);
    QVERIFY(window.label.toolTip().contains(u"Room"_s));
}

void EditableLabelTest::keepsALongText()
{
    EditableLabel label;
    const QString text(100'000, u'x');
    label.setText(text);
    QCOMPARE(label.text(), text);
    label.grab();
}

QTEST_MAIN(EditableLabelTest)
#include "EditableLabelTest.moc"
