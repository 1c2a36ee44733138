#include "editor/EntryForm.h"

#include "editor/CompletingComboBox.h"
#include "editor/NotesView.h"
#include "editor/PopUpButton.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/BookSamples.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A form over the controls of a real editor, whose own form has let them go.
class FormDesk {
public:
    explicit FormDesk(const QLocale& locale = QLocale::c())
        : form(emptied(*m_editor.window()), locale)
    {
    }

    template <class Control>
    Control& find(const QString& name) const
    {
        return EditorDesk::find<Control>(m_editor, name);
    }

    /// Fills the form and writes it into another book.
    BookEntry through(const BookEntry& book)
    {
        form.fill(book);
        return written();
    }

    BookEntry written() const
    {
        BookEntry book;
        form.write(book);
        return book;
    }

private:
    static QWidget& emptied(QWidget& window)
    {
        for (PopUpButton* const popUp : window.findChildren<PopUpButton*>())
            popUp->clear();
        return window;
    }

    EditorDesk m_desk;
    BookEntryWindowController& m_editor = m_desk.openNew();

public:
    EntryForm form;
};

/// The fields of a book, without pictures and groups.
BookEntry fieldsOf(const BookEntry& book)
{
    BookEntry fields = book;
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        fields.setImageData(slot, {});
    fields.setSelectedGroups({});
    return fields;
}

} // namespace

class EntryFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasAControlForEveryField();
    void carriesEveryField();
    void writesWhatIsChanged_data();
    void writesWhatIsChanged();
    void clearsEveryControl();
    void writesAClearedFormAsAnEmptyBook();
    void givesBackWhatAControlCannotShow_data();
    void givesBackWhatAControlCannotShow();
    void givesAnItemToAValueThatNoItemCarries_data();
    void givesAnItemToAValueThatNoItemCarries();
    void showsNumbersInTheLocalesWay();
    void readsNumbersLeniently_data();
    void readsNumbersLeniently();
    void noticesChanges();
    void takesALongTextWhole();
};

void EntryFormTest::hasAControlForEveryField()
{
    const FormDesk desk;
    for (const BookField& field : bookFields())
        QVERIFY(desk.find<QWidget>(EntryForm::controlName(field)).isEnabled());
    QCOMPARE(EntryForm::controlName(bookField(BookField::Id::ISBN)), u"m_idISBN"_s);
    QCOMPARE(EntryForm::controlName(bookField(BookField::Id::EstValue)), u"m_idEstValue"_s);
}

void EntryFormTest::carriesEveryField()
{
    FormDesk desk;
    const BookEntry book = samples::fullBook();
    QVERIFY(equalContents(desk.through(book), fieldsOf(book)));
}

void EntryFormTest::writesWhatIsChanged_data()
{
    QTest::addColumn<int>("index");
    for (const BookField& field : bookFields())
        QTest::newRow(field.name.data()) << static_cast<int>(field.id);
}

void EntryFormTest::writesWhatIsChanged()
{
    QFETCH(const int, index);
    const BookField& field = bookField(static_cast<BookField::Id>(index));
    FormDesk desk;
    BookEntry expected = desk.through(*samples::makeBook(u"Emma"_s, u"Jane Austen"_s));
    auto& control = desk.find<QWidget>(EntryForm::controlName(field));
    if (auto* const choice = qobject_cast<PopUpButton*>(&control))
        choice->selectTag(3);
    else if (auto* const combo = qobject_cast<QComboBox*>(&control))
        combo->setEditText(u"7.5x"_s);
    else if (auto* const text = qobject_cast<QLineEdit*>(&control))
        text->setText(u"7.5x"_s);
    else if (auto* const box = qobject_cast<QCheckBox*>(&control))
        box->click();
    else
        QTest::keyClicks(&control, u"7.5x"_s);
    QVERIFY(desk.form.isChanged());
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Year:
        field.setText(expected, u"7.5x"_s);
        break;
    case FieldKind::Integer:
        field.setInteger(expected, 7);
        break;
    case FieldKind::Real:
        field.setReal(expected, 7.5);
        break;
    case FieldKind::Flag:
        field.setFlag(expected, true);
        break;
    case FieldKind::Month:
    case FieldKind::Rating:
    case FieldKind::Type:
        field.setInteger(expected, 3);
        break;
    }
    QVERIFY(equalContents(desk.written(), expected));
}

