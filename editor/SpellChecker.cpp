#include "editor/SpellChecker.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>

#include <hunspell.hxx>
#include <iconv.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qsizetype longestText = 20'000;
constexpr qsizetype longestWord = 64;
constexpr qsizetype mostVerdicts = 20'000;

constexpr QChar typographicApostrophe(u'\u2019');

constexpr auto utf16 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE";

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == typographicApostrophe;
}

// Languages that are written without spaces: what stands between two of them is not one word.
bool isWrittenWithoutSpaces(char32_t character)
{
    switch (QChar::script(character)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Khmer:
    case QChar::Script_Lao:
    case QChar::Script_Myanmar:
    case QChar::Script_Thai:
        return true;
    default:
        return false;
    }
}

// Web and mail addresses, and names of hosts and files.
bool isAddress(QStringView chunk)
{
    if (chunk.contains(u'@') || chunk.contains("://"_L1)
        || chunk.startsWith("www."_L1, Qt::CaseInsensitive)) {
        return true;
    }
    const auto isUpper = [](QChar character) {
        return character.isUpper();
    };
    for (qsizetype dot = chunk.indexOf(u'.'); dot >= 0; dot = chunk.indexOf(u'.', dot + 1)) {
        if (dot > 0 && dot + 1 < chunk.size() && chunk[dot - 1].isLetterOrNumber()
            && chunk[dot + 1].isLetterOrNumber()) {
            // With a capital it is rather a sentence that lacks its space.
            return std::ranges::none_of(chunk, isUpper);
        }
    }
    return false;
}

// The character at a place of a text; a lone surrogate stands for itself.
char32_t characterAt(QStringView text, qsizetype place)
{
    const QChar unit = text[place];
    if (unit.isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[place + 1]);
    return unit.unicode();
}

struct Word {
    qsizetype end;
    bool isChecked = true;
};

// Reads the word at a place: letters, marks and digits with apostrophes between them. It is empty
// where no word begins.
Word wordAt(QStringView text, qsizetype start)
{
    Word word{start};
    while (word.end < text.size()) {
        const char32_t character = characterAt(text, word.end);
        if (QChar::isLetterOrNumber(character) || QChar::isMark(character)) {
            word.isChecked =
                word.isChecked && !QChar::isNumber(character) && !isWrittenWithoutSpaces(character);
            word.end += QChar::requiresSurrogates(character) ? 2 : 1;
        } else if (word.end > start && isApostrophe(text[word.end]) && word.end + 1 < text.size()
            && QChar::isLetter(characterAt(text, word.end + 1))) {
            ++word.end;
        } else {
            break;
        }
    }
    word.isChecked = word.isChecked && word.end - start <= longestWord;
    return word;
}

// Converts between two encodings of text. Whatever cannot be converted is no value.
class Converter {
public:
    Converter(const char* to, const char* from) : m_handle(iconv_open(to, from)) { }

    ~Converter()
    {
        if (isValid())
            iconv_close(m_handle);
    }

    Q_DISABLE_COPY_MOVE(Converter)

    bool isValid() const
    {
        // What iconv_open() gives for an encoding that it does not know.
        return reinterpret_cast<qintptr>(m_handle) != -1;
    }

    // Takes its own copy, because iconv() wants bytes that could be written to.
    std::optional<std::string> convert(std::string bytes) const
    {
        if (!isValid())
            return std::nullopt;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr); // an earlier failure leaves a state
        std::string result(bytes.size() * 4 + 16, '\0');
        char* input = bytes.data();
        char* output = result.data();
        size_t inputLeft = bytes.size();
        size_t outputLeft = result.size();
        constexpr auto failure = static_cast<size_t>(-1);
        if (iconv(m_handle, &input, &inputLeft, &output, &outputLeft) == failure
            || iconv(m_handle, nullptr, nullptr, &output, &outputLeft) == failure) {
            return std::nullopt;
        }
        result.resize(result.size() - outputLeft);
        return result;
    }

private:
    iconv_t m_handle;
};

// The encoding that a dictionary names, as the system calls it.
std::string systemName(const std::string& encoding)
{
    constexpr std::string_view prefix = "microsoft-";
    return encoding.starts_with(prefix) ? encoding.substr(prefix.size()) : encoding;
}

// The part of a dictionary's name that tells the language: "en" of "en_US".
QString languageOf(const QString& name)
{
    return name.section(u'_', 0, 0);
}

bool hasDictionary(const QString& path)
{
    return QFile::exists(path + ".dic"_L1) && QFile::exists(path + ".aff"_L1);
}

// The dictionary of exactly that name, as a path without its suffix; null when there is none.
QString exactDictionary(const QStringList& folders, const QString& name)
{
    for (const QString& folder : folders) {
        if (QString path = folder + u'/' + name; hasDictionary(path))
            return path;
    }
    return {};
}

// The same for any country where the language is spoken.
QString relatedDictionary(const QStringList& folders, const QString& language)
{
    for (const QString& folder : folders) {
        const QStringList files = QDir(folder).entryList({language + "_*.dic"_L1}, QDir::Files);
        for (const QString& file : files) {
            if (QString path = folder + u'/' + file.chopped(4); hasDictionary(path))
                return path;
        }
    }
    return {};
}

