#include "tests/support/DocumentDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;
using samples::writeFile;

namespace {

enum Answer { Save = 0, DontSave = 1, Cancel = 2 };

/// Answers the question that was asked last.
void reply(DocumentDesk& desk, int button)
{
    desk.alerts.sheets.takeLast().answered(button);
}

} // namespace

// What the document controller asks before changes are lost.
class DocumentQuestionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closesAnUneditedDocumentWithoutAQuestion();
    void closesByTheWindowsButton();
    void asksBeforeItClosesAnEditedDocument();
    void closesOrKeepsAsAnswered_data();
    void closesOrKeepsAsAnswered();
    void keepsADocumentThatCannotBeSaved();
    void asksBeforeItReplacesWhatAnotherProgramWrote_data();
    void asksBeforeItReplacesWhatAnotherProgramWrote();
    void asksNothingAboutItsOwnWriting();
    void savesAnUntitledDocumentBeforeItCloses_data();
    void savesAnUntitledDocumentBeforeItCloses();
    void asksOnlyOnce();
    void closesAllUntilOneIsKept_data();
    void closesAllUntilOneIsKept();
    void revertsAnUneditedDocumentWithoutAQuestion();
    void asksBeforeItRevertsAnEditedDocument_data();
    void asksBeforeItRevertsAnEditedDocument();
    void keepsADocumentWhoseFileIsDamaged();
    void revertsNoUntitledDocument();
};

void DocumentQuestionsTest::closesAnUneditedDocumentWithoutAQuestion()
{
    DocumentDesk desk;
    const QPointer<Document> document = desk.controller.newDocument();
    const QPointer<QWidget> window = desk.windowOf(*document);
    QSignalSpy closed(&desk.controller, &DocumentController::documentClosed);
    bool happened = false;
    desk.controller.close(*document, [&](bool answer) { happened = answer; });
    QVERIFY(happened);
    QCOMPARE(closed.size(), 1);
    QVERIFY(desk.controller.documents().empty());
    QVERIFY(!window->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!document && !window);
    QVERIFY(desk.alerts.sheets.isEmpty() && desk.alerts.modals.isEmpty());
}

void DocumentQuestionsTest::closesByTheWindowsButton()
{
    DocumentDesk desk;
    desk.windowOf(*desk.controller.newDocument())->close();
    QVERIFY(desk.controller.documents().empty());
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.windowOf(document)->close();
    QCOMPARE(desk.alerts.sheets.size(), 1);
    QVERIFY(desk.windowOf(document)->isVisible());
}

void DocumentQuestionsTest::asksBeforeItClosesAnEditedDocument()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.windowOf(document)->setWindowState(Qt::WindowMinimized);
    desk.controller.close(document);
    QVERIFY(!desk.windowOf(document)->isMinimized()); // where the question can be seen
    QCOMPARE(desk.alerts.sheets.size(), 1);
    const FakeAlerts::Sheet& sheet = desk.alerts.sheets.first();
    QCOMPARE(sheet.window, desk.windowOf(document));
    QCOMPARE(sheet.alert.informativeText, u"Do you want to save the changes to 'Emma'?"_s);
    QCOMPARE(sheet.alert.buttons, QStringList({u"Save"_s, u"Don't Save"_s, u"Cancel"_s}));
    QCOMPARE(sheet.alert.defaultButton, int(Save));
    QCOMPARE(sheet.alert.escapeButton, int(Cancel));
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
}

void DocumentQuestionsTest::closesOrKeepsAsAnswered_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Save") << int(Save) << true << QByteArray("newer");
    QTest::newRow("Don't Save") << int(DontSave) << true << QByteArray("text");
    QTest::newRow("Cancel") << int(Cancel) << false << QByteArray("text");
}

void DocumentQuestionsTest::closesOrKeepsAsAnswered()
{
    QFETCH(const int, button);
    QFETCH(const bool, closes);
    QFETCH(const QByteArray, text);
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QSignalSpy closed(&desk.controller, &DocumentController::documentClosed);
    QList<bool> answers;
    desk.controller.close(document, [&](bool happened) { answers.append(happened); });
    QVERIFY(answers.isEmpty());
    reply(desk, button);
    QCOMPARE(answers, QList<bool>{closes});
    QCOMPARE(closed.size(), closes ? 1 : 0);
    QCOMPARE(desk.controller.documents().empty(), closes);
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), text);
    if (!closes)
        QVERIFY(document.isDocumentEdited() && document.text == "newer");
}