void EntryFormTest::clearsEveryControl()
{
    FormDesk desk;
    desk.form.fill(samples::fullBook());
    desk.form.clear();
    QVERIFY(!desk.form.isChanged());
    QCOMPARE(desk.find<QLineEdit>(u"m_idPricePaid"_s).text(), QString());
    QCOMPARE(desk.find<QLineEdit>(u"m_idPages"_s).text(), QString());
    QCOMPARE(desk.find<NotesView>(u"m_idNotes"_s).notes(), QString());
    QCOMPARE(desk.find<PopUpButton>(u"m_idMonthLent"_s).selectedTag(), 0);
}

void EntryFormTest::writesAClearedFormAsAnEmptyBook()
{
    FormDesk desk;
    desk.form.fill(samples::fullBook());
    desk.form.clear();
    const BookEntry written = desk.written();
    for (const BookField& field : bookFields()) {
        if (field.kind == FieldKind::Text || field.kind == FieldKind::Year)
            QVERIFY2(field.text(written).isEmpty(), field.name.data());
        else if (field.kind == FieldKind::Real)
            QVERIFY2(field.real(written) == 0, field.name.data());
        else if (field.kind == FieldKind::Flag)
            QVERIFY2(!field.flag(written), field.name.data());
        else
            QVERIFY2(field.integer(written) == 0, field.name.data());
    }
}

void EntryFormTest::givesBackWhatAControlCannotShow_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("line break") << u"one\ntwo"_s;
    QTest::newRow("return") << u"one\r\ntwo"_s;
    QTest::newRow("tab") << u"one\ttwo"_s;
    QTest::newRow("line separator") << u"one\u2028two"_s;
    QTest::newRow("paragraph separator") << u"one\u2029two"_s;
    QTest::newRow("no-break space") << u"one\u00A0two"_s;
    QTest::newRow("object replacement") << u"one\uFFFCtwo"_s;
    QTest::newRow("lone surrogate") << QString(QChar(0xD800));
    QTest::newRow("nothing") << QString(QChar(0)) + u"x"_s;
}

void EntryFormTest::givesBackWhatAControlCannotShow()
{
    QFETCH(const QString, text);
    FormDesk desk;
    BookEntry book;
    for (const BookField& field : bookFields()) {
        if (field.kind == FieldKind::Text || field.kind == FieldKind::Year)
            field.setText(book, text);
    }
    for (const double number : {0.1 + 0.2, 1e300, -0.0, std::nan("")}) {
        book.setPricePaid(number);
        const BookEntry written = desk.through(book);
        QCOMPARE(QByteArray::number(written.getPricePaid(), 'g', 17),
            QByteArray::number(number, 'g', 17));
        QCOMPARE(std::signbit(written.getPricePaid()), std::signbit(number));
        for (const BookField& field : bookFields()) {
            if (field.kind == FieldKind::Text || field.kind == FieldKind::Year)
                QVERIFY2(field.text(written) == field.text(book), field.name.data());
        }
    }
}

void EntryFormTest::givesAnItemToAValueThatNoItemCarries_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("items");
    QTest::newRow("type") << u"m_idType"_s << 5;
    QTest::newRow("rating") << u"m_idRating"_s << 6;
    QTest::newRow("month") << u"m_idMonthCopyright"_s << 13;
    QTest::newRow("custom month") << u"m_idCustomMonth2"_s << 13;
}

