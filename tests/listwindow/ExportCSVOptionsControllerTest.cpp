// The sheet in which a person chooses what a CSV file gets, and its preview.

#include "listwindow/ExportCSVOptionsController.h"

#include "listwindow/engine/CsvExport.h"
#include "platform/widgets/Waiting.h"
#include "tests/support/ExchangeDesk.h"

#include <QAccessible>
#include <QApplication>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QStringList groupNames = {u"exportFilterSelection"_s, u"exportColumnSelection"_s,
    u"exportDateSelection"_s, u"exportGroupSelection"_s, u"exportCheckboxSelection"_s,
    u"exportISBNSelection"_s, u"exportCarriageReturnSelection"_s};
const QList<int> groupSizes = {2, 2, 4, 3, 3, 3, 3};

/// Every choice is another one than that of `CsvChoices()`.
CsvChoices otherChoices()
{
    CsvChoices choices;
    choices.filterSelection = ExportFilter::DisplayedBooks;
    choices.options = {CsvOptions::ColumnSelection::Visible, CsvOptions::DateSelection::YearMonth,
        CsvOptions::GroupSelection::Names, u" | "_s, CsvOptions::CheckboxSelection::YesNo,
        CsvOptions::ISBNSelection::Two, CsvOptions::CarriageReturnSelection::Escape};
    return choices;
}

} // namespace

class ExportCSVOptionsControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isASheetOfItsWindow();
    void offersEveryChoice();
    void countsTheBooks();
    void beginsWithWhatItIsGiven_data();
    void beginsWithWhatItIsGiven();
    void saysWhatWasChosen();
    void enablesTheDelimeterForNamesOnly();
    void previewsWhatTheFileWillHave_data();
    void previewsWhatTheFileWillHave();
    void previewsEveryChoiceInItsOwnWay();
    void previewsWhatIsTyped();
    void previewsThreeBooks();
    void previewsTheDisplayedBooks();
    void cutsWhatIsTooLongToShow();
    void previewsWhatChangedMeanwhile();
    void scrollsThePreviewSideways();
    void isConfirmedWithReturnFromAnywhere_data();
    void isConfirmedWithReturnFromAnywhere();
    void isLeft_data();
    void isLeft();
    void takesNoAnswerDuringAWait();
    void isWalkedByKey();
    void goesToAGroupByItsKey();
    void hasNoKeyTwice();
    void saysWhatItsControlsAre();
    void showsWhatIsChosenByKey();
    void fitsTheScreenInLargeLetters();

private:
    ExportCSVOptionsController& open(const CsvChoices& choices = {});

    template <class Widget>
    Widget& find(const QString& name) const
    {
        return *m_sheet->findChild<Widget*>(name);
    }

    QRadioButton& button(const QString& group, int tag) const;

    QPlainTextEdit& preview() const { return find<QPlainTextEdit>(u"m_idPreview"_s); }

    QLineEdit& delimeter() const { return find<QLineEdit>(u"exportGroupDelimeter"_s); }

    QString writtenText(const CsvChoices& choices) const;

    QTemporaryDir m_folder;
    std::optional<ExchangeDesk> m_desk;
    std::unique_ptr<QMainWindow> m_window;
    QPointer<ExportCSVOptionsController> m_sheet;
    QList<CsvChoices> m_confirmed;
};

void ExportCSVOptionsControllerTest::init()
{
    m_desk.emplace();
    samples::showColumns(m_desk->document, {0, 2, 34, 10});
    BookEntry& emma = *m_desk->document.getBookEntry(u"2"_s);
    emma.setISBN(u"0141439580"_s);
    emma.setMonthPublished(12);
    emma.setYearPublished(u"1815"_s);
    emma.setOwn(true);
    emma.setNotes(u"\"Handsome,\nclever and rich\""_s);
    emma.addToGroup(u"2"_s);
    m_window = std::make_unique<QMainWindow>();
    m_window->show();
    m_confirmed.clear();
}

void ExportCSVOptionsControllerTest::cleanup()
{
    m_window.reset(); // and the sheet with it
    m_desk.reset();
}

ExportCSVOptionsController& ExportCSVOptionsControllerTest::open(const CsvChoices& choices)
{
    m_sheet = new ExportCSVOptionsController(*m_window, m_desk->document, m_desk->engine, choices);
    connect(m_sheet, &ExportCSVOptionsController::confirmed, this,
        [this](const CsvChoices& confirmed) { m_confirmed.append(confirmed); });
    return *m_sheet;
}

QRadioButton& ExportCSVOptionsControllerTest::button(const QString& group, int tag) const
{
    const auto buttons = find<QGroupBox>(group).findChildren<QRadioButton*>();
    return **std::ranges::find_if(
        buttons, [tag](const auto* button) { return button->property("tag").toInt() == tag; });
}

