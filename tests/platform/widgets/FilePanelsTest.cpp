#include "platform/widgets/FilePanels.h"

#include "platform/widgets/MessageBoxAlerts.h"
#include "tests/support/Files.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::writeFile;

namespace {

const FileType books{u"books"_s, u"Tomely Collections"_s};

template <class Dialog>
Dialog* shown()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<Dialog*>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// Types a name into a panel and confirms it as a person does.
void pick(QFileDialog& panel, const QString& name)
{
    auto* const edit = panel.findChild<QLineEdit*>(u"fileNameEdit"_s);
    edit->clear();
    QTest::keyClicks(edit, name);
    QTest::keyClick(edit, Qt::Key_Return);
}

void cancel(QFileDialog& panel)
{
    static_cast<QDialog&>(panel).reject();
}

} // namespace

class FilePanelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void cleanup() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    void addsTheExtensionWhereItIsMissing_data();
    void addsTheExtensionWhereItIsMissing();
    void offersFilesOfTheType();
    void offersEveryFileWhenANameProvesNothing();
    void givesTheFileThatWasPicked();
    void givesNothingWhenOpeningIsCancelled();
    void suggestsAPathToSaveUnder();
    void addsTheExtensionToATypedName();
    void givesAnEmptyPathWhenSavingIsCancelled();
    void asksBeforeItReplacesAFile_data();
    void asksBeforeItReplacesAFile();
    void goesWithItsWindow();
    void blocksForAModalPanel_data();
    void blocksForAModalPanel();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    MessageBoxAlerts m_alerts;
    DesktopFilePanels m_panels{m_alerts};
};

void FilePanelsTest::initTestCase()
{
    QVERIFY(writeFile(path(u"Emma.books"_s), "books"));
    QVERIFY(writeFile(path(u"letter.txt"_s), "text"));
    QVERIFY(writeFile(path(u"letter.txt.books"_s), "books"));
}

void FilePanelsTest::addsTheExtensionWhereItIsMissing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("whole");
    QTest::newRow("missing") << u"/a/Library"_s << u"/a/Library.books"_s;
    QTest::newRow("there") << u"/a/Library.books"_s << u"/a/Library.books"_s;
    QTest::newRow("other case") << u"/a/Library.BOOKS"_s << u"/a/Library.BOOKS"_s;
    QTest::newRow("another") << u"/a/Library.txt"_s << u"/a/Library.txt.books"_s;
    QTest::newRow("without the dot") << u"/a/books"_s << u"/a/books.books"_s;
    QTest::newRow("cancelled") << u""_s << u""_s;
    const QString granted = qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/doc/1a2b3c/Library"_s;
    QTest::newRow("of a name that the desktop granted") << granted << granted;
}

void FilePanelsTest::addsTheExtensionWhereItIsMissing()
{
    QFETCH(const QString, path);
    QFETCH(const QString, whole);
    QCOMPARE(withExtension(path, books), whole);
}

void FilePanelsTest::offersFilesOfTheType()
{
    QWidget window;
    window.show();
    m_panels.beginOpenPanel(&window, books, [](const QStringList&) {});
    QFileDialog* const panel = shown<QFileDialog>();
    QVERIFY(panel);
    QCOMPARE(panel->parentWidget(), &window);
    QCOMPARE(panel->nameFilters(), QStringList{u"Tomely Collections (*.books)"_s});
    QCOMPARE(panel->fileMode(), QFileDialog::ExistingFiles);
    QCOMPARE(panel->acceptMode(), QFileDialog::AcceptOpen);
    QVERIFY(panel->isModal());
}

void FilePanelsTest::offersEveryFileWhenANameProvesNothing()
{
    MessageBoxAlerts alerts;
    DesktopFilePanels panels(alerts);
    panels.beginOpenPanel(
        nullptr, {u"jpg"_s, u"Pictures"_s, {u"png"_s}}, [](const QStringList&) {});
    auto* const panel = shown<QFileDialog>();
    QVERIFY(panel);
    QCOMPARE(panel->nameFilters(), QStringList({u"Pictures (*.jpg *.png)"_s, u"All Files (*)"_s}));
    QCOMPARE(panel->fileMode(), QFileDialog::ExistingFile);
    cancel(*panel);
}

void FilePanelsTest::givesTheFileThatWasPicked()
{
    QStringList picked;
    m_panels.beginOpenPanel(nullptr, books, [&](const QStringList& paths) { picked += paths; });
    const QPointer<QFileDialog> panel = shown<QFileDialog>();
    panel->setDirectory(m_folder.path());
    pick(*panel, u"Emma.books"_s);
    QCOMPARE(picked, QStringList{path(u"Emma.books"_s)});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!panel);
}

