#include "tests/support/DocumentDesk.h"

#include <QMainWindow>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

enum Answer { Keep = 0, Drop = 1, Cancel = 2 };

/// A further window of a text document with words that the document does not have yet.
class NoteWindow : public WindowController {
public:
    explicit NoteWindow(TextDocument& document, const QByteArray& words)
        : WindowController(document)
        , m_document(document)
        , m_words(words)
    {
    }

    std::optional<UnsavedWork> unsavedWork() const override
    {
        if (m_words.isEmpty())
            return std::nullopt;
        return UnsavedWork{u"Keep '%1'?"_s.arg(QString::fromUtf8(m_words)), canBeKept};
    }

    bool keepWork() override
    {
        if (!keeps)
            return false;
        m_document.text += m_words;
        m_document.changeDone();
        m_words.clear();
        return true;
    }

    void dropWork() override
    {
        m_words.clear();
        m_document.removeWindowController(this);
    }

    bool canBeKept = true;
    bool keeps = true;

private:
    TextDocument& m_document;
    QByteArray m_words;
};

NoteWindow& addNote(TextDocument& document, const QByteArray& words)
{
    auto note = std::make_unique<NoteWindow>(document, words);
    NoteWindow& added = *note;
    document.addWindowController(std::move(note));
    added.showWindow();
    return added;
}

TextDocument& open(DocumentDesk& desk)
{
    return static_cast<TextDocument&>(*desk.controller.openDocument(desk.file(u"Emma.books"_s)));
}

void reply(DocumentDesk& desk, int button)
{
    desk.alerts.sheets.takeLast().answered(button);
}

} // namespace

// What a window of a document holds is not lost without a question.
class UnsavedWorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksOnTheWindowThatHoldsIt();
    void closesOrStaysAsAnswered_data();
    void closesOrStaysAsAnswered();
    void asksAboutEachWindow();
    void offersNoSaveForWhatCannotBeKept_data();
    void offersNoSaveForWhatCannotBeKept();
    void staysWhenKeepingFails();
    void asksBeforeReverting_data();
    void asksBeforeReverting();
    void asksBeforeAllAreClosed();
    void asksAgainWhenTheWindowWasClosedUnderTheQuestion();
    void givesUpQuittingWhenTheQuestionGoesWithItsWindow();
    void countsAsUnsavedWorkOfTheDocument();
    void destroysARemovedWindowBeforeItsDocument();
    void makesItsDocumentTheCurrentOne();
};

void UnsavedWorkTest::asksOnTheWindowThatHoldsIt()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    NoteWindow& note = addNote(document, "more");
    note.window()->setWindowState(Qt::WindowMinimized);
    desk.controller.close(document);
    QCOMPARE(desk.alerts.sheets.size(), 1);
    const FakeAlerts::Sheet& sheet = desk.alerts.sheets.first();
    QCOMPARE(sheet.window, note.window());
    QVERIFY(!note.window()->isMinimized());
    QCOMPARE(sheet.alert.informativeText, u"Keep 'more'?"_s);
    QCOMPARE(sheet.alert.buttons, QStringList({u"Save"_s, u"Don't Save"_s, u"Cancel"_s}));
    QCOMPARE(sheet.alert.escapeButton, int(Cancel));
    desk.controller.close(document); // only once
    QCOMPARE(desk.alerts.sheets.size(), 1);
}

void UnsavedWorkTest::closesOrStaysAsAnswered_data()
{
    QTest::addColumn<QList<int>>("buttons");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("kept and saved") << QList<int>{Keep, Keep} << true << QByteArray("textmore");
    QTest::newRow("kept and not saved") << QList<int>{Keep, Drop} << true << QByteArray("text");
    QTest::newRow("kept and cancelled") << QList<int>{Keep, Cancel} << false << QByteArray("text");
    QTest::newRow("dropped") << QList<int>{Drop} << true << QByteArray("text");
    QTest::newRow("cancelled") << QList<int>{Cancel} << false << QByteArray("text");
}

void UnsavedWorkTest::closesOrStaysAsAnswered()
{
    QFETCH(const QList<int>, buttons);
    QFETCH(const bool, closes);
    QFETCH(const QByteArray, text);
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "more");
    QList<bool> answers;
    desk.controller.close(document, [&](bool happened) { answers.append(happened); });
    for (const int button : buttons) {
        QVERIFY(answers.isEmpty());
        QCOMPARE(desk.alerts.sheets.size(), 1);
        reply(desk, button);
    }
    QCOMPARE(answers, QList<bool>{closes});
    QVERIFY(desk.alerts.sheets.isEmpty());
    QCOMPARE(desk.controller.documents().empty(), closes);
    QCOMPARE(samples::readFile(desk.path(u"Emma.books"_s)), text);
}

void UnsavedWorkTest::asksAboutEachWindow()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "one");
    addNote(document, ""); // holds nothing
    addNote(document, "two");
    desk.controller.close(document);
    QCOMPARE(desk.alerts.sheets.first().alert.informativeText, u"Keep 'one'?"_s);
    reply(desk, Drop);
    QCOMPARE(desk.alerts.sheets.first().alert.informativeText, u"Keep 'two'?"_s);
    reply(desk, Drop);
    QVERIFY(desk.controller.documents().empty());
}

