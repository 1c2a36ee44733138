#include "platform/widgets/DocumentController.h"

#include "platform/PreferenceKeys.h"
#include "platform/widgets/WaitPanel.h"
#include "tests/support/DocumentDesk.h"

#include <QApplication>
#include <QMainWindow>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;
using samples::writeFile;

namespace {

constexpr qint64 longestWait = 10'000; // milliseconds

/// The panel of a long wait that is on screen; nullptr when none is.
QProgressDialog* waitPanel()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"waitPanel"_s && widget->isVisible())
            return qobject_cast<QProgressDialog*>(widget);
    }
    return nullptr;
}

} // namespace

class DocumentControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersUntitledDocuments();
    void showsWhatItOpens();
    void keepsOneDocumentAFile_data();
    void keepsOneDocumentAFile();
    void namesTheFileThatCannotBeOpened();
    void saysAFailureThatNeedsNoFileName();
    void saysNothingOfAnOpeningThatWasLeft();
    void canBeLeftWhileItOpensALongFile();
    void showsThatItSavesALongFile();
    void opensAfterAWaitWhatCameDuringIt();
    void opensWhatIsPicked();
    void knowsTheDocumentThatWasActiveLast();
    void savesUnderTheDocumentsFile();
    void asksForAFileOnTheFirstSave();
    void savesUnderAnotherFile();
    void savesNothingWhenThePanelIsCancelled();
    void savesNothingOverAnotherOpenDocument();
    void saysWhyAFileCannotBeSaved();
    void ignoresAPanelThatOutlivesItsDocument();
    void refusesWorkDuringAWait();
    void remembersRecentDocuments();
    void forgetsRecentDocumentsBeyondTheLimit();
    void clearsRecentDocuments();
};

void DocumentControllerTest::numbersUntitledDocuments()
{
    DocumentDesk desk;
    QSignalSpy opened(&desk.controller, &DocumentController::documentOpened);
    QCOMPARE(desk.controller.newDocument()->displayName(), u"Untitled"_s);
    QCOMPARE(desk.controller.newDocument()->displayName(), u"Untitled 2"_s);
    QCOMPARE(desk.controller.newDocument()->displayName(), u"Untitled 3"_s);
    QCOMPARE(opened.size(), 3);
    QCOMPARE(desk.controller.documents().size(), std::size_t(3));
    QVERIFY(desk.controller.recentDocuments().isEmpty());
}

void DocumentControllerTest::showsWhatItOpens()
{
    DocumentDesk desk;
    QSignalSpy opened(&desk.controller, &DocumentController::documentOpened);
    Document* const document = desk.controller.openDocument(desk.file(u"Emma.books"_s));
    QVERIFY(document);
    QVERIFY(desk.windowOf(*document)->isVisible());
    QCOMPARE(document->displayName(), u"Emma"_s);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first().first().value<Document*>(), document);
    QCOMPARE(desk.controller.documentForFile(desk.path(u"Emma.books"_s)), document);
    QVERIFY(!desk.controller.documentForFile(desk.path(u"Other.books"_s)));
    QVERIFY(desk.alerts.modals.isEmpty());
}

void DocumentControllerTest::keepsOneDocumentAFile_data()
{
    QTest::addColumn<QString>("other"); // another name of the file "Emma.books"
    QTest::newRow("the same path") << u"Emma.books"_s;
    QTest::newRow("a detour") << u"./folder/../Emma.books"_s;
    QTest::newRow("a link") << u"link.books"_s;
    QTest::newRow("a linked folder") << u"linked folder/Emma.books"_s;
}

void DocumentControllerTest::keepsOneDocumentAFile()
{
    QFETCH(const QString, other);
    DocumentDesk desk;
    const QString path = desk.file(u"Emma.books"_s);
    QVERIFY(QDir(desk.path({})).mkdir(u"folder"_s));
    QVERIFY(QFile::link(path, desk.path(u"link.books"_s)));
    QVERIFY(QFile::link(desk.path({}), desk.path(u"linked folder"_s)));
    Document* const first = desk.controller.openDocument(path);
    desk.windowOf(*first)->hide();
    QSignalSpy opened(&desk.controller, &DocumentController::documentOpened);
    QCOMPARE(desk.controller.openDocument(desk.path(other)), first);
    QCOMPARE(
        desk.controller.openDocument(QDir::current().relativeFilePath(desk.path(other))), first);
    QVERIFY(opened.isEmpty());
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
    QVERIFY(desk.windowOf(*first)->isVisible()); // it came forward
}