void DocumentQuestionsTest::keepsADocumentThatCannotBeSaved()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    document.onWrite = [](const Progress&) {
        throw std::bad_alloc();
    };
    QList<bool> answers;
    desk.controller.close(document, [&](bool happened) { answers.append(happened); });
    reply(desk, Save);
    QCOMPARE(answers, QList<bool>{false});
    QCOMPARE(desk.alerts.modals.size(), 1);
    QVERIFY(document.isDocumentEdited());
    QVERIFY(desk.windowOf(document)->isVisible());
    desk.controller.close(document);
    QCOMPARE(desk.alerts.sheets.size(), 1); // it can be asked again
}

void DocumentQuestionsTest::asksBeforeItReplacesWhatAnotherProgramWrote_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Replace") << 0 << QByteArray("newer");
    QTest::newRow("Cancel") << 1 << QByteArray("by another program");
}

void DocumentQuestionsTest::asksBeforeItReplacesWhatAnotherProgramWrote()
{
    QFETCH(const int, button);
    QFETCH(const QByteArray, text);
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QVERIFY(writeFile(desk.path(u"Emma.books"_s), "by another program"));
    QList<bool> answers;
    desk.controller.save(document, [&](bool happened) { answers.append(happened); });
    QVERIFY(answers.isEmpty());
    QCOMPARE(desk.alerts.sheets.size(), 1);
    QCOMPARE(desk.alerts.sheets.first().window, desk.windowOf(document));
    QCOMPARE(desk.alerts.sheets.first().alert.defaultButton, 1); // no stray Return loses anything
    reply(desk, button);
    QCOMPARE(answers, QList<bool>{button == 0});
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), text);
    QCOMPARE(document.isDocumentEdited(), button != 0);
}

void DocumentQuestionsTest::asksNothingAboutItsOwnWriting()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.controller.save(document);
    document.text = "newest";
    document.changeDone();
    desk.controller.save(document);
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("newest"));
    QVERIFY(QFile::remove(desk.path(u"Emma.books"_s))); // nothing there to be lost
    desk.controller.save(document);
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("newest"));
    QVERIFY(desk.alerts.sheets.isEmpty());
}

void DocumentQuestionsTest::savesAnUntitledDocumentBeforeItCloses_data()
{
    QTest::addColumn<bool>("picked");
    QTest::newRow("under a name") << true;
    QTest::newRow("cancelled") << false;
}

void DocumentQuestionsTest::savesAnUntitledDocumentBeforeItCloses()
{
    QFETCH(const bool, picked);
    DocumentDesk desk;
    Document* const document = desk.controller.newDocument();
    document->changeDone();
    QList<bool> answers;
    desk.controller.close(*document, [&](bool happened) { answers.append(happened); });
    QCOMPARE(desk.alerts.sheets.first().alert.informativeText,
        u"Do you want to save the changes to 'Untitled'?"_s);
    reply(desk, Save);
    QVERIFY(answers.isEmpty());
    desk.panels.savePanels.first().picked(picked ? desk.path(u"saved.books"_s) : QString());
    QCOMPARE(answers, QList<bool>{picked});
    QCOMPARE(QFile::exists(desk.path(u"saved.books"_s)), picked);
    QCOMPARE(desk.controller.documents().empty(), picked);
}

void DocumentQuestionsTest::asksOnlyOnce()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QList<bool> answers;
    desk.controller.close(document);
    desk.controller.close(document, [&](bool happened) { answers.append(happened); });
    QCOMPARE(desk.alerts.sheets.size(), 1);
    QCOMPARE(answers, QList<bool>{false});
    reply(desk, Cancel);
    desk.controller.close(document);
    QCOMPARE(desk.alerts.sheets.size(), 1);
    reply(desk, DontSave);
    QVERIFY(desk.controller.documents().empty());
}

void DocumentQuestionsTest::closesAllUntilOneIsKept_data()
{
    QTest::addColumn<QList<int>>("buttons");
    QTest::addColumn<bool>("allClosed");
    QTest::addColumn<int>("left");
    QTest::newRow("both saved") << QList<int>{Save, Save} << true << 0;
    QTest::newRow("one dropped") << QList<int>{DontSave, Save} << true << 0;
    QTest::newRow("the first kept") << QList<int>{Cancel} << false << 3;
    QTest::newRow("the second kept") << QList<int>{Save, Cancel} << false << 2;
}