/// What a file written with the choices says.
QString ExportCSVOptionsControllerTest::writtenText(const CsvChoices& choices) const
{
    const QString path = m_folder.filePath(u"out.csv"_s);
    const auto& books = exportableBooks(m_desk->engine, choices.filterSelection);
    const CsvExport csv(m_desk->document, books, choices.options);
    static_cast<void>(csv.write(path));
    return utf16Text(path);
}

void ExportCSVOptionsControllerTest::isASheetOfItsWindow()
{
    open();
    QVERIFY(m_sheet->isVisible());
    QCOMPARE(m_sheet->windowModality(), Qt::WindowModal);
    QCOMPARE(m_sheet->parentWidget(), m_window.get());
    QCOMPARE(m_sheet->windowTitle(), u"Export CSV"_s);
    QVERIFY(find<QPushButton>(u"m_OKButton"_s).isDefault());
}

void ExportCSVOptionsControllerTest::offersEveryChoice()
{
    open();
    for (qsizetype group = 0; group < groupNames.size(); ++group) {
        QList<int> tags;
        for (const auto* const radio :
            find<QGroupBox>(groupNames.at(group)).findChildren<QRadioButton*>())
            tags.append(radio->property("tag").toInt());
        QList<int> expected(groupSizes.at(group));
        std::iota(expected.begin(), expected.end(), 0);
        QCOMPARE(tags, expected);
    }
}

void ExportCSVOptionsControllerTest::countsTheBooks()
{
    m_desk->selectFiction();
    open();
    QCOMPARE(button(groupNames.first(), 0).text(), u"&All books (4)"_s);
    QCOMPARE(button(groupNames.first(), 1).text(), u"&Displayed books (2)"_s);
}

void ExportCSVOptionsControllerTest::beginsWithWhatItIsGiven_data()
{
    QTest::addColumn<bool>("isOther");
    QTest::newRow("defaults") << false;
    QTest::newRow("others") << true;
}

void ExportCSVOptionsControllerTest::beginsWithWhatItIsGiven()
{
    QFETCH(const bool, isOther);
    const CsvChoices choices = isOther ? otherChoices() : CsvChoices();
    open(choices);
    QCOMPARE(m_sheet->choices(), choices);
    QCOMPARE(delimeter().text(), choices.options.groupDelimeter);
    QCOMPARE(delimeter().isEnabled(), isOther);
    QVERIFY(button(u"exportDateSelection"_s, isOther ? 2 : 0).isChecked());
}

void ExportCSVOptionsControllerTest::saysWhatWasChosen()
{
    open();
    button(u"exportFilterSelection"_s, 1).click();
    button(u"exportColumnSelection"_s, 1).click();
    button(u"exportDateSelection"_s, 2).click();
    button(u"exportGroupSelection"_s, 2).click();
    delimeter().setText(u" | "_s);
    button(u"exportCheckboxSelection"_s, 2).click();
    button(u"exportISBNSelection"_s, 1).click();
    button(u"exportCarriageReturnSelection"_s, 2).click();
    find<QPushButton>(u"m_OKButton"_s).click();
    QCOMPARE(m_confirmed, QList<CsvChoices>{otherChoices()});
    QTRY_VERIFY(!m_sheet);
}

void ExportCSVOptionsControllerTest::enablesTheDelimeterForNamesOnly()
{
    open();
    for (const int tag : {2, 1, 2, 0}) {
        button(u"exportGroupSelection"_s, tag).click();
        QCOMPARE(delimeter().isEnabled(), tag == 2);
    }
}

void ExportCSVOptionsControllerTest::previewsWhatTheFileWillHave_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("tag");
    for (qsizetype group = 0; group < groupNames.size(); ++group) {
        for (int tag = 0; tag < groupSizes.at(group); ++tag)
            QTest::addRow("%s %d", qPrintable(groupNames.at(group)), tag)
                << groupNames.at(group) << tag;
    }
}

void ExportCSVOptionsControllerTest::previewsWhatTheFileWillHave()
{
    QFETCH(const QString, group);
    QFETCH(const int, tag);
    m_desk->filterBy(u"E"_s);
    open(tag == 0 ? otherChoices() : CsvChoices());
    button(group, tag).click();
    const QString shown = preview().toPlainText();
    QVERIFY(shown.startsWith(u"Title,Author"_s));
    QVERIFY(writtenText(m_sheet->choices()).startsWith(shown + u'\n'));
}

