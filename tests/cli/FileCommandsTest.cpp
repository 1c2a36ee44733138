// The commands that are about a whole file: new, info, check and rewrite.

#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class FileCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void makesANewCollection();
    void neverReplacesWithNew();
    void makesOneOfSeveralAtOnce();
    void tellsWhyNothingNewWasMade();

    void printsInfo();
    void printsInfoOnSingleLines();
    void printsVisibleColumns();

    void checksASoundFile();
    void checksAnOlderFile();
    void checksDamage();
    void refuses_data();
    void refuses();

    void rewrites();
    void rewritesOverItself();
    void rewritesAnOlderFile();
    void keepsTheLayoutWhenRewriting();
    void leavesOutAloneWhenRewritingFails();

    void takesAnyFileName();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    /// A failed run: status 1, nothing on standard output, and this one line.
    void compareFailure(const ProgramResult& result, const QString& file, const QString& reason);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void FileCommandsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void FileCommandsTest::compareFailure(
    const ProgramResult& result, const QString& file, const QString& reason)
{
    QCOMPARE(QString::fromUtf8(result.errors), u"tomely-cli: "_s + file + u": "_s + reason + u'\n');
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 1);
}

void FileCommandsTest::makesANewCollection()
{
    const ProgramResult result = runProgram({u"new"_s, path(u"n.books"_s)});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 0);
    BookListDocument document;
    QVERIFY(!document.readFromFile(path(u"n.books"_s)));
    QCOMPARE(document.getBookListSize(), 0);
    QCOMPARE(document.getGroups().size(), 2);
    QCOMPARE(document.fileVersion(), 4);
}

void FileCommandsTest::neverReplacesWithNew()
{
    QVERIFY(writeBytes(path(u"n.books"_s), "mine"_ba));
    compareFailure(runProgram({u"new"_s, path(u"n.books"_s)}), path(u"n.books"_s),
        u"There is such a file already"_s);
    QCOMPARE(fileBytes(path(u"n.books"_s)), "mine"_ba);

    QVERIFY(QFile::link(u"nowhere"_s, path(u"l.books"_s)));
    compareFailure(runProgram({u"new"_s, path(u"l.books"_s)}), path(u"l.books"_s),
        u"There is such a file already"_s);
    QVERIFY(!QFileInfo::exists(path(u"nowhere"_s)));
}

void FileCommandsTest::makesOneOfSeveralAtOnce()
{
    const ProgramResult result = runShell(
        u"for i in 1 2 3 4 5 6 7 8; do { \"$CLI\" new '%1' 2>/dev/null && echo made; } & done; wait"_s
            .arg(path(u"n.books"_s)));
    QCOMPARE(result.output, "made\n"_ba);
    QCOMPARE(runProgram({u"check"_s, path(u"n.books"_s)}).status, 0);
}

void FileCommandsTest::tellsWhyNothingNewWasMade()
{
    const ProgramResult result = runProgram({u"new"_s, path(u"no/n.books"_s)});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY(result.errors.startsWith("tomely-cli: " + path(u"no/n.books"_s).toUtf8() + ": "));
    QVERIFY(result.errors.contains("No such file or directory"));
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList());
}

void FileCommandsTest::printsInfo()
{
    QVERIFY(saveSample(path(u"s.books"_s)));
    const ProgramResult result = runProgram({u"info"_s, path(u"s.books"_s)});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    const QByteArrayList lines = result.output.split('\n');
    const QByteArrayList expected{"version: 4", "books: 5", "pictures: 1",
        "group 1: Fiction (2 books)", "group 2: Non Fiction (2 books)", "last book number: 5",
        "last group key: 2", "sort field: 0", "visible columns: Title, Author",
        "label 42: Custom Field 1"};
    QCOMPARE(lines.first(expected.size()), expected);
    QCOMPARE(lines.size(), expected.size() + 18); // the other labels, and the end of the last line
}