void DocumentQuestionsTest::closesAllUntilOneIsKept()
{
    QFETCH(const QList<int>, buttons);
    QFETCH(const bool, allClosed);
    QFETCH(const int, left);
    DocumentDesk desk;
    desk.controller.newDocument();
    desk.edited(u"Emma.books"_s);
    desk.edited(u"Other.books"_s);
    QList<bool> answers;
    desk.controller.closeAll([&](bool happened) { answers.append(happened); });
    for (const int button : buttons) {
        QCOMPARE(desk.alerts.sheets.size(), 1); // one question at a time
        QVERIFY(answers.isEmpty());
        reply(desk, button);
    }
    QVERIFY(desk.alerts.sheets.isEmpty());
    QCOMPARE(answers, QList<bool>{allClosed});
    QCOMPARE(desk.controller.documents().size(), std::size_t(left));
}

void DocumentQuestionsTest::revertsAnUneditedDocumentWithoutAQuestion()
{
    DocumentDesk desk;
    const QPointer<Document> document =
        desk.controller.openDocument(desk.file(u"Emma.books"_s, "first"));
    QVERIFY(writeFile(desk.path(u"Emma.books"_s), "changed outside"));
    QSignalSpy opened(&desk.controller, &DocumentController::documentOpened);
    bool reverted = false;
    desk.controller.revert(*document, [&](bool happened) { reverted = happened; });
    QVERIFY(reverted);
    QVERIFY(desk.alerts.sheets.isEmpty());
    QCOMPARE(opened.size(), 1);
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
    const auto& fresh = static_cast<TextDocument&>(*desk.controller.documents().front());
    QCOMPARE(fresh.text, QByteArray("changed outside"));
    QVERIFY(desk.windowOf(fresh)->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!document);
}

void DocumentQuestionsTest::asksBeforeItRevertsAnEditedDocument_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("Revert") << 0 << QByteArray("text");
    QTest::newRow("Cancel") << 1 << QByteArray("newer");
}

void DocumentQuestionsTest::asksBeforeItRevertsAnEditedDocument()
{
    QFETCH(const int, button);
    QFETCH(const QByteArray, text);
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.windowOf(document)->setWindowState(Qt::WindowMinimized);
    QList<bool> answers;
    desk.controller.revert(document, [&](bool happened) { answers.append(happened); });
    QVERIFY(!desk.windowOf(document)->isMinimized());
    QCOMPARE(desk.alerts.sheets.size(), 1);
    const Alert alert = desk.alerts.sheets.first().alert;
    QVERIFY(alert.informativeText.contains(u"'Emma'"_s));
    QCOMPARE(alert.defaultButton, 1); // no stray Return loses changes
    QCOMPARE(alert.escapeButton, 1);
    QVERIFY(answers.isEmpty());
    reply(desk, button);
    QCOMPARE(answers, QList<bool>{button == 0});
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
    const auto& left = static_cast<TextDocument&>(*desk.controller.documents().front());
    QCOMPARE(left.text, text);
    QCOMPARE(left.isDocumentEdited(), button != 0);
}

void DocumentQuestionsTest::keepsADocumentWhoseFileIsDamaged()
{
    DocumentDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    desk.onRead = [](QByteArrayView, const Progress&) {
        return DocumentFailure{u"damaged"_s};
    };
    QList<bool> answers;
    desk.controller.revert(document, [&](bool happened) { answers.append(happened); });
    reply(desk, 0);
    QCOMPARE(answers, QList<bool>{false});
    QCOMPARE(desk.alerts.modals.size(), 1);
    QVERIFY(desk.alerts.modals.first().informativeText.contains(document.filePath()));
    QCOMPARE(desk.controller.documents().front().get(), &document);
    QCOMPARE(document.text, QByteArray("newer"));
    QVERIFY(document.isDocumentEdited());
    QVERIFY(desk.windowOf(document)->isVisible());
}

void DocumentQuestionsTest::revertsNoUntitledDocument()
{
    DocumentDesk desk;
    Document* const document = desk.controller.newDocument();
    document->changeDone();
    QList<bool> answers;
    desk.controller.revert(*document, [&](bool happened) { answers.append(happened); });
    QCOMPARE(answers, QList<bool>{false});
    QVERIFY(desk.alerts.sheets.isEmpty());
    QVERIFY(document->isDocumentEdited());
}

QTEST_MAIN(DocumentQuestionsTest)
#include "DocumentQuestionsTest.moc"
