#include "editor/SpellChecker.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A folder with dictionaries that have a handful of words each.
class Dictionaries {
public:
    Dictionaries() { QVERIFY(m_folder.isValid()); }

    QString path() const { return m_folder.path(); }

    void add(const QString& name, const QByteArray& encoding, const QByteArrayList& words,
        const QByteArray& rules = {})
    {
        write(name + u".aff"_s, "SET " + encoding + "\nTRY abcdefghijklmnopqrstuvwxyz\n" + rules);
        write(name + u".dic"_s, QByteArray::number(words.size()) + '\n' + words.join('\n') + '\n');
    }

    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private:
    QTemporaryDir m_folder;
};

/// The misspelt words themselves.
QStringList misspelled(SpellChecker& checker, const QString& text)
{
    QStringList words;
    for (const auto& [start, length] : checker.misspelledWords(text))
        words.append(text.sliced(start, length));
    return words;
}

} // namespace

class SpellCheckerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsMisspeltWords();
    void suggestsWhatWasMeant();
    void takesEverythingForCorrectWithoutADictionary();
    void readsADictionaryInLatin1();
    void readsADictionaryInAnEncodingOfWindows();
    void takesEverythingForCorrectInAnUnknownEncoding();
    void findsTheWordsOfAText_data();
    void findsTheWordsOfAText();
    void skipsLongWordsAndTexts();
    void knowsTheTypographicApostrophe();
    void takesIgnoredWordsForCorrect();
    void takesTheDictionaryOfTheLanguage_data();
    void takesTheDictionaryOfTheLanguage();
    void takesTheFirstFolder();
    void needsBothFilesOfADictionary();
    void readsNothingBeforeTheFirstWord();
    void looksInTheFoldersOfThePerson();
    void remembersWords();
};

void SpellCheckerTest::tellsMisspeltWords()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello", "world", "naïve"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QCOMPARE(misspelled(checker, u"Hello wurld, hello naïve nave"_s),
        (QStringList{u"wurld"_s, u"nave"_s}));
    QVERIFY(checker.isCorrect(u"world"_s));
    QVERIFY(!checker.isCorrect(u"wurld"_s));
    const auto ranges = checker.misspelledWords(u"a wurld"_s);
    QCOMPARE(ranges.size(), 2);
    QCOMPARE(ranges[1].start, 2);
    QCOMPARE(ranges[1].length, 5);
}

void SpellCheckerTest::suggestsWhatWasMeant()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello", "world", "café"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QCOMPARE(checker.suggestions(u"wurld"_s), QStringList{u"world"_s});
    QCOMPARE(checker.suggestions(u"caffé"_s), QStringList{u"café"_s});
    QCOMPARE(checker.suggestions(QString(65, u'x')), QStringList());
}

void SpellCheckerTest::takesEverythingForCorrectWithoutADictionary()
{
    const Dictionaries dictionaries;
    for (const QStringList& folders :
        {QStringList(), QStringList{dictionaries.path()}, QStringList{u"/nowhere"_s}}) {
        SpellChecker checker(folders, {u"en_US"_s});
        QVERIFY(checker.isCorrect(u"wurld"_s));
        QVERIFY(checker.misspelledWords(u"hello wurld"_s).isEmpty());
        QVERIFY(checker.suggestions(u"wurld"_s).isEmpty());
        QVERIFY(checker.isLoaded());
    }
}

void SpellCheckerTest::readsADictionaryInLatin1()
{
    Dictionaries dictionaries;
    dictionaries.add(u"fr_FR"_s, "ISO8859-1", {"caf\xE9", "th\xE9"});
    SpellChecker checker({dictionaries.path()}, {u"fr_FR"_s});
    QCOMPARE(misspelled(checker, u"café cafè thé the"_s), (QStringList{u"cafè"_s, u"the"_s}));
    QVERIFY(checker.suggestions(u"cafè"_s).contains(u"café"_s));
    // What the encoding has no letters for cannot be in the dictionary, right or wrong.
    QVERIFY(checker.isCorrect(u"чай"_s));
    QVERIFY(checker.isCorrect(u"caf"_s + QChar(0xD800)));
}

void SpellCheckerTest::readsADictionaryInAnEncodingOfWindows()
{
    Dictionaries dictionaries;
    dictionaries.add(u"bg_BG"_s, "microsoft-cp1251", {"\xF7\xE0\xE9"});
    SpellChecker checker({dictionaries.path()}, {u"bg_BG"_s});
    QCOMPARE(misspelled(checker, u"чай чой"_s), QStringList{u"чой"_s});
}