void ExportCSVOptionsControllerTest::previewsEveryChoiceInItsOwnWay()
{
    CsvChoices choices = otherChoices();
    choices.options.columnSelection = CsvOptions::ColumnSelection::All;
    m_desk->filterBy(u"E"_s);
    open(choices);
    for (qsizetype group = 0; group < groupNames.size(); ++group) {
        QSet<QString> shown;
        for (int tag = groupSizes.at(group) - 1; tag >= 0; --tag) {
            button(groupNames.at(group), tag).click();
            shown.insert(preview().toPlainText());
        }
        QVERIFY2(shown.size() == groupSizes.at(group), qPrintable(groupNames.at(group)));
        // Back, as the next choices may not show in every one of these.
        button(groupNames.at(group), groupSizes.at(group) > 2 ? 2 : 0).click();
        button(u"exportISBNSelection"_s, 1).click();
    }
}

void ExportCSVOptionsControllerTest::previewsWhatIsTyped()
{
    open(otherChoices());
    delimeter().setFocus();
    delimeter().selectAll();
    QTest::keyClicks(&delimeter(), u" + "_s);
    QVERIFY(preview().toPlainText().contains(u"Fiction + Non Fiction"_s));
    QVERIFY(writtenText(m_sheet->choices()).startsWith(preview().toPlainText() + u'\n'));
}

void ExportCSVOptionsControllerTest::previewsThreeBooks()
{
    CsvChoices choices;
    choices.options.columnSelection = CsvOptions::ColumnSelection::Visible;
    choices.options.dateSelection = CsvOptions::DateSelection::YearMonth;
    open(choices);
    QCOMPARE(preview().toPlainText().split(u'\n'),
        QStringList({u"Title,Author,ISBN,Published"_s, u"Emma,Jane Austen,0141439580,1815-12"_s,
            u"Ivanhoe,Walter Scott,,"_s, u"Kim,A. Kipling,,"_s}));
}

void ExportCSVOptionsControllerTest::previewsTheDisplayedBooks()
{
    m_desk->filterBy(u"nobody wrote this"_s);
    open(otherChoices());
    QCOMPARE(preview().toPlainText(), u"Title,Author,ISBN10,ISBN13,Published,Groups"_s);
}

void ExportCSVOptionsControllerTest::cutsWhatIsTooLongToShow()
{
    constexpr qsizetype most = ExportCSVOptionsController::mostPreviewedCharacters;
    m_desk->document.getBookEntry(u"2"_s)->setNotes(QString(10 * most, u'x'));
    open();
    const QString shown = preview().toPlainText();
    QCOMPARE(shown.size(), most + 1);
    QVERIFY(shown.endsWith(u'…'));
    QVERIFY(writtenText(CsvChoices()).startsWith(shown.chopped(1)));
}

void ExportCSVOptionsControllerTest::previewsWhatChangedMeanwhile()
{
    m_desk->selectFiction();
    open();
    m_desk->document.getBookEntry(u"2"_s)->setTitle(u"Emma, again"_s);
    samples::addBook(m_desk->document, u"Sanditon"_s, u"Jane Austen"_s);
    m_desk->document.refresh();
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(m_sheet, &activate);
    QVERIFY(preview().toPlainText().contains(u"\"Emma, again\""_s));
    QCOMPARE(button(groupNames.first(), 0).text(), u"&All books (5)"_s);
}

void ExportCSVOptionsControllerTest::scrollsThePreviewSideways()
{
    open();
    QVERIFY(preview().isReadOnly());
    QCOMPARE(preview().lineWrapMode(), QPlainTextEdit::NoWrap);
    QVERIFY(QFontInfo(preview().font()).fixedPitch());
    QCOMPARE(preview().font().pointSizeF(), m_sheet->font().pointSizeF());
    QScrollBar& scrollBar = *preview().horizontalScrollBar();
    QVERIFY(scrollBar.maximum() > 0);
    // Where somebody looks, the next choice shows.
    scrollBar.setValue(scrollBar.maximum() / 2);
    const int scrolledRight = scrollBar.value();
    button(u"exportCheckboxSelection"_s, 2).click();
    QCOMPARE(scrollBar.value(), scrolledRight);
}

void ExportCSVOptionsControllerTest::isConfirmedWithReturnFromAnywhere_data()
{
    QTest::addColumn<QString>("control");
    for (const QString& control :
        {u"m_idDate0"_s, u"exportGroupDelimeter"_s, u"m_idPreview"_s, u"m_OKButton"_s})
        QTest::newRow(qPrintable(control)) << control;
}

void ExportCSVOptionsControllerTest::isConfirmedWithReturnFromAnywhere()
{
    QFETCH(const QString, control);
    open(otherChoices());
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.data());
    find<QWidget>(control).setFocus();
    QTest::keyClick(&find<QWidget>(control), Qt::Key_Return);
    QCOMPARE(m_confirmed.size(), 1);
}

