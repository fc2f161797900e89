#include "controls/clsSpellingChecker.h"

#include "controls/mdUserWords.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <hunspell.hxx>

namespace {

/// The cache is cleared when it has more results than this.
constexpr qsizetype MostResults = 20000;

/// Dictionaries use the typewriter apostrophe.
QString plainApostrophes(QString word)
{
    return word.replace(u'\u2019', u'\'');
}

} // namespace

clsSpellingChecker::clsPlaces clsSpellingChecker::systemPlaces()
{
    clsPlaces places;
    QStringList shares = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    shares << QStringLiteral("/usr/local/share") << QStringLiteral("/usr/share");
    shares.removeDuplicates();
    for (const QString &share : std::as_const(shares))
        for (const char *folder : {"/hunspell", "/myspell", "/myspell/dicts"})
            places.dictionaryFolders << share + QLatin1String(folder);
    places.wordsFile = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Velmor/ZR3/words.txt");
    return places;
}

clsSpellingChecker::clsSpellingChecker(clsPlaces places, QObject *parent)
    : QObject(parent)
    , m_places(std::move(places))
{ }

clsSpellingChecker::~clsSpellingChecker() = default;

bool clsSpellingChecker::IsAvailable()
{
    load();
    return m_dictionary != nullptr;
}

bool clsSpellingChecker::IsCorrect(const QString &word)
{
    if (!IsAvailable())
        return true;
    if (const std::optional<bool> known = KnownResult(word))
        return *known;
    const std::string bytes = encoded(word);
    // A word with letters outside the dictionary's encoding can't be checked.
    const bool correct = bytes.empty() || m_dictionary->spell(bytes);
    if (m_results.size() >= MostResults)
        m_results.clear();
    m_results.insert(word, correct);
    return correct;
}

std::optional<bool> clsSpellingChecker::KnownResult(const QString &word) const
{
    const auto known = m_results.constFind(word);
    return known == m_results.constEnd() ? std::nullopt : std::optional<bool>(*known);
}

QStringList clsSpellingChecker::Suggestions(const QString &word, int atMost)
{
    QStringList result;
    const std::string bytes = IsAvailable() ? encoded(word) : std::string();
    if (bytes.empty())
        return result;
    for (const std::string &suggestion : m_dictionary->suggest(bytes)) {
        if (result.size() == atMost)
            break;
        QString text = m_decoder.decode(QByteArrayView(suggestion.data(), qsizetype(suggestion.size())));
        // Keeps the user's kind of apostrophe.
        if (word.contains(u'\u2019'))
            text.replace(u'\'', u'\u2019');
        result << text;
    }
    return result;
}

void clsSpellingChecker::AddToDictionary(const QString &word)
{
    load();
    const QString plain = plainApostrophes(word);
    AddUserWord(m_places.wordsFile, plain);
    Ignore(plain);
}

void clsSpellingChecker::Ignore(const QString &word)
{
    load();
    accept(word);
    m_results.clear();
    emit WordsChanged();
}

void clsSpellingChecker::load()
{
    if (m_loaded)
        return;
    m_loaded = true;
    for (const QString &folder : std::as_const(m_places.dictionaryFolders)) {
        const QString affixes = folder + QStringLiteral("/en_GB.aff");
        const QString words = folder + QStringLiteral("/en_GB.dic");
        if (QFileInfo(affixes).isFile() && QFileInfo(words).isFile())
            loadDictionary(affixes, words);
        if (m_dictionary)
            break;
    }
    if (!m_dictionary)
        return;
    const QStringList ownWords = UserWords(m_places.wordsFile);
    for (const QString &word : ownWords)
        accept(word);
}

void clsSpellingChecker::loadDictionary(const QString &affixes, const QString &words)
{
    auto dictionary
        = std::make_unique<Hunspell>(QFile::encodeName(affixes).constData(), QFile::encodeName(words).constData());
    QByteArray encoding = QByteArray::fromStdString(dictionary->get_dict_encoding());
    // Dictionaries prefix this encoding's name with its vendor.
    encoding.replace("microsoft-", "");
    m_encoder = QStringEncoder(encoding.constData(), QStringConverter::Flag::Stateless);
    m_decoder = QStringDecoder(encoding.constData(), QStringConverter::Flag::Stateless);
    // A dictionary in an unsupported encoding is not used.
    if (m_encoder.isValid() && m_decoder.isValid())
        m_dictionary = std::move(dictionary);
}

void clsSpellingChecker::accept(const QString &word)
{
    if (!m_dictionary)
        return;
    if (const std::string bytes = encoded(word); !bytes.empty())
        m_dictionary->add(bytes);
}

std::string clsSpellingChecker::encoded(const QString &word)
{
    const QByteArray bytes = m_encoder.encode(plainApostrophes(word));
    // Encoding and decoding again shows whether every letter is in the encoding.
    const QString back = m_decoder.decode(bytes);
    return back == plainApostrophes(word) ? bytes.toStdString() : std::string();
}

clsSpellingChecker &SpellingChecker()
{
    QCoreApplication *application = QCoreApplication::instance();
    auto *checker = application->findChild<clsSpellingChecker *>(QString(), Qt::FindDirectChildrenOnly);
    return checker ? *checker : *new clsSpellingChecker(clsSpellingChecker::systemPlaces(), application);
}
