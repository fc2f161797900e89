#include "controls/mdSpellingMenu.h"

#include "controls/clsSpellingChecker.h"
#include "controls/mdSpellingWords.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>

#include <optional>

namespace {

constexpr int MostSuggestions = 7;

/// The misspelt word at a position of the text, selected; nothing if there is none.
std::optional<QTextCursor> misspelledWord(QPlainTextEdit &editor, int position)
{
    const QTextBlock block = editor.document()->findBlock(position);
    const int place = position - block.position();
    for (const clsWordPlace &word : SpellingWords(block.text())) {
        if (place < word.start || place > word.end()
            || SpellingChecker().IsCorrect(block.text().mid(word.start, word.length)))
            continue;
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + word.start);
        cursor.setPosition(block.position() + word.end(), QTextCursor::KeepAnchor);
        return cursor;
    }
    return {};
}

QAction *entryOf(QMenu &menu, QString text)
{
    // An ampersand in the text must not become a mnemonic.
    return new QAction(text.replace(u'&', QStringLiteral("&&")), &menu);
}

} // namespace

void mdAddSpellingEntries(QMenu &menu, QPlainTextEdit &editor, int position)
{
    const std::optional<QTextCursor> place = misspelledWord(editor, position);
    if (!place)
        return;
    const QString word = place->selectedText();
    QList<QAction *> entries;
    const QStringList suggestions = SpellingChecker().Suggestions(word, MostSuggestions);
    for (const QString &suggestion : suggestions) {
        QAction *entry = entryOf(menu, suggestion);
        QFont font = menu.font();
        font.setBold(true);
        entry->setFont(font);
        QObject::connect(entry, &QAction::triggered, &editor,
            [cursor = *place, suggestion]() mutable { cursor.insertText(suggestion); });
        entries << entry;
    }
    const auto tell = [&](const char *caption, void (clsSpellingChecker::*operation)(const QString &)) {
        entries << entryOf(menu, QLatin1String(caption));
        QObject::connect(
            entries.last(), &QAction::triggered, &editor, [operation, word] { (SpellingChecker().*operation)(word); });
    };
    tell("Add to dictionary", &clsSpellingChecker::AddToDictionary);
    tell("Ignore", &clsSpellingChecker::Ignore);
    entries << new QAction(&menu);
    entries.last()->setSeparator(true);
    menu.insertActions(menu.actions().value(0), entries);
}