void DocumentControllerTest::namesTheFileThatCannotBeOpened()
{
    DocumentDesk desk;
    const QString path = desk.path(u"gone.books"_s);
    QVERIFY(!desk.controller.openDocument(path));
    QCOMPARE(desk.alerts.modals.size(), 1);
    const Alert& alert = desk.alerts.modals.first();
    QVERIFY(alert.informativeText.contains(path));
    QVERIFY(alert.informativeText.contains(u"No such file or directory"_s));
    QCOMPARE(alert.buttons, QStringList{u"OK"_s});
    QVERIFY(desk.controller.documents().empty());
    QVERIFY(desk.controller.recentDocuments().isEmpty());
}

void DocumentControllerTest::saysAFailureThatNeedsNoFileName()
{
    DocumentDesk desk;
    desk.onRead = [](QByteArrayView, const Progress&) {
        return DocumentFailure{.reason = u"Too new."_s, .standsAlone = true};
    };
    QVERIFY(!desk.controller.openDocument(desk.file(u"Emma.books"_s)));
    QCOMPARE(desk.alerts.modals.size(), 1);
    QCOMPARE(desk.alerts.modals.first().informativeText, u"Too new."_s);
}

void DocumentControllerTest::saysNothingOfAnOpeningThatWasLeft()
{
    DocumentDesk desk;
    desk.onRead = [](QByteArrayView, const Progress&) -> std::optional<DocumentFailure> {
        throw OperationCancelled();
    };
    QVERIFY(!desk.controller.openDocument(desk.file(u"Emma.books"_s)));
    QVERIFY(desk.alerts.modals.isEmpty() && desk.alerts.sheets.isEmpty());
    QVERIFY(desk.controller.documents().empty());
}

void DocumentControllerTest::canBeLeftWhileItOpensALongFile()
{
    DocumentDesk desk;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&poll] {
        if (auto* const panel = waitPanel()) {
            poll.stop();
            panel->findChild<QPushButton*>()->click();
        }
    });
    poll.start(1);
    desk.onRead = [](QByteArrayView, const Progress& progress) -> std::optional<DocumentFailure> {
        QElapsedTimer sinceStart;
        sinceStart.start();
        while (!sinceStart.hasExpired(longestWait))
            progress(1, 100);
        return std::nullopt;
    };
    QVERIFY(!desk.controller.openDocument(desk.file(u"Emma.books"_s)));
    QVERIFY(desk.controller.documents().empty());
    QVERIFY(!waitPanel());
    QVERIFY(desk.alerts.modals.isEmpty());
}

void DocumentControllerTest::showsThatItSavesALongFile()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QString text;
    QWidget* window = nullptr;
    bool canBeLeft = true;
    document.onWrite = [&](const Progress& progress) {
        QElapsedTimer sinceStart;
        sinceStart.start();
        while (!waitPanel() && !sinceStart.hasExpired(longestWait))
            progress(1, 100);
        if (const QProgressDialog* const panel = waitPanel()) {
            text = panel->labelText();
            window = panel->parentWidget();
            canBeLeft = panel->findChild<QPushButton*>();
        }
    };
    desk.controller.save(document);
    QVERIFY(text.contains(u"Emma"_s));
    QCOMPARE(window, desk.windowOf(document));
    QVERIFY(!canBeLeft);
    QVERIFY(!waitPanel());
    QVERIFY(!document.isDocumentEdited());
}

void DocumentControllerTest::opensAfterAWaitWhatCameDuringIt()
{
    DocumentDesk desk;
    const QString path = desk.file(u"Emma.books"_s);
    {
        const WaitPanel wait(nullptr, u"Working"_s, WaitPanel::Cancel::Possible);
        QVERIFY(!desk.controller.openDocument(path));
        QVERIFY(desk.controller.documents().empty());
    }
    QTRY_VERIFY(desk.controller.documentForFile(path));
    QVERIFY(desk.alerts.modals.isEmpty());
}

void DocumentControllerTest::opensWhatIsPicked()
{
    DocumentDesk desk;
    QWidget window;
    desk.controller.openWithPanel(&window);
    QCOMPARE(desk.panels.openPanels.size(), 1);
    QCOMPARE(desk.panels.openPanels.first().window, &window);
    QCOMPARE(desk.panels.openPanels.first().type.extension, u"books"_s);
    desk.panels.openPanels.first().picked(
        {desk.file(u"Emma.books"_s), desk.path(u"gone.books"_s), desk.file(u"Persuasion.books"_s)});
    QCOMPARE(desk.controller.documents().size(), std::size_t(2));
    QCOMPARE(desk.alerts.modals.size(), 1);
}

