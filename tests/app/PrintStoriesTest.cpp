#include "tests/app/ProgramOnScreen.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr double margin = 54; // points
constexpr double numberWidth = 40;

struct Word {
    QRectF box;
    QString text;
};

/// The words on each page of a PDF file and where they stand, in points.
QList<QList<Word>> wordsOf(const QString& pdf)
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s});
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("pdftotext failed");
    QList<QList<Word>> pages;
    QXmlStreamReader xml(process.readAllStandardOutput());
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"page"_s)
            pages.append(QList<Word>());
        if (xml.name() != u"word"_s)
            continue;
        const QXmlStreamAttributes box = xml.attributes();
        const QPointF from(box.value("xMin"_L1).toDouble(), box.value("yMin"_L1).toDouble());
        const QPointF to(box.value("xMax"_L1).toDouble(), box.value("yMax"_L1).toDouble());
        pages.last().append({QRectF(from, to), xml.readElementText()});
    }
    return pages;
}

/// The left edges of the printed columns, and the right one of the last.
QList<double> edgesOf(const CollectionWindow& window, double paperWidth)
{
    QList<double> edges{0, numberWidth};
    for (const qint32 key : window.columnKeys())
        edges.append(edges.last() + window.header().sectionSize(window.columnOf(key)));
    const double scale = std::min(1.0, (paperWidth - 2 * margin) / edges.last());
    for (double& edge : edges)
        edge = margin + edge * scale;
    return edges;
}

/// The texts of a page by rows and columns.
QList<QStringList> tableOf(QList<Word> words, const QList<double>& edges)
{
    std::ranges::stable_sort(
        words, {}, [](const Word& word) { return qRound(word.box.center().y()); });
    QList<QStringList> rows;
    double last = -100;
    for (const Word& word : words) {
        if (word.box.center().y() > last + 4)
            rows.append(QStringList(edges.size() - 1));
        last = word.box.center().y();
        const auto edge = std::ranges::upper_bound(edges, word.box.left());
        QString& cell = rows.last()[edge - edges.begin() - 1];
        cell += (cell.isEmpty() ? u""_s : u" "_s) + word.text;
    }
    return rows;
}

/// Letters that are joined or go from right to left come out of a PDF in another order, and a
/// Chinese one as another of the same looks.
bool isShaped(const QString& text)
{
    return std::ranges::any_of(text, [](QChar letter) {
        return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL
            || letter.script() == QChar::Script_Devanagari || letter.script() == QChar::Script_Han;
    });
}

/// Without signs for letters that stand together, as some fonts have one for the "ffi" of "Puffin".
QString plain(const QString& text)
{
    return text.simplified().normalized(QString::NormalizationForm_KC);
}

/// Whether a printed cell is the text, as far as it fits.
bool shows(const QString& cell, const QString& text)
{
    if (isShaped(text))
        return !cell.isEmpty();
    if (!cell.endsWith(u'…'))
        return plain(cell) == plain(text);
    return plain(text).startsWith(plain(cell.chopped(1)));
}

bool isActive(const QWidget& window)
{
    return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

} // namespace

// What a person prints of a collection, and sees of it before.
class PrintStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsTheSampleLibrary();
    void printsWhatIsShown();
    void looksAtThePreview();
    void printsTheListFromAnEditor();
    void closesTheCollectionUnderTheDialog();

private:
    static QPrintDialog* openDialog(const CollectionWindow& window);
    static void printTo(const CollectionWindow& window, const QString& path);
};

QPrintDialog* PrintStoriesTest::openDialog(const CollectionWindow& window)
{
    QTest::keyClick(&window.books(), Qt::Key_P, Qt::ControlModifier);
    auto* const dialog = window.window().findChild<QPrintDialog*>();
    if (!dialog || !isActive(*dialog))
        qFatal("the print dialog did not come up");
    return dialog;
}

