#pragma once

#include <QHash>
#include <QObject>
#include <QStringConverter>
#include <QStringList>

#include <memory>
#include <optional>

class Hunspell;

/// Knows which words are spelled in the British way. The dictionary of the system is loaded when the first word is
/// asked for; where there is none, every word is right and nothing is marked. The user's own words lie in a plain text
/// file, one on each line, from which he may take them out again.
class clsSpellingChecker final : public QObject {
    Q_OBJECT

public:
    struct clsPlaces {
        QStringList dictionaryFolders; ///< searched in this order
        QString wordsFile;
    };
    /// Where dictionaries lie on this system, and the words of this user.
    static clsPlaces systemPlaces();

    explicit clsSpellingChecker(clsPlaces places, QObject *parent = nullptr);
    ~clsSpellingChecker() override;

    bool IsAvailable();
    bool IsCorrect(const QString &word);
    /// What `IsCorrect` has said of the word before; nothing, and no work, if it hasn't been asked.
    std::optional<bool> KnownResult(const QString &word) const;
    /// The likeliest corrections, best first. Slow: to be asked for when a menu opens, and not while text is painted.
    QStringList Suggestions(const QString &word, int atMost);

    /// The word is right from now on, in every run. A file that can't be written is told to the user.
    void AddToDictionary(const QString &word);
    /// The word is right until the program ends.
    void Ignore(const QString &word);

signals:
    /// Texts are to be checked anew.
    void WordsChanged();

private:
    void load();
    void loadDictionary(const QString &affixes, const QString &words);
    void accept(const QString &word);
    std::string encoded(const QString &word);

    clsPlaces m_places;
    bool m_loaded = false;
    std::unique_ptr<Hunspell> m_dictionary;
    QStringEncoder m_encoder;
    QStringDecoder m_decoder;
    QHash<QString, bool> m_results;
};

/// The one of this program, made on first use; it goes with the application.
clsSpellingChecker &SpellingChecker();