void DocumentControllerTest::knowsTheDocumentThatWasActiveLast()
{
    DocumentDesk desk;
    QVERIFY(!desk.controller.currentDocument());
    Document* const first = desk.controller.newDocument();
    Document* const second = desk.controller.newDocument();
    QCOMPARE(desk.controller.currentDocument(), second);
    QVERIFY(QTest::qWaitForWindowActive(desk.windowOf(*second)));
    first->mainWindow()->bringToFront();
    QTRY_COMPARE(desk.controller.currentDocument(), first);
    desk.controller.close(*first);
    QCOMPARE(desk.controller.currentDocument(), second);
    desk.controller.close(*second);
    QVERIFY(!desk.controller.currentDocument());
}

void DocumentControllerTest::savesUnderTheDocumentsFile()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    bool saved = false;
    desk.controller.save(document, [&](bool happened) { saved = happened; });
    QVERIFY(saved);
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("newer"));
    QVERIFY(!document.isDocumentEdited());
    QVERIFY(desk.panels.savePanels.isEmpty());
}

void DocumentControllerTest::asksForAFileOnTheFirstSave()
{
    DocumentDesk desk;
    auto& document = static_cast<TextDocument&>(*desk.controller.newDocument());
    document.text = "first";
    document.changeDone();
    QList<bool> answers;
    desk.controller.save(document, [&](bool happened) { answers.append(happened); });
    QCOMPARE(desk.panels.savePanels.size(), 1);
    const auto& panel = desk.panels.savePanels.first();
    QCOMPARE(panel.window, desk.windowOf(document));
    QCOMPARE(QFileInfo(panel.suggestedPath).fileName(), u"Untitled.books"_s);
    QVERIFY(QFileInfo(panel.suggestedPath).isAbsolute());
    QVERIFY(answers.isEmpty());
    panel.picked(desk.path(u"first.books"_s));
    QCOMPARE(answers, QList<bool>{true});
    QCOMPARE(readFile(desk.path(u"first.books"_s)), QByteArray("first"));
    QCOMPARE(document.displayName(), u"first"_s);
    QVERIFY(!document.isDocumentEdited());
}

void DocumentControllerTest::savesUnderAnotherFile()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.controller.saveAs(document);
    QCOMPARE(desk.panels.savePanels.first().suggestedPath, desk.path(u"Emma.books"_s));
    desk.panels.savePanels.first().picked(desk.path(u"Other.books"_s));
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("text"));
    QCOMPARE(readFile(desk.path(u"Other.books"_s)), QByteArray("newer"));
    QCOMPARE(document.filePath(), desk.path(u"Other.books"_s));
    QVERIFY(!desk.controller.documentForFile(desk.path(u"Emma.books"_s)));
    // Over its own file it goes without a word.
    desk.controller.saveAs(document);
    desk.panels.savePanels.last().picked(desk.path(u"Other.books"_s));
    QVERIFY(desk.alerts.modals.isEmpty());
}

void DocumentControllerTest::savesNothingWhenThePanelIsCancelled()
{
    DocumentDesk desk;
    Document* const document = desk.controller.newDocument();
    document->changeDone();
    QList<bool> answers;
    desk.controller.save(*document, [&](bool happened) { answers.append(happened); });
    desk.panels.savePanels.first().picked({});
    QCOMPARE(answers, QList<bool>{false});
    QVERIFY(document->isDocumentEdited());
    QVERIFY(document->filePath().isEmpty());
    QVERIFY(desk.alerts.modals.isEmpty());
}

void DocumentControllerTest::savesNothingOverAnotherOpenDocument()
{
    DocumentDesk desk;
    Document* const open = desk.controller.openDocument(desk.file(u"Emma.books"_s, "Emma"));
    TextDocument& document = desk.edited(u"Other.books"_s);
    QVERIFY(QFile::link(desk.path(u"Emma.books"_s), desk.path(u"link.books"_s)));
    QList<bool> answers;
    for (const QString& name : {u"Emma.books"_s, u"link.books"_s}) {
        desk.controller.saveAs(document, [&](bool happened) { answers.append(happened); });
        desk.panels.savePanels.last().picked(desk.path(name));
    }
    QCOMPARE(answers, QList<bool>({false, false}));
    QCOMPARE(desk.alerts.modals.size(), 2);
    QVERIFY(desk.alerts.modals.first().informativeText.contains(open->displayName()));
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("Emma"));
    QVERIFY(document.isDocumentEdited());
}