void SpellCheckerTest::takesEverythingForCorrectInAnUnknownEncoding()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "NO-SUCH-ENCODING", {"hello"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QVERIFY(checker.isCorrect(u"wurld"_s));
    QVERIFY(checker.suggestions(u"wurld"_s).isEmpty());
}

void SpellCheckerTest::findsTheWordsOfAText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words");
    const auto row = [](const char* name, const QString& text, const QStringList& words) {
        QTest::newRow(name) << text << words;
    };
    row("nothing", {}, {});
    row("blank", u" \t\u00A0\u2028"_s, {});
    row("one", u"wurld"_s, {u"wurld"_s});
    row("marks around", u"(\"wurld\", 'twe')!"_s, {u"wurld"_s, u"twe"_s});
    row("inner apostrophe", u"dont't 'tis'"_s, {u"dont't"_s, u"tis"_s});
    row("two apostrophes", u"a''b"_s, {u"a"_s, u"b"_s});
    row("hyphen", u"wurld-wide"_s, {u"wurld"_s, u"wide"_s});
    row("number", u"1984 3.14 ½"_s, {});
    row("word with digits", u"abc1 2nd x86"_s, {});
    row("other letters", u"приывет"_s, {u"приывет"_s});
    row("combining mark", u"cafe\u0301x"_s, {u"cafe\u0301x"_s});
    row("beyond the first plane", u"\U00010428\U00010429 x"_s, {u"\U00010428\U00010429"_s, u"x"_s});
    row("lone surrogates", u"ab"_s + QChar(0xD800) + u"cd"_s + QChar(0xDC00), {u"ab"_s, u"cd"_s});
    row("NUL", u"ab"_s + QChar(0) + u"cd"_s, {u"ab"_s, u"cd"_s});
    row("emoji", u"ab😀cd"_s, {u"ab"_s, u"cd"_s});
    row("web address", u"see https://Books.example/wurld?twe ok"_s, {u"see"_s, u"ok"_s});
    row("host", u"(www.wurld.twe) lib.example.org/foo ab"_s, {u"ab"_s});
    row("mail address", u"jane@wurld.twe"_s, {});
    row("file", u"notes.txt"_s, {});
    row("sentence without a space", u"Wurld.Twe"_s, {u"Wurld"_s, u"Twe"_s});
    row("end of a sentence", u"wurld. twe..."_s, {u"wurld"_s, u"twe"_s});
    row("written without spaces", u"源氏物語 ใบไม้"_s, {});
    row("hangul", u"소설"_s, {u"소설"_s});
}

void SpellCheckerTest::findsTheWordsOfAText()
{
    QFETCH(const QString, text);
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QTEST(misspelled(checker, text), "words");
}

