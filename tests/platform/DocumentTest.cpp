#include "platform/Document.h"

#include "platform/ArchiveError.h"
#include "tests/support/Files.h"
#include "tests/support/TextDocument.h"

#include <QTemporaryDir>
#include <QtTest>

#include <new>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;
using samples::writeFile;

namespace {

/// A window that counts what happens to it.
class CountingWindow : public DocumentWindow {
public:
    explicit CountingWindow(int& shown, int& destroyed) : m_shown(shown), m_destroyed(destroyed) { }

    CountingWindow(const CountingWindow&) = delete;
    CountingWindow& operator=(const CountingWindow&) = delete;

    ~CountingWindow() override { ++m_destroyed; }

    void showWindow() override { ++m_shown; }

    void bringToFront() override { }

    QObject* windowObject() override { return nullptr; }

private:
    int& m_shown;
    int& m_destroyed;
};

} // namespace

class DocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAFile();
    void isNamedAfterItsFile_data();
    void isNamedAfterItsFile();
    void readsAFile();
    void makesARelativePathAbsolute();
    void staysAsItWasWhenReadingFails_data();
    void staysAsItWasWhenReadingFails();
    void canBeLeftWhileItIsRead();
    void writesAFile();
    void staysEditedWhenWritingFails_data();
    void staysEditedWhenWritingFails();
    void handsOnProgress();
    void tellsOnlyOfChangesOfTheEditedState();
    void ownsItsWindows();
    void keepsItsMainWindow();
    void destroysAWindowOnlyLater();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void DocumentTest::startsWithoutAFile()
{
    TextDocument document;
    QSignalSpy named(&document, &Document::nameChanged);
    document.setUntitledName(u"Untitled 2"_s);
    QCOMPARE(named.size(), 1);
    QCOMPARE(document.displayName(), u"Untitled 2"_s);
    QVERIFY(document.filePath().isEmpty());
    QVERIFY(!document.isDocumentEdited());
    QVERIFY(!document.mainWindow());
}

void DocumentTest::isNamedAfterItsFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("usual") << u"Library.books"_s << u"Library"_s;
    QTest::newRow("several dots") << u"J. R. R. Tolkien.books"_s << u"J. R. R. Tolkien"_s;
    QTest::newRow("no extension") << u"Library"_s << u"Library"_s;
    QTest::newRow("nothing else") << u".books"_s << u".books"_s;
    QTest::newRow("another script") << u"図書.books"_s << u"図書"_s;
}

void DocumentTest::isNamedAfterItsFile()
{
    QFETCH(const QString, file);
    QFETCH(const QString, name);
    QVERIFY(writeFile(path(file), "text"));
    TextDocument document;
    document.setUntitledName(u"Untitled"_s);
    QVERIFY(!document.readFromFile(path(file)));
    QCOMPARE(document.displayName(), name);
}

void DocumentTest::readsAFile()
{
    QVERIFY(writeFile(path(u"read"_s), "from the file"));
    TextDocument document;
    document.changeDone();
    QSignalSpy named(&document, &Document::nameChanged);
    QVERIFY(!document.readFromFile(path(u"read"_s)));
    QCOMPARE(document.text, QByteArray("from the file"));
    QCOMPARE(document.filePath(), path(u"read"_s));
    QVERIFY(!document.isDocumentEdited());
    QCOMPARE(named.size(), 1);
}

void DocumentTest::makesARelativePathAbsolute()
{
    QVERIFY(writeFile(path(u"relative"_s), "text"));
    const QString relative = QDir::current().relativeFilePath(path(u"relative"_s));
    TextDocument read;
    QVERIFY(!read.readFromFile(relative));
    QCOMPARE(QDir::cleanPath(read.filePath()), path(u"relative"_s));
    TextDocument written;
    QVERIFY(!written.writeToFile(relative));
    QCOMPARE(QDir::cleanPath(written.filePath()), path(u"relative"_s));
}

void DocumentTest::staysAsItWasWhenReadingFails_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<bool>("memoryRunsOut");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file") << false << false << u"No such file or directory"_s;
    QTest::newRow("damage") << true << false << u"what is in it"_s;
    QTest::newRow("memory") << true << true << u"There is not enough memory"_s;
}

void DocumentTest::staysAsItWasWhenReadingFails()
{
    QFETCH(const bool, exists);
    QFETCH(const bool, memoryRunsOut);
    QFETCH(const QString, reason);
    QVERIFY(writeFile(path(u"first"_s), "first"));
    TextDocument document;
    QVERIFY(!document.readFromFile(path(u"first"_s)));
    document.changeDone();
    document.onRead = [memoryRunsOut](QByteArrayView, const Progress&) {
        if (memoryRunsOut)
            throw std::bad_alloc();
        return DocumentFailure{u"what is in it"_s};
    };
    const QString second = path(exists ? u"first"_s : u"missing"_s);
    QSignalSpy named(&document, &Document::nameChanged);
    const auto failure = document.readFromFile(second);
    QVERIFY(failure);
    QCOMPARE(failure->reason, reason);
    QVERIFY(!failure->cancelled);
    QVERIFY(!failure->standsAlone);
    QCOMPARE(document.text, QByteArray("first"));
    QCOMPARE(document.filePath(), path(u"first"_s));
    QVERIFY(document.isDocumentEdited());
    QVERIFY(named.isEmpty());
}

