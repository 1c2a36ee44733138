#include "editor/CompletingComboBox.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QStringList authors{u"Carver"_s, u"Abcarian"_s, u"Carroll"_s, u"Jane Austen"_s};

QStringList numberedValues(int count)
{
    QStringList values;
    for (int index = 0; index < count; ++index)
        values.append(u"Author number %1"_s.arg(index));
    return values;
}

struct Form {
    explicit Form(const QStringList& values = authors)
    {
        combo.setValues(values);
        combo.setGeometry(0, 0, 200, 30);
        other.setGeometry(0, 40, 200, 30);
        window.resize(200, 80);
        window.show();
        window.activateWindow();
        combo.setFocus();
    }

    QString text() const { return combo.currentText(); }

    QString selection() const { return combo.lineEdit()->selectedText(); }

    void type(const QString& keys) { QTest::keyClicks(&combo, keys); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&combo, key, modifiers);
    }

    void compose(const QString& preedit, const QString& commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&combo, &event);
    }

    QWidget window;
    CompletingComboBox combo{&window};
    QLineEdit other{&window};
};

} // namespace

class CompletingComboBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void completesWithTheFirstEntryThatBeginsSo_data();
    void completesWithTheFirstEntryThatBeginsSo();
    void showsTheRestOfTheEntrySelected();
    void typesOnOverTheCompletion();
    void keepsTheTypedLetterCaseWithoutAMatch();
    void restoresTheTypedLetterCaseOnBackspace();
    void completesAWholeEntryInItsLetterCase();
    void doesNotCompleteWhileDeleting();
    void doesNotCompleteInTheMiddle();
    void doesNotCompleteWhatIsPasted();
    void completesWhatAnInputMethodWrote();
    void keepsTheCompletionWhenTheFieldIsLeft();
    void keepsTheCompletionOnReturn();
    void acceptsTheCompletionWithTheRightKey();
    void undoesBackToWhatWasThere();
    void leavesTheFieldAloneWhenTheListChanges();
    void keepsTheListInItsOrder();
    void leavesTheLetterCaseOfATypedTextAlone();
    void keepsALongText();
    void walksTheListFromWhatIsShown();
    void choosesFromThePopUp();
    void showsAFewRows_data();
    void showsAFewRows();
    void turnsWithTheWheelOnlyWithTheFocus();
    void isFastWithManyValues();
};

void CompletingComboBoxTest::completesWithTheFirstEntryThatBeginsSo_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("completion");
    const auto row = [](const char* name, const QStringList& values, const QString& typed,
                         const QString& completion) {
        QTest::newRow(name) << values << typed << completion;
    };
    row("prefix", {u"Carver"_s, u"Abcarian"_s}, u"ca"_s, u"Carver"_s);
    row("not in the middle", {u"Abcarian"_s}, u"ca"_s, {});
    row("first in the list's order", {u"Carver"_s, u"Carroll"_s}, u"car"_s, u"Carver"_s);
    row("capitals", {u"carver"_s}, u"CAR"_s, u"carver"_s);
    row("all of it", {u"Carver"_s}, u"carver"_s, u"Carver"_s);
    row("more than it", {u"Carver"_s}, u"carvers"_s, {});
    row("nothing typed", {u"Carver"_s}, {}, {});
    row("empty text typed", {u"Carver"_s}, u""_s, {});
    row("no list", {}, u"ca"_s, {});
    row("umlaut", {u"Österreich"_s}, u"ös"_s, u"Österreich"_s);
    row("empty entry", {u""_s, u"Carver"_s}, u"c"_s, u"Carver"_s);
}

void CompletingComboBoxTest::completesWithTheFirstEntryThatBeginsSo()
{
    QFETCH(const QStringList, values);
    QFETCH(const QString, typed);
    QFETCH(const QString, completion);
    CompletingComboBox combo;
    combo.setValues(values);
    QCOMPARE(combo.completion(typed), completion);
    QCOMPARE(combo.completion(typed).isNull(), completion.isNull());
}

void CompletingComboBoxTest::showsTheRestOfTheEntrySelected()
{
    Form form;
    form.type(u"ca"_s);
    QCOMPARE(form.text(), u"Carver"_s);
    QCOMPARE(form.selection(), u"rver"_s);
}

void CompletingComboBoxTest::typesOnOverTheCompletion()
{
    Form form;
    form.type(u"carr"_s);
    QCOMPARE(form.text(), u"Carroll"_s);
    QCOMPARE(form.selection(), u"oll"_s);
}

