#include "app/Languages.h"
#include "listwindow/engine/CsvExport.h"
#include "listwindow/engine/XmlExport.h"
#include "tests/app/ProgramOnScreen.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTableView>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;

namespace {

/// What the command line writes in English.
QByteArray english(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"LANGUAGE"_s, u"en"_s);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(TOMELY_CLI), arguments);
    if (!program.waitForFinished() || program.exitCode() != 0)
        qFatal("tomely-cli failed: %s", program.readAllStandardError().constData());
    return program.readAllStandardOutput();
}

void chooseFilterField(const CollectionWindow& window, const QString& title)
{
    for (QAction* const field :
        window.find<QToolButton>(u"m_idFilterDropDown"_s).menu()->actions()) {
        if (field->text() == title)
            return field->trigger();
    }
    qFatal("there is no field of that name");
}

} // namespace

// The program of a person who reads German and writes numbers as the French do.
class GermanStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void speaksGerman();
    void showsColumnsTypesAndMonthsInGerman();
    void keepsNamesThatThePersonGave();
    void takesADecimalCommaInTheNumberFilter();
    void writesTheSameBytesAsInEnglish();
    void storesEnglishNames();
};

void GermanStoriesTest::speaksGerman()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    QCOMPARE(window.window().menuBar()->actions().first()->text(), u"&Datei"_s);
    const qsizetype count = window.document().getBookListSize();
    QCOMPARE(window.status(), u"%1 von %1 angezeigt"_s.arg(count));
    QCOMPARE(window.groupNames().first(), u"Bibliothek"_s);
}

void GermanStoriesTest::showsColumnsTypesAndMonthsInGerman()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"Small.books"_s));
    BookEntry& book = *window.document().allValues().front();
    book.setMonthPublished(5);
    book.setYearPublished(u"2001"_s);
    book.setType(0);
    const QAbstractItemModel& model = *window.books().model();
    const auto heading = [&](qint32 key) {
        return model.headerData(window.columnOf(key), Qt::Horizontal).toString();
    };
    QCOMPARE(heading(0), u"Titel"_s);
    QCOMPARE(heading(42), u"Eigenes Feld 1"_s);
    const auto& shown = window.controller().getDisplayedBooks();
    const auto row = static_cast<int>(std::ranges::find(shown, &book) - shown.begin());
    QCOMPARE(model.index(row, window.columnOf(10)).data().toString(), u"Mai 2001"_s);
    QCOMPARE(model.index(row, window.columnOf(84)).data().toString(), u"Gebunden"_s);
}

void GermanStoriesTest::keepsNamesThatThePersonGave()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"Small.books"_s));
    window.document().setCustomFieldLabel(u"Title"_s, 42);
    QCOMPARE(window.books().model()->headerData(window.columnOf(42), Qt::Horizontal).toString(),
        u"Title"_s);
}

void GermanStoriesTest::takesADecimalCommaInTheNumberFilter()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"Small.books"_s));
    BookEntry& book = *window.document().allValues().front();
    book.setPricePaid(12.5);
    window.document().setBooksChanged();
    chooseFilterField(window, u"Kaufpreis"_s);
    auto& number = window.find<QLineEdit>(u"m_idFilter_NumericText"_s);
    QTest::mouseClick(&number, Qt::LeftButton);
    QTest::keyClicks(&number, u"12,5"_s);
    QCOMPARE(window.controller().getDisplayedBooks(), std::vector<BookEntry*>{&book});
}

void GermanStoriesTest::writesTheSameBytesAsInEnglish()
{
    ProgramOnScreen program;
    const QString library = program.classics();
    const CollectionWindow window = program.open(library);
    const auto& books = window.controller().getAllBooks();
    QVERIFY(exportXml(program.path(u"German.xml"_s), books).isOk());
    english({u"export-xml"_s, library, program.path(u"English.xml"_s)});
    QCOMPARE(readFile(program.path(u"German.xml"_s)), readFile(program.path(u"English.xml"_s)));
    QVERIFY(CsvExport(window.document(), books, {}).write(program.path(u"German.csv"_s)).isOk());
    english({u"export-csv"_s, library, program.path(u"English.csv"_s)});
    QCOMPARE(readFile(program.path(u"German.csv"_s)), readFile(program.path(u"English.csv"_s)));
}

void GermanStoriesTest::storesEnglishNames()
{
    ProgramOnScreen program;
    program.application.documents().newDocument();
    const CollectionWindow window = program.onlyWindow();
    QVERIFY(!window.document().writeToFile(program.path(u"German.books"_s)));
    english({u"new"_s, program.path(u"English.books"_s)});
    const QByteArray stored = english({u"info"_s, program.path(u"German.books"_s)});
    QCOMPARE(QByteArray(stored).replace("German.books", "English.books"),
        english({u"info"_s, program.path(u"English.books"_s)}));
}

int main(int argc, char* argv[])
{
    qunsetenv("LC_ALL");
    qputenv("LANG", "de_DE.UTF-8");
    qputenv("LANGUAGE", "de");
    qputenv("LC_NUMERIC", "fr_FR.UTF-8");
    QApplication application(argc, argv);
    translateTexts(application, QLocale().uiLanguages());
    GermanStoriesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GermanStoriesTest.moc"
