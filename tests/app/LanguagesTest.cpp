#include "app/Languages.h"

#include "document/DisplayNames.h"
#include "listwindow/FilterBar.h"
#include "tests/app/ProgramOnScreen.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTranslator>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QStringList languages{u"en"_s, u"de"_s, u"fr"_s, u"es"_s};

/// Takes the texts of a test's language away again.
struct Translated {
    explicit Translated(const QString& language)
        : answer(translateTexts(*QCoreApplication::instance(), {language}))
    {
    }

    ~Translated()
    {
        for (auto* const translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            QCoreApplication::removeTranslator(translator);
            delete translator;
        }
    }

    Q_DISABLE_COPY_MOVE(Translated)

    QString answer;
};

/// Texts by their mnemonic, as a window has them all at once.
class Mnemonics {
public:
    void add(const QString& text)
    {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty())
            return;
        if (m_texts.contains(key))
            clashes.append(u"%1 and %2"_s.arg(m_texts.value(key), text));
        m_texts.insert(key, text);
    }

    QStringList clashes;

private:
    QHash<QKeySequence, QString> m_texts;
};

/// Texts in a window, or in one menu, that have the same mnemonic.
QStringList clashesIn(const QWidget& window)
{
    Mnemonics mnemonics;
    for (const QAction* const menu : window.findChildren<QMenuBar*>().isEmpty()
            ? QList<QAction*>()
            : window.findChild<QMenuBar*>()->actions())
        mnemonics.add(menu->text());
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (label->buddy())
            mnemonics.add(label->text());
    }
    for (const auto* const button : window.findChildren<QAbstractButton*>())
        mnemonics.add(button->text());
    for (const auto* const group : window.findChildren<QGroupBox*>())
        mnemonics.add(group->title());
    QStringList clashes = mnemonics.clashes;
    for (const auto* const menu : window.findChildren<QMenu*>()) {
        Mnemonics ofMenu;
        for (const QAction* const item : menu->actions())
            ofMenu.add(item->text());
        clashes += ofMenu.clashes;
    }
    return clashes;
}

QString said(const QStringList& clashes, const QString& where)
{
    return clashes.isEmpty() ? QString() : where + ": "_L1 + clashes.join("; "_L1);
}

} // namespace

class LanguagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void speaksTheFirstLanguageThatItKnows_data();
    void speaksTheFirstLanguageThatItKnows();
    void namesBuiltInColumns();
    void keepsWhatAPersonNamed();
    void namesDates();
    void hasNoTwoMnemonicsAlikeInAWindow_data();
    void hasNoTwoMnemonicsAlikeInAWindow();
};

void LanguagesTest::speaksTheFirstLanguageThatItKnows_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("German") << QStringList{u"de-DE"_s, u"de"_s} << u"de"_s;
    QTest::newRow("Austrian German") << QStringList{u"de-AT"_s} << u"de"_s;
    QTest::newRow("French after one it does not know")
        << QStringList{u"br-FR"_s, u"fr-FR"_s} << u"fr"_s;
    QTest::newRow("English before Spanish") << QStringList{u"en-GB"_s, u"es-ES"_s} << u"en"_s;
    QTest::newRow("none that it knows") << QStringList{u"ja-JP"_s} << u"en"_s;
    QTest::newRow("the C locale") << QStringList{u"C"_s} << u"en"_s;
    QTest::newRow("nothing") << QStringList() << u"en"_s;
}

void LanguagesTest::speaksTheFirstLanguageThatItKnows()
{
    QFETCH(const QStringList, wanted);
    QFETCH(const QString, spoken);
    const QString answer = translateTexts(*QCoreApplication::instance(), wanted);
    const Translated undo(u"en"_s);
    QCOMPARE(answer, spoken);
    const QHash<QString, QString> januaries{{u"en"_s, u"January"_s}, {u"de"_s, u"Januar"_s},
        {u"fr"_s, u"janvier"_s}, {u"es"_s, u"enero"_s}};
    QCOMPARE(displayMonth(1), januaries.value(spoken));
}

void LanguagesTest::namesBuiltInColumns()
{
    const Translated german(u"de"_s);
    ColumnEntry column;
    column.setKey(0);
    column.setColumnName(u"Title"_s);
    column.setSelectionName(u"Title"_s);
    QCOMPARE(displayName(column), u"Titel"_s);
    QCOMPARE(displaySelectionName(column), u"Titel"_s);
    QCOMPARE(column.getColumnName(), u"Title"_s);
    QCOMPARE(displayType(0), u"Gebunden"_s);
    QCOMPARE(displayType(4), QString());
}

void LanguagesTest::keepsWhatAPersonNamed()
{
    const Translated german(u"de"_s);
    QCOMPARE(displayLabel(42, u"Custom Field 1"_s), u"Eigenes Feld 1"_s);
    QCOMPARE(displayLabel(44, u"Custom Field 1"_s), u"Custom Field 1"_s);
    QCOMPARE(displayLabel(42, u"Title"_s), u"Title"_s);
    ColumnEntry column;
    column.setKey(42);
    column.setColumnName(u"Title"_s);
    column.setSelectionName(u"Custom: Title"_s);
    QCOMPARE(displayName(column), u"Title"_s);
    QVERIFY(displaySelectionName(column).endsWith(u"Title"_s));
    QVERIFY(!displaySelectionName(column).startsWith(u"Custom"_s));
}

void LanguagesTest::namesDates()
{
    QCOMPARE(displayDate(6, u"2001"_s), u"June, 2001"_s);
    const Translated german(u"de"_s);
    QCOMPARE(displayDate(6, u"2001"_s), u"Juni 2001"_s);
    QCOMPARE(displayDate(6, {}), u"Juni"_s);
    QCOMPARE(displayDate(0, u"2001"_s), u"2001"_s);
    QCOMPARE(displayDate(13, {}), QString());
}

void LanguagesTest::hasNoTwoMnemonicsAlikeInAWindow_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void LanguagesTest::hasNoTwoMnemonicsAlikeInAWindow()
{
    QFETCH(const QString, language);
    const Translated texts(language);
    QCOMPARE(texts.answer, language);
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"Small.books"_s));
    QStringList clashes{said(clashesIn(window.window()), u"main window"_s)};
    const EditorWindow editor = program.addBook(window);
    clashes.append(said(clashesIn(editor.window()), u"editor"_s));
    for (const QString& command : {u"customizeList"_s, u"customizeToolbar"_s, u"customizeGroups"_s,
             u"exportCSV"_s, u"printPreview"_s}) {
        window.choose(command);
        QDialog* sheet = nullptr;
        QTRY_VERIFY(sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget()));
        clashes.append(said(clashesIn(*sheet), command));
        sheet->reject();
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }
    program.application.preferences().showWindow();
    clashes.append(said(clashesIn(program.application.preferences()), u"preferences"_s));
    clashes.append(said(clashesIn(program.application.startWindow()), u"start window"_s));
    clashes.removeAll(QString());
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(u'\n')));
}

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