void PrintStoriesTest::printTo(const CollectionWindow& window, const QString& path)
{
    QPrintDialog* const dialog = openDialog(window);
    // Into a file, whatever printers there may be.
    auto* const printers = dialog->findChild<QComboBox*>(u"printers"_s);
    printers->setCurrentIndex(printers->count() - 1);
    if (dialog->printer()->outputFormat() != QPrinter::PdfFormat)
        qFatal("the dialog does not print into files");
    auto* const file = dialog->findChild<QLineEdit*>(u"filename"_s);
    file->setFocus();
    QTest::keyClick(file, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(file, path);
    QTest::keyClick(file, Qt::Key_Return);
}

void PrintStoriesTest::printsTheSampleLibrary()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    const QString path = program.path(u"Printed.pdf"_s);
    printTo(window, path);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), 20000);
    const QList<QList<Word>> pages = wordsOf(path);
    QVERIFY(pages.size() > 2);
    constexpr double a4Width = 595;
    const QList<double> edges = edgesOf(window, a4Width);
    const QList<qint32> keys = window.columnKeys();
    QList<QStringList> rows;
    for (const QList<Word>& words : pages) {
        for (const Word& word : words) {
            QVERIFY(word.box.left() >= margin && word.box.right() <= edges.last());
            QVERIFY(word.box.top() >= margin - 3 && word.box.bottom() <= 842 - margin + 3);
        }
        rows.append(tableOf(words, edges));
    }
    const QAbstractItemModel& model = *window.books().model();
    QCOMPARE(rows.size(), model.rowCount() + 2);
    for (qsizetype column = 0; column < keys.size(); ++column) {
        const QString heading = window.header()
                                    .model()
                                    ->headerData(window.columnOf(keys.at(column)), Qt::Horizontal)
                                    .toString();
        QVERIFY(shows(rows.at(0).at(column + 1), heading));
        QCOMPARE(rows.at(1).at(column + 1).count(u'-'), rows.at(1).at(column + 1).size());
    }
    for (qsizetype row = 0; row < model.rowCount(); ++row) {
        const QStringList& printed = rows.at(row + 2);
        QCOMPARE(printed.first(), QString::number(row + 1));
        for (qsizetype column = 0; column < keys.size(); ++column) {
            const QString text =
                model.index(static_cast<int>(row), window.columnOf(keys.at(column)))
                    .data()
                    .toString();
            QVERIFY2(shows(printed.at(column + 1), text),
                qPrintable(u"%1: '%2' for '%3'"_s.arg(row).arg(printed.at(column + 1), text)));
        }
    }
    QVERIFY(!window.window().isWindowModified());
}

void PrintStoriesTest::printsWhatIsShown()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    window.clickGroup(u"Fiction"_s);
    const QString path = program.path(u"Fiction.pdf"_s);
    printTo(window, path);
    QTRY_VERIFY(QFile::exists(path));
    const QList<QList<Word>> pages = wordsOf(path);
    QCOMPARE(pages.size(), 1);
    QStringList words;
    for (const Word& word : pages.first())
        words.append(word.text);
    QVERIFY(words.contains(u"Emma"_s) && words.contains(u"Kim"_s));
    QVERIFY(!words.contains(u"Ivanhoe"_s) && !words.contains(u"Villette"_s));
}

void PrintStoriesTest::looksAtThePreview()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.classics());
    window.choose(u"printPreview"_s);
    auto& preview = window.find<QDialog>(u"PrintPreview"_s);
    QVERIFY(isActive(preview));
    auto& number = *preview.findChild<QSpinBox*>(u"m_idPageNumber"_s);
    QVERIFY(number.maximum() > 2);
    QTest::keyClick(&number, Qt::Key_PageDown);
    QCOMPARE(number.value(), 2);
    QTest::keyClick(&preview, Qt::Key_Return);
    auto* const dialog = window.window().findChild<QPrintDialog*>();
    QVERIFY(dialog && isActive(*dialog));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(window.window().isActiveWindow());
    window.choose(u"printPreview"_s);
    QVERIFY(isActive(window.find<QDialog>(u"PrintPreview"_s)));
    QTest::keyClick(&window.find<QDialog>(u"PrintPreview"_s), Qt::Key_Escape);
    QTRY_VERIFY(window.window().isActiveWindow());
}

void PrintStoriesTest::printsTheListFromAnEditor()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    const EditorWindow editor = program.edit(window, u"Emma"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
    auto* const dialog = window.window().findChild<QPrintDialog*>();
    QVERIFY(dialog && isActive(*dialog));
    QVERIFY(!editor.window().findChild<QPrintDialog*>());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(window.window().isActiveWindow());
}

void PrintStoriesTest::closesTheCollectionUnderTheDialog()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    openDialog(window);
    program.application.documents().closeAll();
    QTRY_COMPARE(program.openCount(), 0U);
}

QTEST_MAIN(PrintStoriesTest)
#include "PrintStoriesTest.moc"