void ExportCSVOptionsControllerTest::isLeft_data()
{
    QTest::addColumn<QString>("escapeFrom"); // empty: the button Cancel
    QTest::newRow("Cancel") << QString();
    for (const QString& control : {u"m_idDate0"_s, u"exportGroupDelimeter"_s, u"m_idPreview"_s})
        QTest::newRow(qPrintable(control)) << control;
}

void ExportCSVOptionsControllerTest::isLeft()
{
    QFETCH(const QString, escapeFrom);
    open(otherChoices());
    button(u"exportDateSelection"_s, 3).click();
    if (escapeFrom.isEmpty())
        find<QPushButton>(u"m_cancelButton"_s).click();
    else
        QTest::keyClick(&find<QWidget>(escapeFrom), Qt::Key_Escape);
    QTRY_VERIFY(!m_sheet);
    QVERIFY(m_confirmed.isEmpty());
}

void ExportCSVOptionsControllerTest::takesNoAnswerDuringAWait()
{
    open();
    const Waiting waiting;
    find<QPushButton>(u"m_OKButton"_s).click();
    QVERIFY(m_confirmed.isEmpty());
    QVERIFY(m_sheet->isVisible());
}

void ExportCSVOptionsControllerTest::isWalkedByKey()
{
    open(otherChoices());
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.data());
    QStringList walked;
    for (int step = 0; step < 11; ++step) {
        walked.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked,
        QStringList({u"m_idFilter1"_s, u"m_idColumn1"_s, u"m_idDate2"_s, u"m_idCheckbox2"_s,
            u"m_idGroup2"_s, u"exportGroupDelimeter"_s, u"m_idISBN1"_s, u"m_idCarriageReturn2"_s,
            u"m_idPreview"_s, u"m_OKButton"_s, u"m_cancelButton"_s}));
    QCOMPARE(QApplication::focusWidget()->objectName(), walked.first());
}

void ExportCSVOptionsControllerTest::goesToAGroupByItsKey()
{
    open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.data());
    QTest::keyClick(m_sheet, Qt::Key_T, Qt::AltModifier);
    QVERIFY(button(u"exportDateSelection"_s, 0).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(m_sheet->choices().options.dateSelection, CsvOptions::DateSelection::Year);
    QTest::keyClick(m_sheet, Qt::Key_P, Qt::AltModifier);
    QVERIFY(preview().hasFocus());
    QTest::keyClick(m_sheet, Qt::Key_D, Qt::AltModifier);
    QTRY_COMPARE(m_sheet->choices().filterSelection, ExportFilter::DisplayedBooks);
}

void ExportCSVOptionsControllerTest::hasNoKeyTwice()
{
    open();
    QStringList texts;
    for (const auto* const box : m_sheet->findChildren<QGroupBox*>())
        texts.append(box->title());
    for (const auto* const control : m_sheet->findChildren<QAbstractButton*>())
        texts.append(control->text());
    for (const auto* const label : m_sheet->findChildren<QLabel*>())
        texts.append(label->text());
    QStringList keys;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(text));
        keys.append(key);
    }
}

void ExportCSVOptionsControllerTest::saysWhatItsControlsAre()
{
    open();
    for (auto* const control : m_sheet->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible())
            continue;
        QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(!interface->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
    }
}

void ExportCSVOptionsControllerTest::showsWhatIsChosenByKey()
{
    open();
    QTRY_COMPARE(QApplication::activeWindow(), m_sheet.data());
    auto& area = find<QScrollArea>(u"m_idScrollArea"_s);
    m_sheet->resize(m_sheet->width(), m_sheet->height() - area.height() * 2 / 3);
    QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);
    QRadioButton& first = button(u"exportDateSelection"_s, 0);
    first.setFocus();
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QRadioButton& last = button(u"exportDateSelection"_s, 3);
    QVERIFY(last.isChecked());
    QVERIFY(area.viewport()->rect().contains(
        last.mapTo(area.viewport(), QPoint(0, last.height() - 1))));
}

void ExportCSVOptionsControllerTest::fitsTheScreenInLargeLetters()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(20);
    QApplication::setFont(large);
    open();
    QApplication::setFont(before);
    const QSize screen = m_sheet->screen()->availableSize();
    QVERIFY(m_sheet->height() <= screen.height());
    QVERIFY(m_sheet->width() <= screen.width());
    // Two columns of choices, side by side on a small screen.
    QVERIFY(find<QScrollArea>(u"m_idScrollArea"_s).widget()->minimumSizeHint().width() <= 1240);
    for (const auto* const radio : m_sheet->findChildren<QRadioButton*>())
        QVERIFY2(radio->width() >= radio->sizeHint().width(), qPrintable(radio->text()));
}

QTEST_MAIN(ExportCSVOptionsControllerTest)
#include "ExportCSVOptionsControllerTest.moc"