void FilePanelsTest::givesNothingWhenOpeningIsCancelled()
{
    bool called = false;
    m_panels.beginOpenPanel(nullptr, books, [&](const QStringList&) { called = true; });
    cancel(*shown<QFileDialog>());
    QVERIFY(!called);
    QVERIFY(!shown<QFileDialog>());
}

void FilePanelsTest::suggestsAPathToSaveUnder()
{
    m_panels.beginSavePanel(nullptr, books, path(u"Untitled.books"_s), [](const QString&) {});
    QFileDialog* const panel = shown<QFileDialog>();
    QVERIFY(panel);
    QCOMPARE(panel->directory().absolutePath(), m_folder.path());
    QCOMPARE(panel->findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"Untitled.books"_s);
    QCOMPARE(panel->acceptMode(), QFileDialog::AcceptSave);
    cancel(*panel);
}

void FilePanelsTest::addsTheExtensionToATypedName()
{
    QString picked;
    m_panels.beginSavePanel(
        nullptr, books, path(u"Untitled.books"_s), [&](const QString& chosen) { picked = chosen; });
    pick(*shown<QFileDialog>(), u"Persuasion"_s);
    QCOMPARE(picked, path(u"Persuasion.books"_s));
    m_panels.beginSavePanel(
        nullptr, books, path(u"Untitled.books"_s), [&](const QString& chosen) { picked = chosen; });
    pick(*shown<QFileDialog>(), u"Vol. 2"_s);
    QCOMPARE(picked, path(u"Vol. 2.books"_s));
    QVERIFY(!shown<QMessageBox>());
}

void FilePanelsTest::givesAnEmptyPathWhenSavingIsCancelled()
{
    QStringList picked;
    m_panels.beginSavePanel(nullptr, books, path(u"Untitled.books"_s),
        [&](const QString& chosen) { picked.append(chosen); });
    cancel(*shown<QFileDialog>());
    QCOMPARE(picked, QStringList{u""_s});
}

void FilePanelsTest::asksBeforeItReplacesAFile_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("Yes") << true;
    QTest::newRow("No") << false;
}

void FilePanelsTest::asksBeforeItReplacesAFile()
{
    QFETCH(const bool, confirmed);
    QWidget window;
    window.show();
    QStringList picked;
    m_panels.beginSavePanel(&window, books, path(u"Untitled.books"_s),
        [&](const QString& chosen) { picked.append(chosen); });
    // The panel itself finds no such file; with the extension there is one.
    QTimer::singleShot(0, &window, [] {
        if (auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            question->button(QMessageBox::Yes)->click(); // the panel's own, about letter.txt
    });
    pick(*shown<QFileDialog>(), u"letter.txt"_s);
    QVERIFY(picked.isEmpty());
    auto* const question = shown<QMessageBox>();
    QVERIFY(question);
    QVERIFY(question->informativeText().contains(u"letter.txt.books"_s));
    question->findChild<QPushButton*>(confirmed ? u"alertButton0"_s : u"alertButton1"_s)->click();
    QCOMPARE(picked, QStringList{confirmed ? path(u"letter.txt.books"_s) : QString()});
}

void FilePanelsTest::goesWithItsWindow()
{
    bool called = false;
    auto window = std::make_unique<QWidget>();
    window->show();
    m_panels.beginSavePanel(
        window.get(), books, path(u"Untitled.books"_s), [&](const QString&) { called = true; });
    const QPointer<QFileDialog> panel = shown<QFileDialog>();
    window.reset();
    QVERIFY(!panel);
    QVERIFY(!called);
}

void FilePanelsTest::blocksForAModalPanel_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("picked") << true;
    QTest::newRow("cancelled") << false;
}

void FilePanelsTest::blocksForAModalPanel()
{
    QFETCH(const bool, confirmed);
    QString folder;
    QStringList filters;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        auto* const panel = shown<QFileDialog>();
        if (!panel)
            return;
        poll.stop();
        folder = panel->directory().absolutePath();
        filters = panel->nameFilters();
        if (confirmed)
            pick(*panel, u"Emma.books"_s);
        else
            cancel(*panel);
    });
    poll.start(1);
    QCOMPARE(m_panels.runModalOpenPanel(books, m_folder.path()),
        confirmed ? path(u"Emma.books"_s) : QString());
    QCOMPARE(folder, m_folder.path());
    QCOMPARE(filters, QStringList{u"Tomely Collections (*.books)"_s});
}

QTEST_MAIN(FilePanelsTest)
#include "FilePanelsTest.moc"