void FileCommandsTest::printsInfoOnSingleLines()
{
    const auto document = sample();
    document->getGroups().find(u"1")->setGroupName(u"two\nlines %1"_s);
    QVERIFY(save(*document, path(u"s.books"_s)));
    const ProgramResult result = runProgram({u"info"_s, path(u"s.books"_s)});
    QVERIFY(result.output.contains("\ngroup 1: two lines %1 (2 books)\n"));
}

void FileCommandsTest::printsVisibleColumns()
{
    const auto document = sample();
    document->setCustomFieldLabel(u"Signed by"_s, 42);
    document->getListColumns().find(u"42"_s)->second.setPosition(0);
    document->getListColumns().find(u"0"_s)->second.setPosition(1);
    document->getListColumns().find(u"2"_s)->second.setPosition(3);
    document->setSortField(43);
    QVERIFY(save(*document, path(u"s.books"_s)));
    const ProgramResult result = runProgram({u"info"_s, path(u"s.books"_s)});
    QVERIFY(result.output.contains("\nvisible columns: Signed by, Title\n"));
    QVERIFY(result.output.contains("\nsort field: 43\n"));
    QVERIFY(result.output.contains("\nlabel 42: Signed by\n"));
}

void FileCommandsTest::checksASoundFile()
{
    const QString file = path(u"100% %1.books"_s);
    QVERIFY(saveSample(file));
    const ProgramResult result = runProgram({u"check"_s, file});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(
        QString::fromUtf8(result.output), file + u": 5 books, 2 groups, 1 pictures, version 4\n"_s);
}

void FileCommandsTest::checksAnOlderFile()
{
    const QString file = path(u"s.books"_s);
    QVERIFY(saveSample(file) && setFileVersion(file, 3));
    QCOMPARE(runProgram({u"check"_s, file}).output,
        file.toUtf8() + ": 5 books, 2 groups, 1 pictures, version 3\n");
}

void FileCommandsTest::checksDamage()
{
    const QString file = path(u"s.books"_s);
    QVERIFY(saveSample(file));
    const QByteArray bytes = fileBytes(file);
    QVERIFY(writeBytes(file, bytes.first(bytes.size() / 2)));
    const ProgramResult result = runProgram({u"check"_s, file});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY(result.errors.startsWith("tomely-cli: " + file.toUtf8() + ": "));
    const qsizetype offsetAt = result.errors.indexOf(" at offset ");
    QVERIFY2(offsetAt > 0, result.errors.constData());
    bool isNumber = false;
    QVERIFY(result.errors.sliced(offsetAt + 11).trimmed().toInt(&isNumber) > 0 && isNumber);
}

void FileCommandsTest::refuses_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"none.books"_s << u"No such file or directory"_s;
    QTest::newRow("folder") << u"."_s << u"Not a plain file"_s;
    QTest::newRow("text") << u"text"_s << u"not a collection file"_s;
    QTest::newRow("nothing in it") << u"empty"_s << u"not a collection file"_s;
    QTest::newRow("newer version")
        << u"newer.books"_s << u"Tomely cannot open files from newer versions."_s;
}

void FileCommandsTest::refuses()
{
    QFETCH(const QString, file);
    QFETCH(const QString, reason);
    QVERIFY(writeBytes(path(u"text"_s), "Emma, Jane Austen\n"_ba));
    QVERIFY(writeBytes(path(u"empty"_s), QByteArray()));
    QVERIFY(saveSample(path(u"newer.books"_s)) && setFileVersion(path(u"newer.books"_s), 5));
    QVERIFY(writeBytes(path(u"out"_s), "mine"_ba));
    for (const QString& command : {u"info"_s, u"list"_s, u"dump"_s, u"check"_s})
        compareFailure(runProgram({command, path(file)}), path(file), reason);
    compareFailure(runProgram({u"rewrite"_s, path(file), path(u"out"_s)}), path(file), reason);
    QCOMPARE(fileBytes(path(u"out"_s)), "mine"_ba);
}

void FileCommandsTest::rewrites()
{
    const QString file = path(u"s.books"_s);
    QVERIFY(saveSample(file));
    const ProgramResult result = runProgram({u"rewrite"_s, file, path(u"o.books"_s)});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(fileBytes(path(u"o.books"_s)), fileBytes(file));
}