void CompletingComboBoxTest::keepsTheTypedLetterCaseWithoutAMatch()
{
    Form form;
    form.type(u"cab"_s);
    QCOMPARE(form.text(), u"cab"_s);
    QCOMPARE(form.selection(), QString());
    form.type(u"s"_s);
    QCOMPARE(form.text(), u"cabs"_s);
}

void CompletingComboBoxTest::restoresTheTypedLetterCaseOnBackspace()
{
    Form form;
    form.type(u"jANE"_s);
    QCOMPARE(form.text(), u"Jane Austen"_s);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.text(), u"jANE"_s);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.text(), u"jAN"_s);
    form.type(u"e"_s);
    QCOMPARE(form.text(), u"Jane Austen"_s);
}

void CompletingComboBoxTest::completesAWholeEntryInItsLetterCase()
{
    Form form;
    form.type(u"carver"_s);
    QCOMPARE(form.text(), u"Carver"_s);
    form.type(u"s"_s);
    QCOMPARE(form.text(), u"carvers"_s);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.text(), u"carver"_s);
}

void CompletingComboBoxTest::doesNotCompleteWhileDeleting()
{
    Form form;
    form.combo.lineEdit()->setText(u"Carves"_s);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.text(), u"Carve"_s);
    form.press(Qt::Key_Left);
    form.press(Qt::Key_Delete);
    QCOMPARE(form.text(), u"Carv"_s);
    form.type(u"e"_s);
    QCOMPARE(form.text(), u"Carver"_s);
    form.press(Qt::Key_Delete);
    QCOMPARE(form.text(), u"Carve"_s);
}

void CompletingComboBoxTest::doesNotCompleteInTheMiddle()
{
    Form form;
    form.combo.lineEdit()->setText(u"cr"_s);
    form.combo.lineEdit()->setCursorPosition(1);
    form.type(u"a"_s);
    QCOMPARE(form.text(), u"car"_s);
    QCOMPARE(form.combo.lineEdit()->cursorPosition(), 2);
}

void CompletingComboBoxTest::doesNotCompleteWhatIsPasted()
{
    Form form;
    QGuiApplication::clipboard()->setText(u"ca"_s);
    form.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.text(), u"ca"_s);
    form.press(Qt::Key_Home);
    form.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form.text(), u"caca"_s);
}

void CompletingComboBoxTest::completesWhatAnInputMethodWrote()
{
    Form form(QStringList{u"Émile Zola"_s, u"Carver"_s});
    form.compose(u"´"_s, {});
    QCOMPARE(form.text(), QString());
    form.compose({}, u"é"_s);
    QCOMPARE(form.text(), u"Émile Zola"_s);
    QCOMPARE(form.selection(), u"mile Zola"_s);
    // Composing in place of the completion.
    form.compose(u"´"_s, {});
    form.compose({}, u"è"_s);
    QCOMPARE(form.text(), u"éè"_s);
    form.combo.clearEditText();
    form.type(u"ca"_s);
    form.compose(u"x"_s, {});
    form.compose({}, {});
    QCOMPARE(form.text(), u"ca"_s);
}

void CompletingComboBoxTest::keepsTheCompletionWhenTheFieldIsLeft()
{
    Form form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    form.type(u"ca"_s);
    form.press(Qt::Key_Tab);
    QVERIFY(form.other.hasFocus());
    QCOMPARE(form.text(), u"Carver"_s);
    form.combo.setFocus();
    form.press(Qt::Key_End);
    form.type(u"s"_s);
    QCOMPARE(form.text(), u"Carvers"_s);
}

void CompletingComboBoxTest::keepsTheCompletionOnReturn()
{
    Form form;
    form.type(u"ca"_s);
    form.press(Qt::Key_Return);
    QCOMPARE(form.text(), u"Carver"_s);
    QCOMPARE(form.selection(), QString());
    form.type(u"s"_s);
    QCOMPARE(form.text(), u"Carvers"_s);
}

void CompletingComboBoxTest::acceptsTheCompletionWithTheRightKey()
{
    Form form;
    form.type(u"ca"_s);
    form.press(Qt::Key_Right);
    QCOMPARE(form.combo.lineEdit()->cursorPosition(), 6);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.text(), u"Carve"_s);
}

void CompletingComboBoxTest::undoesBackToWhatWasThere()
{
    Form form;
    form.combo.lineEdit()->setText(u"Old"_s);
    form.combo.lineEdit()->selectAll();
    form.type(u"car"_s);
    QCOMPARE(form.text(), u"Carver"_s);
    for (int step = 0; step < 20 && form.text() != u"Old"_s; ++step)
        form.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.text(), u"Old"_s);
}

