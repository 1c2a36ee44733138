#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class ListCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void printsATable();
    void printsATableForThePage();
    void cutsATableWithoutATerminal();
    void fitsATableToTheTerminal();

    void printsTsv();
    void escapesTsv();
    void printsJson();
    void printsNoBooks();

    void choosesColumns();
    void printsAllColumns();
    void printsColumnsThatTheFileLacks();
    void appliesTheView();
    void keepsTheFilesOrder();

private:
    QByteArray listed(const QStringList& options, const QString& name = u"s.books"_s);

    QTemporaryDir m_folder;
};

void ListCommandTest::initTestCase()
{
    QVERIFY(saveSample(m_folder.filePath(u"s.books"_s)));
}

QByteArray ListCommandTest::listed(const QStringList& options, const QString& name)
{
    const ProgramResult result =
        runProgram(QStringList{u"list"_s, m_folder.filePath(name)} + options);
    return result.status == 0 && result.errors.isEmpty() ? result.output : "FAILED"_ba;
}

void ListCommandTest::printsATable()
{
    QCOMPARE(listed({}), R"(Title                 Author
--------------------  -------------
Emma                  Jane Austen
Persuasion            Jane Austen
Tabs, "quotes" and \
Walden                Henry Thoreau
吾輩は猫である        夏目漱石
)"_ba);
}

void ListCommandTest::printsATableForThePage()
{
    const QByteArray output =
        listed({u"--columns"_s, u"4,0,28,30,18,10"_s, u"--text"_s, u"austen"_s});
    QCOMPARE(output,
        "#  Title       Pages  Price Paid  Own  Published\n"
        "-  ----------  -----  ----------  ---  --------------\n"
        "1  Emma          474       12.50   X   December, 1815\n"
        "2  Persuasion    249        4.99       June, 1817\n"_ba);
}

void ListCommandTest::cutsATableWithoutATerminal()
{
    const auto document = sample();
    document->getBookEntry(u"1")->setTitle(QString(300, u'x'));
    QVERIFY(save(*document, m_folder.filePath(u"long.books"_s)));
    const QByteArrayList lines = listed({}, u"long.books"_s).split('\n');
    const QString cut = QString(84, u'x') + u"…"_s;
    QCOMPARE(QString::fromUtf8(lines.at(lines.size() - 3)), cut + u"  Jane Austen"_s);
    QCOMPARE(lines.at(1).size(), 100);
    QVERIFY(listed({u"--format"_s, u"tsv"_s}, u"long.books"_s).contains(QByteArray(300, 'x')));
}

void ListCommandTest::fitsATableToTheTerminal()
{
    const ProgramResult result =
        runShell(u"script -qec 'stty cols 24; \"$CLI\" list \"%1\"' /dev/null"_s.arg(
            m_folder.filePath(u"s.books"_s)));
    // The "script" program that makes the terminal is part of every Debian.
    QCOMPARE(result.status, 0);
    const QByteArrayList lines = result.output.split('\n');
    QCOMPARE(lines.at(1).trimmed().size(), 24);
    QVERIFY(lines.at(4).startsWith("Tabs, \"quo…"));
}

void ListCommandTest::printsTsv()
{
    QCOMPARE(listed({u"--format"_s, u"tsv"_s, u"--columns"_s, u"4,0,18,30,10"_s, u"--group=1"_s}),
        "#\tTitle\tOwn\tPrice Paid\tPublished\n"
        "1\tEmma\tX\t12.50\tDecember, 1815\n"
        "2\tPersuasion\t \t4.99\tJune, 1817\n"_ba);
}

void ListCommandTest::escapesTsv()
{
    QCOMPARE(listed({u"--format"_s, u"tsv"_s, u"--columns"_s, u"0,40"_s, u"--text"_s, u"tabs"_s}),
        "Title\tNotes\n"
        "Tabs, \"quotes\" and \\\\\tone\\ttwo\\nthree\\rfour\\\\five\n"_ba);
    const auto document = sample();
    document->setCustomFieldLabel(u"a\tb\\c"_s, 42);
    QVERIFY(save(*document, m_folder.filePath(u"label.books"_s)));
    QCOMPARE(listed({u"--format=tsv"_s, u"--columns=42"_s, u"--group=9"_s}, u"label.books"_s),
        "a\\tb\\\\c\n"_ba);
}

