#pragma once

#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdWordFit.h"

#include <QString>

#include <memory>
#include <vector>

class clsRunTimeError;
class clsWordDocument;

/// The one class through which the system touches a word processor: one hidden application, at most one open
/// document, one cursor in it. Everything that the export does to a document is one of the operations below.
///
/// Most operations guard themselves: a failure is reported once by this instance, the rest of that operation is
/// skipped, and the caller goes on without being told. Those marked "unguarded" throw clsRunTimeError instead.
class clsMSWord {
public:
    /// What becomes of the documents that an instance saves. Working copies live for one export only, so they are
    /// packed in the quickest way and not forced on to the disk; a finished document gets both.
    enum Lasting { WorkingCopy, Finished };

    explicit clsMSWord(Lasting lasting = WorkingCopy);
    /// Releases the application; what was not saved is lost.
    ~clsMSWord();
    clsMSWord(const clsMSWord &) = delete;
    clsMSWord &operator=(const clsMSWord &) = delete;

    /// Once true, a further failure of this instance is no longer reported.
    bool ErrorShown = false;
    /// The guarded operation that runs now or ran last, for the error message.
    QString CurrentSubroutine;

    /// Loads the file for editing; the cursor is at its start. An error names the file by the shown name, where one is
    /// given: a working copy by what it was copied from.
    void OpenDocument(const QString &path, const QString &shownName = {});
    /// The same of a file whose content is at hand.
    void OpenDocument(const QString &path, const QString &shownName, const clsZipPackage &content);
    /// Makes room for what was typed, writes the document back to the file it came from, and closes it.
    void SaveAndClose();
    /// The same without a file: what would be in it stays in memory.
    void KeepAndClose();
    /// Ends the application; what was not saved is lost.
    void Quit();

    /// "12.0", the first version that reads the documents written here. Unguarded.
    QString VersionNumber() const;
    /// The marketing year of the version. Unguarded.
    QString VersionString() const;
    /// The marketing year of any version number.
    static QString versionYear(const QString &versionNumber);

    /// Types one tab.
    void NextColumn();
    /// Types n tabs.
    void MoveColumns(int n);
    /// Starts a new paragraph at the cursor. Unguarded.
    void NextLine();
    /// Types the text at the cursor, over any selected text. The text is changed in place to what is typed.
    void SetText(QString &text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold);
    void SetText(QString &&text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold);
    /// Inserts a hard page break.
    void PageBreak();
    /// Replaces the first occurrence of the placeholder. One that the document does not hold is no failure: the
    /// text is then typed before the very first character of the document.
    void DoReplace(const QString &find, const QString &replacement, bool IsTick, bool IsMoney, bool BlankZero);
    /// Appends the whole of that document to the end of this one, as sections of its own.
    /// `plain` is what is known of the file, where it is known: such a one is appended in a fraction of the time.
    void InsertFileAtEnd(const QString &path, const QString &shownName = {}, const clsPlainText *plain = nullptr);
    /// Deletes the character before the cursor.
    void TypeBackSpace();

    /// n lines down. Unguarded.
    void MoveCursorDown(int n);
    /// n table cells to the right. Unguarded.
    void MoveCursorRight(int n);
    /// To the first cell of the table row; outside a table nothing happens. Unguarded.
    void MoveCursorToStartOfRow();
    /// To the first cell of the next table row. The misspelling is the name. Unguarded.
    void MoveSursorToNextLine();

    /// What the last document that was saved prints smaller, in rows that grow, or cut.
    const std::vector<clsFittedText> &fitted() const { return m_fitted; }
    /// How many paper pages it takes; of a finished document that is not counted.
    int paperPages() const { return m_paperPages; }

    /// True while a document is open; one that could not be saved stays so.
    bool isOpen() const { return m_document != nullptr; }
    /// The open document, nothing where there is none.
    clsWordDocument *openDocument() const { return m_document.get(); }
    /// The file that the last SaveAndClose wrote, empty where it failed, and where the text stands in it.
    const QString &savedPath() const { return m_savedPath; }
    const clsTextPlace &savedText() const { return m_savedText; }
    /// What the last KeepAndClose kept.
    const clsZipPackage &kept() const { return m_kept; }
    /// True once a failure has lost a whole sheet: a document that could not be opened, saved or appended.
    bool sheetLost() const { return m_sheetLost; }

private:
    void SetBold(bool bold);
    bool TypeText(const QString &text);
    void ErrorHandler(const clsRunTimeError &error);

    /// The open document; error 91 where there is none.
    clsWordDocument &document() const;
    /// Runs one guarded operation under its name; true when it came to its end.
    template <class Operation> bool guarded(const char *name, Operation operation);
    template <class Store> void closeWith(Store store);
    /// MoveCursorDown without its report to the observer.
    void moveDown(int n);
    template <class Open> void openWith(const QString &path, Open open);
    /// SetText without its report to the observer; true when the text was typed.
    bool setTextUnobserved(QString &text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold);

    Lasting m_lasting;
    std::unique_ptr<clsWordDocument> m_document;
    bool m_sheetLost = false;
    QString m_savedPath;
    clsTextPlace m_savedText;
    clsZipPackage m_kept;
    std::vector<clsFittedText> m_fitted;
    int m_paperPages = 1;
};
