#pragma once

#include "base/clsFileWatch.h"
#include "formdata/clsHistory.h"

#include <QByteArray>
#include <QString>

#include <memory>

class clsZR3Form;

/// The open claim with its state: the form, its clean text, its file, and the results of its last save and copy. `Form`
/// and `CleanXML` give access to it. It shows and asks nothing; mdFileHandling has the commands that do.
class clsDocument {
public:
    /// Whether this program has saved the claim, and whether the last save succeeded.
    enum class clsSaved { Never, Failed, Written };

    clsDocument();
    ~clsDocument();
    clsDocument(const clsDocument &) = delete;
    clsDocument &operator=(const clsDocument &) = delete;

    /// Replaces the claim with an empty one without a file. The caller sets its clean text.
    void replaceForm();
    /// Makes the claim's present text the clean one.
    void takeAsClean();
    /// True if there is a claim and its text differs from the clean one.
    bool isDirty() const;

    /// Sets the path of the claim's file; empty for none.
    void givePath(const QString &path);
    /// The path of the claim's file, empty if it has none; the object error without a claim. Use it for all file
    /// access: the claim keeps its path in the code page, where a foreign character becomes a question mark.
    QString filePath() const;
    /// The time when another program changed the claim's file; nothing if none did, or the claim has another file by
    /// now.
    std::optional<QDateTime> changedOnDisk();
    /// The name for a copy of the claim: its file's, or the fixed one of an unsaved claim.
    QString copyName() const;

    std::unique_ptr<clsZR3Form> form;
    /// The changes to the claim since it was created or opened.
    clsHistory history {form};
    QString cleanXML;
    clsSaved lastSave = clsSaved::Never;
    /// True while the claim is being read from its file, so that nothing in it is the user's work yet.
    bool opening = false;
    /// The claim's file as last read or saved.
    clsFileWatch onDisk;
    /// The last recovered copy written, of any claim.
    struct {
        QString path;
        QByteArray bytes;
    } lastCopy;

private:
    /// True if nothing has changed since the claim was last compared with its clean text.
    bool isCompared() const;

    /// The last comparison and its result, cached because it takes long for a long claim.
    mutable struct {
        const clsZR3Form *form = nullptr;
        quint64 changes = 0;
        QString clean;
        bool isDirty = false;
    } m_compared;
    /// The path as the claim holds it, and as it was given. They differ if the code page lacks a character.
    struct {
        QString held;
        QString real;
    } m_path;
};

/// The one document of the program.
clsDocument &Document();
