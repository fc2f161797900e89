#include "wordexport/document/clsMSWord.h"

#include "base/clsRunTimeError.h"
#include "base/mdCustomMessages.h"
#include "base/mdFormatMoney.h"
#include "wordexport/document/clsMSWordObserver.h"
#include "wordexport/document/clsWordDocument.h"

#include <new>

namespace {

struct Version {
    const char *number;
    const char *year;
};

// The first two rows are one step off the products' numbering. Required behaviour: users see these texts and may have
// noted them.
constexpr Version Versions[] = {
    {"7.0", "97"},
    {"8.0", "98"},
    {"9.0", "2000"},
    {"10.0", "2002"},
    {"11.0", "2003"},
    {"12.0", "2007"},
};

const QString LineBreakInParagraph(QChar(11));

QString withLineBreaks(QString text)
{
    return text.replace(QLatin1String("\r\n"), LineBreakInParagraph);
}

QString asTick(const QString &text)
{
    if (text == QLatin1String("True"))
        return QString(QChar(0xFE));
    if (text == QLatin1String("False"))
        return QString(QChar(0xA8));
    return text;
}

bool isZero(const QString &text)
{
    return text == QLatin1String("00:00") || text == QLatin1String("0.00") || text == QLatin1String("0");
}

} // namespace

clsMSWord::clsMSWord(Lasting lasting)
    : CurrentSubroutine(QStringLiteral("Class_Initialize"))
    , m_lasting(lasting)
{ }

clsMSWord::~clsMSWord() = default;

template <class Operation> bool clsMSWord::guarded(const char *name, Operation operation)
{
    CurrentSubroutine = QLatin1String(name);
    try {
        operation();
        return true;
    } catch (const clsRunTimeError &error) {
        ErrorHandler(error);
    } catch (const std::bad_alloc &) {
        ErrorHandler(clsRunTimeError(clsRunTimeError::OutOfMemory));
    }
    return false;
}

void clsMSWord::ErrorHandler(const clsRunTimeError &error)
{
    if (ErrorShown)
        return;
    ErrorShown = true;
    mdCustomMessages(
        QStringLiteral("An error has occured during Word automation. If the problem persists please contact Velmor "
                       "technical support via stating the following details:\r\n\r\n"
                       "Error Number: %1\r\n"
                       "Error Description: ")
                .arg(error.number())
            + error.description() + QLatin1String("\r\nSubroutine: ") + CurrentSubroutine,
        QStringLiteral("Word Automation Error"));
}

clsWordDocument &clsMSWord::document() const
{
    if (!m_document)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *m_document;
}

void clsMSWord::OpenDocument(const QString &path, const QString &shownName)
{
    const QString &name = shownName.isEmpty() ? path : shownName;
    openWith(path, [&] { return std::make_unique<clsWordDocument>(path, name); });
}

void clsMSWord::OpenDocument(const QString &path, const QString &shownName, const clsZipPackage &content)
{
    openWith(path, [&] { return std::make_unique<clsWordDocument>(path, shownName, content); });
}

template <class Open> void clsMSWord::openWith(const QString &path, Open open)
{
    if (guarded("OpenDocument", [&] { m_document = open(); })) {
        MSWordObserver().opened(path);
        return;
    }
    m_sheetLost = true;
    MSWordObserver().failed(CurrentSubroutine, path);
}

void clsMSWord::SaveAndClose()
{
    const bool finished = m_lasting == Finished;
    closeWith([&] { document().save(finished ? clsZipPackage::Deflated : clsZipPackage::Stored, finished); });
}

void clsMSWord::KeepAndClose()
{
    closeWith([&] { m_kept = document().content(); });
}

template <class Store> void clsMSWord::closeWith(Store store)
{
    m_savedPath.clear();
    const bool saved = guarded("SaveAndClose", [&] {
        m_fitted = document().fit();
        if (m_lasting != Finished)
            m_paperPages = document().paperPages();
        store();
    });
    if (saved) {
        m_savedPath = document().path();
        m_savedText = document().savedText();
        m_document.reset();
        MSWordObserver().fitted(m_fitted);
        MSWordObserver().savedAndClosed();
        return;
    }
    m_sheetLost = true;
    MSWordObserver().failed(CurrentSubroutine, {});
}

void clsMSWord::Quit()
{
    guarded("Quit", [&] { m_document.reset(); });
}

QString clsMSWord::VersionNumber() const
{
    return QStringLiteral("12.0");
}

QString clsMSWord::VersionString() const
{
    return versionYear(VersionNumber());
}

QString clsMSWord::versionYear(const QString &versionNumber)
{
    for (const Version &version : Versions)
        if (versionNumber == QLatin1String(version.number))
            return QString::fromLatin1(version.year);
    return QStringLiteral("Unknown");
}