void SpellCheckerTest::skipsLongWordsAndTexts()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QCOMPARE(checker.misspelledWords(QString(64, u'x')).size(), 1);
    QCOMPARE(checker.misspelledWords(QString(65, u'x')).size(), 0);
    QCOMPARE(checker.misspelledWords(u"wurld "_s.repeated(3'333)).size(), 3'333);
    QCOMPARE(checker.misspelledWords(u"wurld "_s.repeated(3'334)).size(), 0);
}

void SpellCheckerTest::knowsTheTypographicApostrophe()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "ISO8859-1", {"don't"}, "WORDCHARS '\n");
    dictionaries.add(u"en_GB"_s, "UTF-8", {"don't"}, "WORDCHARS '\n");
    SpellChecker latin({dictionaries.path()}, {u"en_US"_s});
    SpellChecker unicode({dictionaries.path()}, {u"en_GB"_s});
    for (SpellChecker* const checker : {&latin, &unicode}) {
        QVERIFY(checker->isCorrect(u"don't"_s));
        QVERIFY(checker->isCorrect(u"don’t"_s));
    }
    QVERIFY(!unicode.isCorrect(u"dan’t"_s));
}

void SpellCheckerTest::takesIgnoredWordsForCorrect()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QSignalSpy changes(&checker, &SpellChecker::wordsChanged);
    QVERIFY(!checker.isCorrect(u"wurld"_s));
    checker.ignore(u"wurld"_s);
    QVERIFY(checker.isCorrect(u"wurld"_s));
    QVERIFY(!checker.isCorrect(u"wurlds"_s));
    QCOMPARE(changes.count(), 1);
}

void SpellCheckerTest::takesTheDictionaryOfTheLanguage_data()
{
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("taken");
    const auto row = [](const char* name, const QStringList& installed,
                         const QStringList& languages, const QString& taken) {
        QTest::newRow(name) << installed << languages << taken;
    };
    row("exact", {u"en_GB"_s, u"en_US"_s}, {u"en_US"_s}, u"en_US"_s);
    row("language alone", {u"eo"_s, u"en_US"_s}, {u"eo_XX"_s, u"eo"_s}, u"eo"_s);
    row("other country", {u"de_AT"_s, u"en_US"_s}, {u"de_DE"_s, u"de"_s}, u"de_AT"_s);
    row("other country before other language", {u"de_AT"_s, u"en_US"_s},
        {u"de_DE"_s, u"de"_s, u"en_US"_s}, u"de_AT"_s);
    row("exact before other country", {u"de_AT"_s, u"de_DE"_s}, {u"de"_s, u"en_US"_s, u"de_DE"_s},
        u"de_DE"_s);
    row("second language", {u"en_US"_s}, {u"de_DE"_s, u"en_US"_s}, u"en_US"_s);
    row("language that begins alike", {u"enm_XX"_s}, {u"en_US"_s}, {});
    row("none", {u"fr_FR"_s}, {u"en_US"_s}, {});
    row("no language", {u"fr_FR"_s}, {}, {});
    row("empty language", {u"fr_FR"_s}, {u""_s, u"C"_s}, {});
}

void SpellCheckerTest::takesTheDictionaryOfTheLanguage()
{
    QFETCH(const QStringList, installed);
    QFETCH(const QStringList, languages);
    Dictionaries dictionaries;
    // Each knows one word, that its own name is.
    for (const QString& name : installed)
        dictionaries.add(name, "UTF-8", {QString(name).remove(u'_').toLower().toUtf8()});
    SpellChecker checker({dictionaries.path()}, languages);
    QString taken;
    if (!checker.isCorrect(u"wurld"_s)) {
        for (const QString& name : installed) {
            if (checker.isCorrect(QString(name).remove(u'_').toLower()))
                taken += name;
        }
    }
    QTEST(taken, "taken");
}

void SpellCheckerTest::takesTheFirstFolder()
{
    Dictionaries first;
    Dictionaries second;
    first.add(u"en_US"_s, "UTF-8", {"first"});
    second.add(u"en_US"_s, "UTF-8", {"second"});
    SpellChecker checker({u"/nowhere"_s, first.path(), second.path()}, {u"en_US"_s});
    QVERIFY(checker.isCorrect(u"first"_s));
    QVERIFY(!checker.isCorrect(u"second"_s));
}

void SpellCheckerTest::needsBothFilesOfADictionary()
{
    Dictionaries dictionaries;
    dictionaries.write(u"en_US.dic"_s, "1\nhello\n");
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QVERIFY(checker.isCorrect(u"wurld"_s));
}

void SpellCheckerTest::readsNothingBeforeTheFirstWord()
{
    Dictionaries dictionaries;
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    QVERIFY(!checker.isLoaded());
    QVERIFY(checker.misspelledWords(u" 12 ... "_s).isEmpty());
    QVERIFY(!checker.isLoaded());
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello"});
    QVERIFY(!checker.isCorrect(u"wurld"_s));
    QVERIFY(checker.isLoaded());
}

void SpellCheckerTest::looksInTheFoldersOfThePerson()
{
    qputenv("DICPATH", "/one:/two");
    const QStringList folders = SpellChecker::personFolders();
    qunsetenv("DICPATH");
    QCOMPARE(folders.first(2), (QStringList{u"/one"_s, u"/two"_s}));
    QVERIFY(folders[2].endsWith(u"/hunspell"_s));
    QVERIFY(folders.contains(u"/usr/share/hunspell"_s));
    QLocale::setDefault(QLocale(u"de_AT"_s));
    const QStringList languages = SpellChecker::personLanguages();
    QLocale::setDefault(QLocale::c());
    QVERIFY(languages.contains(u"de_AT"_s));
}

void SpellCheckerTest::remembersWords()
{
    Dictionaries dictionaries;
    dictionaries.add(u"en_US"_s, "UTF-8", {"hello"});
    SpellChecker checker({dictionaries.path()}, {u"en_US"_s});
    // More different words than are remembered.
    for (int index = 0; index < 50'000; ++index) {
        QString word = QString::number(index, 26);
        for (QChar& letter : word)
            letter = QChar(letter.unicode() % 26 + u'a');
        QVERIFY(!checker.isCorrect(u"wurld"_s + word));
    }
    QVERIFY(checker.isCorrect(u"hello"_s));
}

QTEST_MAIN(SpellCheckerTest)
#include "SpellCheckerTest.moc"
