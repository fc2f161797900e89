#pragma once

#include <QHash>
#include <QObject>
#include <QStringConverter>
#include <QStringList>

#include <memory>
#include <optional>

class Hunspell;

/// Checks words against British spelling. The system's dictionary is loaded for the first word; without one, every word
/// is correct and nothing is marked. The user's own words are in a plain text file, one on each line, which the user
/// can edit.
class clsSpellingChecker final : public QObject {
    Q_OBJECT

public:
    struct clsPlaces {
        QStringList dictionaryFolders; ///< searched in this order
        QString wordsFile;
    };
    /// The folders of this system's dictionaries, and the file of this user's words.
    static clsPlaces systemPlaces();

    explicit clsSpellingChecker(clsPlaces places, QObject *parent = nullptr);
    ~clsSpellingChecker() override;

    bool IsAvailable();
    bool IsCorrect(const QString &word);
    /// The cached result of `IsCorrect` for the word; nothing if it was never checked.
    std::optional<bool> KnownResult(const QString &word) const;
    /// The likeliest corrections, best first. Slow: call when a menu opens, not while painting text.
    QStringList Suggestions(const QString &word, int atMost);

    /// Makes the word correct in this and all later runs. Reports a file that can't be written.
    void AddToDictionary(const QString &word);
    /// Makes the word correct until the program ends.
    void Ignore(const QString &word);

signals:
    /// Texts must be checked again.
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

/// The program's instance, created on first use; destroyed with the application.
clsSpellingChecker &SpellingChecker();