void clsMSWord::NextColumn()
{
    if (guarded("NextColumn", [&] { document().typeText(QStringLiteral("\t")); }))
        MSWordObserver().tabs(1);
    else
        MSWordObserver().failed(CurrentSubroutine, {});
}

void clsMSWord::MoveColumns(int n)
{
    guarded("MoveColumns", [&] {
        bool typed = true;
        for (int i = 0; i < n; ++i)
            typed = guarded("NextColumn", [&] { document().typeText(QStringLiteral("\t")); }) && typed;
        if (typed)
            MSWordObserver().tabs(n);
        else
            MSWordObserver().failed(CurrentSubroutine, {});
    });
}

void clsMSWord::NextLine()
{
    document().startParagraph();
    MSWordObserver().newParagraph();
}

void clsMSWord::SetText(QString &text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold)
{
    const QString given = text;
    if (setTextUnobserved(text, IsTick, IsMoney, BlankZero, Bold))
        MSWordObserver().typed(text, IsTick, Bold);
    else
        MSWordObserver().failed(QStringLiteral("cell"), given);
}

void clsMSWord::SetText(QString &&text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold)
{
    SetText(text, IsTick, IsMoney, BlankZero, Bold);
}

bool clsMSWord::setTextUnobserved(QString &text, bool IsTick, bool IsMoney, bool BlankZero, bool Bold)
{
    bool typed = false;
    const bool done = guarded("SetText", [&] {
        if (IsTick) {
            text = asTick(text);
            document().setSymbolFont();
        }
        if (IsMoney)
            text = mdFormatMoney(text);
        // After the money format, so that a zero amount, stored as a blank or as "0", prints as empty.
        if (BlankZero && isZero(text))
            text = QStringLiteral(" ");
        text = withLineBreaks(text);
        text.replace(u'\t', u' ');
        SetBold(Bold);
        typed = TypeText(text);
        SetBold(false);
    });
    return done && typed;
}

void clsMSWord::SetBold(bool bold)
{
    guarded("SetBold", [&] { document().setBold(bold); });
}

bool clsMSWord::TypeText(const QString &text)
{
    return guarded("TypeText", [&] { document().typeText(text); });
}

void clsMSWord::PageBreak()
{
    if (guarded("PageBreak", [&] { document().typePageBreak(); }))
        MSWordObserver().pageBreak();
    else
        MSWordObserver().failed(CurrentSubroutine, {});
}

void clsMSWord::DoReplace(const QString &find, const QString &replacement, bool IsTick, bool IsMoney, bool BlankZero)
{
    QString text;
    bool typed = false;
    const bool done = guarded("DoReplace", [&] {
        // Doesn't check whether the placeholder was found: if not, the cursor is at the document's start, and the text
        // is typed there. Required behaviour; do not fix.
        document().findFirst(find);
        text = withLineBreaks(replacement);
        if (text.isEmpty())
            text = QStringLiteral(" ");
        // Partly bold counts as bold.
        const bool bold = document().selectionIsBold();
        typed = setTextUnobserved(text, IsTick, IsMoney, BlankZero, bold);
    });
    if (done && typed)
        MSWordObserver().replaced(find, text, IsTick);
    else
        MSWordObserver().failed(find, replacement);
}

void clsMSWord::RemoveHidden(const QString &text)
{
    guarded("RemoveHidden", [&] { document().removeHidden(text); });
}

void clsMSWord::InsertFileAtEnd(const QString &path, const QString &shownName, const clsPlainText *plain)
{
    const QString &name = shownName.isEmpty() ? path : shownName;
    if (guarded("InsertFileAtEnd", [&] { document().append(path, name, plain); })) {
        MSWordObserver().inserted(path);
        return;
    }
    m_sheetLost = true;
    MSWordObserver().failed(CurrentSubroutine, path);
}

void clsMSWord::TypeBackSpace()
{
    if (guarded("TypeBackSpace", [&] { document().backSpace(); }))
        MSWordObserver().backSpace();
    else
        MSWordObserver().failed(CurrentSubroutine, {});
}

void clsMSWord::MoveCursorDown(int n)
{
    moveDown(n);
    MSWordObserver().movedDown(n);
}

void clsMSWord::moveDown(int n)
{
    clsWordDocument &open = document();
    for (int i = 0; i < n; ++i)
        open.lineDown();
}

void clsMSWord::MoveCursorRight(int n)
{
    clsWordDocument &open = document();
    for (int i = 0; i < n; ++i)
        open.cellRight();
    MSWordObserver().movedRight(n);
}

void clsMSWord::MoveCursorToStartOfRow()
{
    document().rowStart();
    MSWordObserver().movedToRowStart();
}

void clsMSWord::MoveSursorToNextLine()
{
    moveDown(1);
    document().rowStart();
    MSWordObserver().nextRow();
}