void UnsavedWorkTest::offersNoSaveForWhatCannotBeKept_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("closes");
    QTest::newRow("discarded") << 0 << true;
    QTest::newRow("cancelled") << 1 << false;
}

void UnsavedWorkTest::offersNoSaveForWhatCannotBeKept()
{
    QFETCH(const int, button);
    QFETCH(const bool, closes);
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "more").canBeKept = false;
    desk.controller.close(document);
    const Alert alert = desk.alerts.sheets.first().alert;
    QCOMPARE(alert.buttons, QStringList({u"Discard"_s, u"Cancel"_s}));
    QCOMPARE(alert.defaultButton, 1); // no stray Return loses it
    QCOMPARE(alert.escapeButton, 1);
    reply(desk, button);
    QCOMPARE(desk.controller.documents().empty(), closes);
    if (!closes)
        QVERIFY(document.hasUnsavedWork());
}

void UnsavedWorkTest::staysWhenKeepingFails()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "more").keeps = false;
    QList<bool> answers;
    desk.controller.close(document, [&](bool happened) { answers.append(happened); });
    reply(desk, Keep);
    QCOMPARE(answers, QList<bool>{false});
    QVERIFY(document.hasUnsavedWork());
}

void UnsavedWorkTest::asksBeforeReverting_data()
{
    QTest::addColumn<QList<int>>("buttons");
    QTest::addColumn<bool>("reverts");
    QTest::newRow("dropped") << QList<int>{Drop} << true;
    QTest::newRow("cancelled") << QList<int>{Cancel} << false;
    QTest::newRow("kept, then reverted") << QList<int>{Keep, 0} << true;
    QTest::newRow("kept, then not") << QList<int>{Keep, 1} << false;
}

void UnsavedWorkTest::asksBeforeReverting()
{
    QFETCH(const QList<int>, buttons);
    QFETCH(const bool, reverts);
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "more");
    QList<bool> answers;
    desk.controller.revert(document, [&](bool happened) { answers.append(happened); });
    for (const int button : buttons)
        reply(desk, button);
    QCOMPARE(answers, QList<bool>{reverts});
    QCOMPARE(desk.controller.documents().front().get() == &document, !reverts);
}

void UnsavedWorkTest::asksBeforeAllAreClosed()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    addNote(document, "more");
    desk.controller.newDocument();
    QList<bool> answers;
    desk.controller.closeAll([&](bool happened) { answers.append(happened); });
    QCOMPARE(desk.alerts.sheets.size(), 1);
    reply(desk, Cancel);
    QCOMPARE(answers, QList<bool>{false});
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
}

void UnsavedWorkTest::asksAgainWhenTheWindowWasClosedUnderTheQuestion()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    NoteWindow& note = addNote(document, "one");
    addNote(document, "two");
    desk.controller.close(document);
    desk.alerts.sheets.clear(); // the question goes with its window and is never answered
    note.dropWork();
    desk.controller.close(document);
    QCOMPARE(desk.alerts.sheets.size(), 1);
    QCOMPARE(desk.alerts.sheets.first().alert.informativeText, u"Keep 'two'?"_s);
}

void UnsavedWorkTest::givesUpQuittingWhenTheQuestionGoesWithItsWindow()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    NoteWindow& note = addNote(document, "one");
    QList<bool> answers;
    desk.controller.closeAll([&](bool happened) { answers.append(happened); });
    QVERIFY(desk.controller.isClosingAll());
    note.dropWork();
    desk.alerts.sheets.clear(); // as a sheet goes with its window
    QCOMPARE(answers, QList<bool>{false});
    QVERIFY(!desk.controller.isClosingAll());
    desk.controller.closeAll([&](bool happened) { answers.append(happened); });
    QCOMPARE(answers, QList<bool>({false, true}));
}

void UnsavedWorkTest::countsAsUnsavedWorkOfTheDocument()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    QVERIFY(!document.hasUnsavedWork());
    NoteWindow& note = addNote(document, "more");
    QVERIFY(document.hasUnsavedWork() && !document.isDocumentEdited());
    note.dropWork();
    QVERIFY(!document.hasUnsavedWork());
    document.changeDone();
    QVERIFY(document.hasUnsavedWork());
}

void UnsavedWorkTest::destroysARemovedWindowBeforeItsDocument()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    NoteWindow& note = addNote(document, "more");
    QStringList gone;
    connect(&note, &QObject::destroyed, this, [&gone] { gone.append(u"window"_s); });
    connect(&document, &QObject::destroyed, this, [&gone] { gone.append(u"document"_s); });
    document.removeWindowController(&note);
    QVERIFY(gone.isEmpty()); // it may be handling an event
    desk.controller.close(document);
    QTRY_COMPARE(gone, QStringList({u"window"_s, u"document"_s}));
}

void UnsavedWorkTest::makesItsDocumentTheCurrentOne()
{
    DocumentDesk desk;
    TextDocument& document = open(desk);
    NoteWindow& note = addNote(document, "");
    desk.controller.newDocument();
    QVERIFY(desk.controller.currentDocument() != &document);
    Q_EMIT note.activated();
    QCOMPARE(desk.controller.currentDocument(), &document);
}

QTEST_MAIN(UnsavedWorkTest)
#include "UnsavedWorkTest.moc"