void DocumentTest::canBeLeftWhileItIsRead()
{
    QVERIFY(writeFile(path(u"long"_s), "text"));
    TextDocument document;
    const auto failure =
        document.readFromFile(path(u"long"_s), [](qint64, qint64) { throw OperationCancelled(); });
    QVERIFY(failure);
    QVERIFY(failure->cancelled);
    QVERIFY(document.filePath().isEmpty());
    QVERIFY(document.text.isEmpty());
}

void DocumentTest::writesAFile()
{
    TextDocument document;
    document.text = "typed";
    document.changeDone();
    QSignalSpy named(&document, &Document::nameChanged);
    QVERIFY(!document.writeToFile(path(u"written.books"_s)));
    QCOMPARE(readFile(path(u"written.books"_s)), QByteArray("typed"));
    QCOMPARE(document.filePath(), path(u"written.books"_s));
    QCOMPARE(document.displayName(), u"written"_s);
    QVERIFY(!document.isDocumentEdited());
    QCOMPARE(named.size(), 1);
}

void DocumentTest::staysEditedWhenWritingFails_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("thrown"); // 0 nothing, 1 an archive's error, 2 memory
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder") << u"missing/file"_s << 0 << u"No such file or directory"_s;
    QTest::newRow("cannot be expressed") << u"kept"_s << 1 << u"too large"_s;
    QTest::newRow("memory") << u"kept"_s << 2 << u"There is not enough memory"_s;
}

void DocumentTest::staysEditedWhenWritingFails()
{
    QFETCH(const QString, file);
    QFETCH(const int, thrown);
    QFETCH(const QString, reason);
    QVERIFY(writeFile(path(u"kept"_s), "older"));
    TextDocument document;
    document.text = "newer";
    document.changeDone();
    document.onWrite = [thrown](const Progress&) {
        if (thrown == 1)
            throw ArchiveError(7, u"too large"_s);
        if (thrown == 2)
            throw std::bad_alloc();
    };
    const auto failure = document.writeToFile(path(file));
    QVERIFY(failure);
    QVERIFY2(failure->reason.contains(reason), qPrintable(failure->reason));
    QVERIFY(document.isDocumentEdited());
    QVERIFY(document.filePath().isEmpty());
    QCOMPARE(readFile(path(u"kept"_s)), QByteArray("older"));
}

void DocumentTest::handsOnProgress()
{
    QVERIFY(writeFile(path(u"file"_s), "text"));
    int calls = 0;
    const Progress progress = [&calls](qint64, qint64) {
        ++calls;
    };
    TextDocument document;
    document.onRead = [](QByteArrayView, const Progress& given) {
        given(1, 2);
        return std::nullopt;
    };
    document.onWrite = [](const Progress& given) {
        given(1, 2);
    };
    QVERIFY(!document.readFromFile(path(u"file"_s), progress));
    QVERIFY(calls >= 2); // the file's own bytes too
    calls = 0;
    QVERIFY(!document.writeToFile(path(u"file"_s), progress));
    QVERIFY(calls >= 1);
}

void DocumentTest::tellsOnlyOfChangesOfTheEditedState()
{
    TextDocument document;
    QSignalSpy edited(&document, &Document::editedChanged);
    document.clearChangeCount();
    QVERIFY(edited.isEmpty());
    document.changeDone();
    document.changeDone();
    document.clearChangeCount();
    QCOMPARE(edited.size(), 2);
    QCOMPARE(edited.at(0).first().toBool(), true);
    QCOMPARE(edited.at(1).first().toBool(), false);
}

void DocumentTest::ownsItsWindows()
{
    int shown = 0;
    int destroyed = 0;
    {
        TextDocument document;
        document.addWindowController(std::make_unique<CountingWindow>(shown, destroyed));
        document.addWindowController(std::make_unique<CountingWindow>(shown, destroyed));
        QCOMPARE(document.mainWindow(), document.windowControllers().front().get());
        document.showWindows();
        QCOMPARE(shown, 2);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 2);
}

void DocumentTest::keepsItsMainWindow()
{
    int shown = 0;
    int destroyed = 0;
    TextDocument document;
    document.addWindowController(std::make_unique<CountingWindow>(shown, destroyed));
    CountingWindow stranger(shown, destroyed);
    document.removeWindowController(&stranger);
    document.removeWindowController(document.mainWindow());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(document.windowControllers().size(), std::size_t(1));
    QCOMPARE(destroyed, 0);
}

void DocumentTest::destroysAWindowOnlyLater()
{
    int shown = 0;
    int destroyed = 0;
    TextDocument document;
    document.addWindowController(std::make_unique<CountingWindow>(shown, destroyed));
    document.addWindowController(std::make_unique<CountingWindow>(shown, destroyed));
    document.removeWindowController(document.windowControllers().back().get());
    QCOMPARE(document.windowControllers().size(), std::size_t(1));
    QCOMPARE(destroyed, 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(destroyed, 1);
}

QTEST_GUILESS_MAIN(DocumentTest)
#include "DocumentTest.moc"