void EntryFormTest::givesAnItemToAValueThatNoItemCarries()
{
    QFETCH(const QString, control);
    QFETCH(const int, items);
    for (const qint32 value : {13, 99, -1}) {
        FormDesk desk;
        const auto& popUp = desk.find<PopUpButton>(control);
        QCOMPARE(popUp.count(), items);
        BookEntry book;
        for (const BookField& field : bookFields()) {
            if (EntryForm::controlName(field) == control)
                field.setInteger(book, value);
        }
        const BookEntry written = desk.through(book);
        for (const BookField& field : bookFields()) {
            if (EntryForm::controlName(field) == control)
                QCOMPARE(field.integer(written), value);
        }
        QCOMPARE(popUp.count(), items + 1);
        QCOMPARE(popUp.currentText(), QString::number(value));
    }
}

void EntryFormTest::showsNumbersInTheLocalesWay()
{
    BookEntry book;
    book.setPricePaid(1234.5);
    book.setPages(1234);
    FormDesk french(QLocale(QLocale::French, QLocale::France));
    french.form.fill(book);
    QCOMPARE(french.find<QLineEdit>(u"m_idPricePaid"_s).text(), u"1234,5"_s);
    QCOMPARE(french.find<QLineEdit>(u"m_idPages"_s).text(), u"1234"_s);
    FormDesk plain;
    plain.form.fill(book);
    QCOMPARE(plain.find<QLineEdit>(u"m_idPricePaid"_s).text(), u"1234.5"_s);
}

void EntryFormTest::readsNumbersLeniently_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFrench");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("pages");
    QTest::newRow("number") << u"12.5"_s << false << 12.5 << 12;
    QTest::newRow("number and words") << u" 12.5 or so"_s << false << 12.5 << 12;
    QTest::newRow("words") << u"about 12"_s << false << 0.0 << 0;
    QTest::newRow("nothing") << u" "_s << false << 0.0 << 0;
    QTest::newRow("comma") << u"12,5"_s << true << 12.5 << 12;
    QTest::newRow("comma elsewhere") << u"12,5"_s << false << 12.0 << 12;
    QTest::newRow("point") << u"12.5"_s << true << 12.5 << 12;
    QTest::newRow("negative") << u"-3"_s << false << -3.0 << -3;
    QTest::newRow("huge") << u"99999999999"_s << false << 99999999999.0 << 2147483647;
}

void EntryFormTest::readsNumbersLeniently()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isFrench);
    QFETCH(const double, number);
    QFETCH(const int, pages);
    FormDesk desk(isFrench ? QLocale(QLocale::French, QLocale::France) : QLocale::c());
    desk.form.clear();
    desk.find<QLineEdit>(u"m_idPricePaid"_s).setText(text);
    desk.find<QLineEdit>(u"m_idEstValue"_s).setText(text);
    desk.find<QLineEdit>(u"m_idPages"_s).setText(text);
    const BookEntry book = desk.written();
    QCOMPARE(book.getPricePaid(), number);
    QCOMPARE(book.getEstValue(), number);
    QCOMPARE(book.getPages(), pages);
}

void EntryFormTest::noticesChanges()
{
    FormDesk desk;
    desk.form.fill(samples::fullBook());
    QVERIFY(!desk.form.isChanged());
    auto& lentTo = desk.find<QLineEdit>(u"m_idLentTo"_s);
    const QString before = lentTo.text();
    lentTo.setText(u"Kim"_s);
    QVERIFY(desk.form.isChanged());
    lentTo.setText(before);
    QVERIFY(!desk.form.isChanged());
    lentTo.setText(u"Kim"_s);
    desk.form.settle();
    QVERIFY(!desk.form.isChanged());
    QCOMPARE(desk.written().getLentTo(), u"Kim"_s); // written all the same
}

void EntryFormTest::takesALongTextWhole()
{
    FormDesk desk;
    desk.form.clear();
    const QString longText(100000, u'x');
    desk.find<QLineEdit>(u"m_idLentTo"_s).setText(longText);
    desk.find<QComboBox>(u"m_idAuthor"_s).setEditText(longText);
    QCOMPARE(desk.written().getLentTo().size(), longText.size());
    QCOMPARE(desk.written().getAuthor().size(), longText.size());
}

QTEST_MAIN(EntryFormTest)
#include "EntryFormTest.moc"