void DocumentControllerTest::saysWhyAFileCannotBeSaved()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.controller.saveAs(document);
    desk.panels.savePanels.first().picked(desk.path(u"no folder/Emma.books"_s));
    QCOMPARE(desk.alerts.modals.size(), 1);
    const QString text = desk.alerts.modals.first().informativeText;
    QVERIFY(text.contains(u"Emma"_s));
    QVERIFY(text.contains(u"No such file or directory"_s));
    QVERIFY(document.isDocumentEdited());
    QCOMPARE(document.filePath(), desk.path(u"Emma.books"_s));
    QCOMPARE(desk.controller.recentDocuments(), QStringList{desk.path(u"Emma.books"_s)});
}

void DocumentControllerTest::ignoresAPanelThatOutlivesItsDocument()
{
    DocumentDesk desk;
    Document* const document = desk.controller.newDocument();
    QList<bool> answers;
    desk.controller.saveAs(*document, [&](bool happened) { answers.append(happened); });
    desk.controller.close(*document);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desk.panels.savePanels.first().picked(desk.path(u"late.books"_s));
    QCOMPARE(answers, QList<bool>{false});
    QVERIFY(!QFile::exists(desk.path(u"late.books"_s)));
}

void DocumentControllerTest::refusesWorkDuringAWait()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QList<bool> answers;
    const auto note = [&](bool happened) {
        answers.append(happened);
    };
    const WaitPanel wait(nullptr, u"Working"_s, WaitPanel::Cancel::Possible);
    desk.controller.save(document, note);
    desk.controller.saveAs(document, note);
    desk.controller.revert(document, note);
    desk.controller.close(document, note);
    desk.controller.closeAll(note);
    QCOMPARE(answers, QList<bool>({false, false, false, false, false}));
    QVERIFY(document.isDocumentEdited());
    QVERIFY(desk.alerts.sheets.isEmpty() && desk.panels.savePanels.isEmpty());
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("text"));
}

void DocumentControllerTest::remembersRecentDocuments()
{
    DocumentDesk desk;
    QSignalSpy changed(&desk.controller, &DocumentController::recentDocumentsChanged);
    const QString emma = desk.file(u"Emma.books"_s);
    const QString other = desk.file(u"Other.books"_s);
    desk.controller.close(*desk.controller.openDocument(emma));
    desk.controller.openDocument(other);
    QCOMPARE(desk.controller.recentDocuments(), QStringList({other, emma}));
    desk.controller.openDocument(emma);
    QCOMPARE(desk.controller.recentDocuments(), QStringList({emma, other}));
    QCOMPARE(changed.size(), 3);
    Document* const made = desk.controller.newDocument();
    desk.controller.save(*made);
    desk.panels.savePanels.first().picked(desk.path(u"made.books"_s));
    QCOMPARE(desk.controller.recentDocuments().first(), desk.path(u"made.books"_s));
    QVERIFY(desk.defaults.synchronize());
    QCOMPARE(
        UserDefaults(desk.defaults.filePath()).stringListForKey(PreferenceKeys::RecentDocuments),
        QStringList({desk.path(u"made.books"_s), emma, other}));
}

void DocumentControllerTest::forgetsRecentDocumentsBeyondTheLimit()
{
    DocumentDesk desk;
    for (int number = 0; number < DocumentController::recentLimit + 2; ++number)
        desk.controller.openDocument(desk.file(u"%1.books"_s.arg(number)));
    QCOMPARE(desk.controller.recentDocuments().size(), DocumentController::recentLimit);
    QCOMPARE(desk.controller.recentDocuments().last(), desk.path(u"2.books"_s));
}

void DocumentControllerTest::clearsRecentDocuments()
{
    DocumentDesk desk;
    desk.controller.openDocument(desk.file(u"Emma.books"_s));
    QSignalSpy changed(&desk.controller, &DocumentController::recentDocumentsChanged);
    desk.controller.clearRecentDocuments();
    QVERIFY(desk.controller.recentDocuments().isEmpty());
    QCOMPARE(changed.size(), 1);
}

QTEST_MAIN(DocumentControllerTest)
#include "DocumentControllerTest.moc"
