#pragma once

#include "base/clsFileWatch.h"
#include "formdata/clsHistory.h"

#include <QByteArray>
#include <QString>

#include <memory>

class clsZR3Form;

/// The open claim and all that the program knows of it: the form, its text when it was last clean, its file, and what
/// became of its last save and copy. `Form` and `CleanXML` are its face. It shows nothing and asks nothing; the
/// commands that do stand in mdFileHandling.
class clsDocument {
public:
    /// Whether this program has saved the claim, and whether the last save got through.
    enum class clsSaved { Never, Failed, Written };

    clsDocument();
    ~clsDocument();
    clsDocument(const clsDocument &) = delete;
    clsDocument &operator=(const clsDocument &) = delete;

    /// Puts an empty claim without a file in the place of the one before. Its clean text is the caller's to set.
    void replaceForm();
    /// Makes the claim's present text the clean one.
    void takeAsClean();
    /// True when there is a claim and its text differs from the clean one.
    bool isDirty() const;

    /// Tells the claim where its file lies; empty for none.
    void givePath(const QString &path);
    /// The file in which the claim lies, empty where it has none; the object error without a claim. The claim itself
    /// holds its path in the code page, where a foreign character is a question mark: whatever touches the file asks
    /// here.
    QString filePath() const;
    /// When another program changed the claim's file; nothing where none has, or the claim has another file by now.
    std::optional<QDateTime> changedOnDisk();
    /// The name that a copy of the claim bears: its file's, or the fixed one of an unsaved claim.
    QString copyName() const;

    std::unique_ptr<clsZR3Form> form;
    /// What was done to the claim since it was begun or opened.
    clsHistory history {form};
    QString cleanXML;
    clsSaved lastSave = clsSaved::Never;
    /// True while the claim is read from its file, so that nothing in it is the user's work yet.
    bool opening = false;
    /// The claim's file as it was last read or saved.
    clsFileWatch onDisk;
    /// The recovered copy that was written last, whichever claim it is of.
    struct {
        QString path;
        QByteArray bytes;
    } lastCopy;

private:
    /// True when nothing has changed since the claim was last compared with its clean text.
    bool isCompared() const;

    /// What was compared last, which takes long with a long claim, and the answer.
    mutable struct {
        const clsZR3Form *form = nullptr;
        quint64 changes = 0;
        QString clean;
        bool isDirty = false;
    } m_compared;
    /// The path as the claim holds it, and as it was given. They differ where the code page lacks a character.
    struct {
        QString held;
        QString real;
    } m_path;
};

/// The one document of the program.
clsDocument &Document();
