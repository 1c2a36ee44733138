// Tells misspelt words by the dictionaries that are installed for the person's language. Without a
// dictionary, and for words that it cannot express, everything is correct. It does not know where
// the text comes from or how a mistake is shown.

#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>

namespace tomely {

class SpellChecker : public QObject {
    Q_OBJECT

public:
    /// A part of a text, in UTF-16 units.
    struct Range {
        qsizetype start;
        qsizetype length;
    };

    /// Uses the best dictionary for one of the languages, the first of which is liked most, out of
    /// the folders, the first of which wins. Nothing is read before the first word.
    explicit SpellChecker(QStringList folders = personFolders(),
        QStringList languages = personLanguages(), QObject* parent = nullptr);
    ~SpellChecker() override;

    /// Where dictionaries are on this machine.
    static QStringList personFolders();

    /// The person's languages as names of dictionaries, such as "en_US".
    static QStringList personLanguages();

    /// Whether the dictionary was read, which takes a tenth of a second, or none was found.
    bool isLoaded() const { return m_isLoaded; }

    /// The misspelt words of a text. Words of more than 64 units or with digits, addresses, and
    /// texts of more than 20,000 units are not checked.
    QList<Range> misspelledWords(const QString& text);

    bool isCorrect(const QString& word);

    /// What the person may have meant, the likeliest first.
    QStringList suggestions(const QString& word);

    /// Takes the word for correct until the program ends.
    void ignore(const QString& word);

Q_SIGNALS:
    /// Words that were misspelt are correct from now on.
    void wordsChanged();

private:
    class Dictionary;

    Dictionary* dictionary();
    void checkWords(const QString& text, qsizetype start, qsizetype end, QList<Range>& misspelled);

    QStringList m_folders;
    QStringList m_languages;
    std::unique_ptr<Dictionary> m_dictionary;
    QHash<QString, bool> m_verdicts;
    QSet<QString> m_ignored;
    bool m_isLoaded = false;
};

} // namespace tomely
