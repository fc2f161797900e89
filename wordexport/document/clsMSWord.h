#pragma once

#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdWordFit.h"

#include <QString>

#include <memory>
#include <vector>

class clsRunTimeError;
class clsWordDocument;

/// The only class that operates the word processor: one hidden application, at most one open document, one cursor in
/// it. Everything that the export does to a document is one of the operations below.
///
/// Most operations are guarded: a failed operation is abandoned, the first failure of an instance is reported, and the
/// caller continues without notice. Operations marked "unguarded" throw clsRunTimeError instead.
class clsMSWord {
public:
    /// Whether a saved document is a working copy or finished. Working copies last for one export only, so they are
    /// compressed in the fastest way and not flushed to the disk; finished documents are compressed fully and flushed.
    enum Lasting { WorkingCopy, Finished };

    explicit clsMSWord(Lasting lasting = WorkingCopy);
    /// Quits the application; unsaved changes are lost.
    ~clsMSWord();
    clsMSWord(const clsMSWord &) = delete;
    clsMSWord &operator=(const clsMSWord &) = delete;

    /// Once true, further failures of this instance are not reported.
    bool ErrorShown = false;
    /// The current or last guarded operation, for the error message.
    QString CurrentSubroutine;

    /// Opens the file for editing, with the cursor at its start. Errors name the file by `shownName` if given, for
    /// example the original of a working copy.
    void OpenDocument(const QString &path, const QString &shownName = {});
    /// The same with the file's content already loaded.
    void OpenDocument(const QString &path, const QString &shownName, const clsZipPackage &content);
    /// Fits the typed text, writes the document back to its file, and closes it.
    void SaveAndClose();
    /// The same without a file: the content stays in memory.
    void KeepAndClose();
    /// Quits the application; unsaved changes are lost.
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
    /// Types the text at the cursor, replacing the selection. `text` is changed to what is actually typed.
    void SetText(QString &text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold);
    void SetText(QString &&text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold);
    /// Inserts a hard page break.
    void PageBreak();
    /// Replaces the first occurrence of the placeholder. If the document doesn't contain it, the text is typed before
    /// the first character of the document. Required behaviour; do not fix.
    void DoReplace(const QString &find, const QString &replacement, bool IsTick, bool IsMoney, bool BlankZero);
    /// Removes all hidden occurrences of this text, and moves to the start of the document.
    void RemoveHidden(const QString &text);
    /// Appends the whole of that document to this one, with its own sections. `plain` describes the file if it is
    /// plain, which makes appending many times faster.
    void InsertFileAtEnd(const QString &path, const QString &shownName = {}, const clsPlainText *plain = nullptr);
    /// Deletes the character before the cursor.
    void TypeBackSpace();

    /// n lines down. Unguarded.
    void MoveCursorDown(int n);
    /// Moves down n lines that the next MoveCursorDown does not count: breaks within typed text. Unguarded, and not an
    /// operation to the observer.
    void PassTypedBreaks(int n) { moveDown(n); }
    /// n table cells to the right. Unguarded.
    void MoveCursorRight(int n);
    /// To the first cell of the table row; does nothing outside a table. Unguarded.
    void MoveCursorToStartOfRow();
    /// To the first cell of the next table row. The misspelt name is required. Unguarded.
    void MoveSursorToNextLine();

    /// The texts of the last saved document that are printed smaller, in grown rows, or cut off.
    const std::vector<clsFittedText> &fitted() const { return m_fitted; }
    /// Its number of paper pages; not counted for a finished document.
    int paperPages() const { return m_paperPages; }

    /// True while a document is open; it stays open if saving fails.
    bool isOpen() const { return m_document != nullptr; }
    /// The open document; null if there is none.
    clsWordDocument *openDocument() const { return m_document.get(); }
    /// The file written by the last SaveAndClose, empty if that failed, and the position of the text in it.
    const QString &savedPath() const { return m_savedPath; }
    const clsTextPlace &savedText() const { return m_savedText; }
    /// The content kept by the last KeepAndClose.
    const clsZipPackage &kept() const { return m_kept; }
    /// True once a whole sheet has been lost: a document that could not be opened, saved or appended.
    bool sheetLost() const { return m_sheetLost; }

private:
    void SetBold(bool bold);
    bool TypeText(const QString &text);
    void ErrorHandler(const clsRunTimeError &error);

    /// The open document; error 91 if there is none.
    clsWordDocument &document() const;
    /// Runs one guarded operation under its name; true if it completed.
    template <class Operation> bool guarded(const char *name, Operation operation);
    template <class Store> void closeWith(Store store);
    /// MoveCursorDown without notifying the observer.
    void moveDown(int n);
    template <class Open> void openWith(const QString &path, Open open);
    /// SetText without notifying the observer; true if the text was typed.
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