// A dictionary for another country is better than one for a language that the person likes less.
QString bestDictionary(const QStringList& folders, const QStringList& languages)
{
    QStringList tried;
    for (const QString& first : languages) {
        const QString language = languageOf(first);
        if (tried.contains(language))
            continue;
        tried.append(language);
        for (const QString& name : languages) {
            if (languageOf(name) != language)
                continue;
            if (QString path = exactDictionary(folders, name); !path.isNull())
                return path;
        }
        if (QString path = relatedDictionary(folders, language); !path.isNull())
            return path;
    }
    return {};
}

} // namespace

// The words of one language in the encoding of their file.
class SpellChecker::Dictionary {
public:
    explicit Dictionary(const QString& path)
        : m_words(QFile::encodeName(path + ".aff"_L1).constData(),
            QFile::encodeName(path + ".dic"_L1).constData())
        , m_encoder(systemName(m_words.get_dict_encoding()).c_str(), utf16)
        , m_decoder(utf16, systemName(m_words.get_dict_encoding()).c_str())
    {
    }

    bool hasWord(const QString& word)
    {
        const std::optional<std::string> encoded = encode(word);
        return !encoded || m_words.spell(*encoded);
    }

    QStringList suggestions(const QString& word)
    {
        QStringList result;
        if (const std::optional<std::string> encoded = encode(word)) {
            for (const std::string& suggestion : m_words.suggest(*encoded)) {
                if (const std::optional<std::string> bytes = m_decoder.convert(suggestion))
                    result.append(decoded(*bytes));
            }
        }
        return result;
    }

private:
    std::optional<std::string> encode(const QString& word) const
    {
        const auto* const bytes = reinterpret_cast<const char*>(word.utf16());
        return m_encoder.convert({bytes, static_cast<size_t>(word.size()) * sizeof(char16_t)});
    }

    static QString decoded(const std::string& bytes)
    {
        const auto* const units = reinterpret_cast<const char16_t*>(bytes.data());
        return QString::fromUtf16(units, static_cast<qsizetype>(bytes.size() / sizeof(char16_t)));
    }

    Hunspell m_words;
    Converter m_encoder;
    Converter m_decoder;
};

SpellChecker::SpellChecker(QStringList folders, QStringList languages, QObject* parent)
    : QObject(parent)
    , m_folders(std::move(folders))
    , m_languages(std::move(languages))
{
}

SpellChecker::~SpellChecker() = default;

QStringList SpellChecker::personFolders()
{
    QStringList folders =
        qEnvironmentVariable("DICPATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    folders << data + "/hunspell"_L1 << u"/usr/share/hunspell"_s << u"/usr/share/myspell/dicts"_s;
    return folders;
}

QStringList SpellChecker::personLanguages()
{
    const QLocale locale;
    QStringList languages = locale.uiLanguages();
    languages.append(locale.name());
    languages.replaceInStrings(u"-"_s, u"_"_s);
    languages.removeDuplicates();
    return languages;
}

SpellChecker::Dictionary* SpellChecker::dictionary()
{
    if (!std::exchange(m_isLoaded, true)) {
        if (const QString path = bestDictionary(m_folders, m_languages); !path.isNull())
            m_dictionary = std::make_unique<Dictionary>(path);
    }
    return m_dictionary.get();
}

QList<SpellChecker::Range> SpellChecker::misspelledWords(const QString& text)
{
    QList<Range> result;
    if (text.size() > longestText || (m_isLoaded && !m_dictionary))
        return result;
    const auto isBlank = [](QChar character) {
        return character.isSpace();
    };
    for (auto blank = text.cbegin(); blank != text.cend();) {
        const auto begin = std::find_if_not(blank, text.cend(), isBlank);
        blank = std::find_if(begin, text.cend(), isBlank);
        if (!isAddress({begin, blank}))
            checkWords(text, begin - text.cbegin(), blank - text.cbegin(), result);
    }
    return result;
}

void SpellChecker::checkWords(
    const QString& text, qsizetype start, qsizetype end, QList<Range>& misspelled)
{
    while (start < end) {
        const Word word = wordAt(text, start);
        const qsizetype length = word.end - start;
        if (length > 0 && word.isChecked && !isCorrect(text.sliced(start, length)))
            misspelled.append({start, length});
        start += qMax<qsizetype>(length, 1);
    }
}

bool SpellChecker::isCorrect(const QString& word)
{
    if (m_ignored.contains(word))
        return true;
    if (const auto place = m_verdicts.constFind(word); place != m_verdicts.cend())
        return *place;
    Dictionary* const words = dictionary();
    if (!words)
        return true;
    bool isCorrect = words->hasWord(word);
    // Most dictionaries know the apostrophe of typewriters only.
    if (!isCorrect && word.contains(typographicApostrophe))
        isCorrect = words->hasWord(QString(word).replace(typographicApostrophe, u'\''));
    if (m_verdicts.size() >= mostVerdicts)
        m_verdicts.clear();
    m_verdicts.insert(word, isCorrect);
    return isCorrect;
}

QStringList SpellChecker::suggestions(const QString& word)
{
    Dictionary* const words = dictionary();
    return words && word.size() <= longestWord ? words->suggestions(word) : QStringList();
}

void SpellChecker::ignore(const QString& word)
{
    m_ignored.insert(word);
    Q_EMIT wordsChanged();
}

} // namespace tomely