void CompletingComboBoxTest::leavesTheFieldAloneWhenTheListChanges()
{
    Form form;
    form.type(u"xyz"_s);
    form.press(Qt::Key_Left, Qt::ShiftModifier);
    QSignalSpy changes(&form.combo, &QComboBox::editTextChanged);
    for (const QStringList& values : {numberedValues(3), QStringList(), QStringList{u"One"_s}}) {
        form.combo.setValues(values);
        QCOMPARE(form.combo.values(), values);
        QCOMPARE(form.text(), u"xyz"_s);
        QCOMPARE(form.selection(), u"z"_s);
        QCOMPARE(form.combo.lineEdit()->cursorPosition(), 2);
    }
    QCOMPARE(changes.count(), 0);
    form.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(form.text(), QString());
}

void CompletingComboBoxTest::keepsTheListInItsOrder()
{
    CompletingComboBox combo;
    const QStringList values{u"b"_s, u"a"_s, u"b"_s, u""_s, u"B"_s};
    combo.setValues(values);
    QCOMPARE(combo.values(), values);
    QCOMPARE(combo.count(), 5);
    QCOMPARE(combo.itemText(4), u"B"_s);
    QCOMPARE(combo.currentText(), QString());
}

void CompletingComboBoxTest::leavesTheLetterCaseOfATypedTextAlone()
{
    Form form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    form.combo.setEditText(u"carver"_s);
    form.press(Qt::Key_Return);
    form.press(Qt::Key_Tab);
    QCOMPARE(form.text(), u"carver"_s);
    QCOMPARE(form.combo.values(), authors);
}

void CompletingComboBoxTest::keepsALongText()
{
    CompletingComboBox combo;
    const QString text(100'000, u'x');
    combo.setEditText(text);
    QCOMPARE(combo.currentText(), text);
}

void CompletingComboBoxTest::walksTheListFromWhatIsShown()
{
    Form form;
    form.combo.setEditText(u"Abcarian"_s);
    form.press(Qt::Key_Down);
    QCOMPARE(form.text(), u"Carroll"_s);
    form.press(Qt::Key_Up);
    form.press(Qt::Key_Up);
    QCOMPARE(form.text(), u"Carver"_s);
}

void CompletingComboBoxTest::choosesFromThePopUp()
{
    Form form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    form.combo.setEditText(u"Abcarian"_s);
    form.press(Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(form.combo.view()->isVisible());
    QCOMPARE(form.combo.view()->currentIndex().row(), 1);
    QTest::keyClick(form.combo.view(), Qt::Key_Down);
    QTest::keyClick(form.combo.view(), Qt::Key_Return);
    QTRY_VERIFY(!form.combo.view()->isVisible());
    QCOMPARE(form.text(), u"Carroll"_s);
}

void CompletingComboBoxTest::showsAFewRows_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rows");
    QTest::newRow("none") << 0 << 3;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("four") << 4 << 4;
    QTest::newRow("fifteen") << 15 << 15;
    QTest::newRow("twenty") << 20 << 15;
}

void CompletingComboBoxTest::showsAFewRows()
{
    QFETCH(const int, count);
    CompletingComboBox combo;
    combo.setValues(numberedValues(count));
    combo.updateVisibleItems();
    QTEST(combo.maxVisibleItems(), "rows");
}

void CompletingComboBoxTest::turnsWithTheWheelOnlyWithTheFocus()
{
    Form form;
    QVERIFY(QTest::qWaitForWindowActive(&form.window));
    form.combo.setEditText(u"Carver"_s);
    const auto turnWheel = [&form] {
        QLineEdit* const field = form.combo.lineEdit();
        const QPointF middle = QRectF(field->rect()).center();
        QWheelEvent event(middle, field->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(field, &event);
    };
    form.other.setFocus();
    turnWheel();
    QCOMPARE(form.text(), u"Carver"_s);
    QVERIFY(form.other.hasFocus());
    form.combo.setFocus();
    turnWheel();
    QCOMPARE(form.text(), u"Abcarian"_s);
}

void CompletingComboBoxTest::isFastWithManyValues()
{
    Form form;
    const QStringList values = numberedValues(50'000);
    QElapsedTimer timer;
    timer.start();
    form.combo.setValues(values);
    form.combo.updateVisibleItems();
    form.combo.sizeHint();
    QVERIFY2(timer.elapsed() < 50, qPrintable(QString::number(timer.elapsed())));
    timer.restart();
    form.type(u"author number 4999"_s);
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    timer.restart();
    form.combo.showPopup();
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    form.combo.hidePopup();
    QCOMPARE(form.text(), u"Author number 4999"_s);
}

QTEST_MAIN(CompletingComboBoxTest)
#include "CompletingComboBoxTest.moc"