void ListCommandTest::printsJson()
{
    QCOMPARE(listed({u"--format"_s, u"json"_s, u"--columns"_s, u"2,0,4"_s, u"--group=1"_s}),
        R"([
  {"key": "1", "cells": {"2": "Jane Austen", "0": "Emma", "4": "1"}},
  {"key": "3", "cells": {"2": "Jane Austen", "0": "Persuasion", "4": "2"}}
]
)"_ba);
    const QJsonArray all =
        QJsonDocument::fromJson(listed({u"--format=json"_s, u"--columns=all"_s})).array();
    QCOMPARE(all.size(), 5);
    const QJsonObject cells = all[2].toObject()[u"cells"_s].toObject();
    QCOMPARE(cells.size(), 42);
    QCOMPARE(cells[u"40"_s].toString(), u"one\ttwo\nthree\rfour\\five"_s);
    QCOMPARE(cells[u"2"_s].toString(u"none"_s), u""_s);
    QCOMPARE(cells[u"18"_s].toString(), u" "_s);
}

void ListCommandTest::printsNoBooks()
{
    const QStringList none{u"--filter"_s, u"78"_s};
    QCOMPARE(listed(none), "Title  Author\n-----  ------\n"_ba);
    QCOMPARE(listed(none + QStringList{u"--format=tsv"_s}), "Title\tAuthor\n"_ba);
    QCOMPARE(listed(none + QStringList{u"--format=json"_s}), "[]\n"_ba);
}

void ListCommandTest::choosesColumns()
{
    const auto document = sample();
    document->getListColumns().find(u"28"_s)->second.setPosition(0);
    document->getListColumns().find(u"0"_s)->second.setPosition(1);
    document->getListColumns().find(u"2"_s)->second.setPosition(-2);
    QVERIFY(save(*document, m_folder.filePath(u"columns.books"_s)));
    const QStringList tsv{u"--format=tsv"_s, u"--text=emma"_s};
    QCOMPARE(listed(tsv, u"columns.books"_s), "Pages\tTitle\n474\tEmma\n"_ba);
    QCOMPARE(listed(tsv + QStringList{u"--columns=visible"_s}, u"columns.books"_s),
        "Pages\tTitle\n474\tEmma\n"_ba);
    QCOMPARE(listed(tsv + QStringList{u"--columns=2"_s}, u"columns.books"_s),
        "Author\nJane Austen\n"_ba);
}

void ListCommandTest::printsAllColumns()
{
    const QByteArray output = listed({u"--format=tsv"_s, u"--columns=all"_s, u"--group=9"_s});
    QByteArrayList headings = output.trimmed().split('\t');
    QCOMPARE(headings.size(), 42);
    QCOMPARE(headings.first(4), QByteArrayList({"Title", "Author", "Rating", "Last Read"}));
    QCOMPARE(headings.last(5),
        QByteArrayList(
            {"Custom Switch 8", "Est Value Date", "Lent Date", "Price Paid From", "Type"}));
}

void ListCommandTest::printsColumnsThatTheFileLacks()
{
    // A file of version 2 and above brings its own labels, and no column for those it leaves out.
    const auto document = sample();
    document->getListColumns().erase(u"42"_s);
    QVERIFY(save(*document, m_folder.filePath(u"few.books"_s)));
    QCOMPARE(listed({u"--format=tsv"_s, u"--columns=42"_s, u"--group=9"_s}, u"few.books"_s),
        "Custom Field 1\n"_ba);
}

void ListCommandTest::appliesTheView()
{
    const QStringList options{u"--format=tsv"_s, u"--columns=0"_s, u"--filter"_s, u"28"_s,
        u"--compare"_s, u"greater"_s, u"--number"_s, u"300 pages"_s, u"--sort"_s, u"29"_s};
    QCOMPARE(listed(options), "Title\nEmma\nWalden\n"_ba);
    QCOMPARE(
        listed({u"--format=tsv"_s, u"--columns=0"_s, u"--filter"_s, u"-2"_s, u"--state=set"_s}),
        "Title\nEmma\n"_ba);
}

void ListCommandTest::keepsTheFilesOrder()
{
    const auto document = sample();
    document->setSortField(29);
    QVERIFY(save(*document, m_folder.filePath(u"order.books"_s)));
    const QByteArray before = fileBytes(m_folder.filePath(u"order.books"_s));
    const QStringList tsv{u"--format=tsv"_s, u"--columns=28"_s, u"--filter=28"_s,
        u"--compare=greater"_s, u"--number=1"_s};
    QCOMPARE(listed(tsv, u"order.books"_s), "Pages\n474\n352\n249\n"_ba);
    QCOMPARE(
        listed(tsv + QStringList{u"--sort=28"_s}, u"order.books"_s), "Pages\n249\n352\n474\n"_ba);
    QCOMPARE(fileBytes(m_folder.filePath(u"order.books"_s)), before);
}

QTEST_GUILESS_MAIN(ListCommandTest)

#include "ListCommandTest.moc"