void FileCommandsTest::rewritesOverItself()
{
    const QString file = path(u"s.books"_s);
    QVERIFY(saveSample(file) && setFileVersion(file, 3));
    QCOMPARE(runProgram({u"rewrite"_s, file, file}).status, 0);
    QVERIFY(saveSample(path(u"expected"_s)));
    QCOMPARE(fileBytes(file), fileBytes(path(u"expected"_s)));
}

void FileCommandsTest::rewritesAnOlderFile()
{
    const auto document = sample();
    document->getBookEntry(u"1")->addToGroup(u"9"_s);
    const QString file = path(u"s.books"_s);
    QVERIFY(save(*document, file) && setFileVersion(file, 3));
    const QByteArray before = fileBytes(file);
    QCOMPARE(runProgram({u"rewrite"_s, file, path(u"o.books"_s)}).status, 0);
    QCOMPARE(fileBytes(file), before);
    BookListDocument rewritten;
    QVERIFY(!rewritten.readFromFile(path(u"o.books"_s)));
    QCOMPARE(rewritten.fileVersion(), 4);
    QVERIFY(!rewritten.getBookEntry(u"1")->inGroup(9)); // a group that does not exist
    QVERIFY(rewritten.getBookEntry(u"1")->inGroup(1));
}

void FileCommandsTest::keepsTheLayoutWhenRewriting()
{
    const auto document = sample();
    document->setCustomizeListControllerWindowPosition({1, 2, 300.5, 400});
    document->getListColumns().find(u"2"_s)->second.setWidth(321);
    QVERIFY(save(*document, path(u"s.books"_s)));
    QCOMPARE(runProgram({u"rewrite"_s, path(u"s.books"_s), path(u"o.books"_s)}).status, 0);
    BookListDocument rewritten;
    QVERIFY(!rewritten.readFromFile(path(u"o.books"_s)));
    QCOMPARE(rewritten.getCustomizeListControllerWindowPosition(), QRectF(1, 2, 300.5, 400));
    QCOMPARE(rewritten.getListColumns().find(u"2"_s)->second.getWidth(), 321);
}

void FileCommandsTest::leavesOutAloneWhenRewritingFails()
{
    const QString file = path(u"s.books"_s);
    QVERIFY(saveSample(file));
    const ProgramResult result = runProgram({u"rewrite"_s, file, path(u"no/o.books"_s)});
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.startsWith("tomely-cli: " + path(u"no/o.books"_s).toUtf8() + ": "));
    QCOMPARE(result.errors.count('\n'), 1);
    QCOMPARE(runProgram({u"rewrite"_s, file, m_folder->path()}).status, 1);
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"s.books"_s});
}

void FileCommandsTest::takesAnyFileName()
{
    const QString odd = path(u"Bücher 猫\n%1.books"_s);
    for (const QString& locale : {u"LC_ALL=C"_s, u"LC_ALL=C.UTF-8"_s}) {
        QFile::remove(odd);
        const ProgramResult made = runProgram({u"new"_s, odd}, {locale});
        QCOMPARE(made.errors, QByteArray());
        QCOMPARE(made.status, 0);
        QVERIFY(QFileInfo::exists(odd));
        const ProgramResult checked = runProgram({u"check"_s, odd}, {locale});
        QCOMPARE(checked.output.count('\n'), 1);
        QVERIFY(checked.output.contains("Bücher 猫 %1.books: 0 books"));
    }
    const ProgramResult dash =
        runShell(u"cd '%1' && \"$CLI\" new -- -x && \"$CLI\" info -- -x"_s.arg(m_folder->path()));
    QCOMPARE(dash.errors, QByteArray());
    QVERIFY(dash.output.startsWith("version: 4\nbooks: 0\n"));
    compareFailure(runProgram({u"info"_s, QString()}), QString(), u"No such file or directory"_s);
}

QTEST_GUILESS_MAIN(FileCommandsTest)

#include "FileCommandsTest.moc"
